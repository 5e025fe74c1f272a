#include "desktop/command_words.h"

#include "base/u16.h"
#include "base/utf8.h"

namespace mx {

std::vector<std::string> dskCommandWords(const char16_t *commandLine) {
    std::vector<std::string> words;
    std::u16string word;
    bool inWord = false, quoted = false;
    for (const char16_t *p = commandLine ? commandLine : u""; *p; ++p) {
        if (*p == u'\\' && p[1] == u'"') {
            word += u'"';
            inWord = true;
            ++p;
        } else if (*p == u'"') {
            quoted = !quoted;
            inWord = true;
        } else if ((*p == u' ' || *p == u'\t') && !quoted) {
            if (inWord) words.push_back(toUtf8(word.c_str(), int64_t(word.size())));
            word.clear();
            inWord = false;
        } else {
            word += *p;
            inWord = true;
        }
    }
    if (inWord) words.push_back(toUtf8(word.c_str(), int64_t(word.size())));
    return words;
}

}  // namespace mx
