#include "base/path_surgery.h"

#include <string>

#include "base/u16.h"

namespace mx {

namespace {
constexpr int32_t kAssembleBudget = 256;
constexpr int32_t kAssembleMinimumLeft = 3;
}  // namespace

int32_t psAssembleFilename(char16_t *dest, int32_t capacity, const char16_t *path, const char16_t *name,
                           const char16_t *ext) {
    int32_t budget = kAssembleBudget;
    for (const char16_t *part : {path, name, ext})
        if ((budget -= u16Len(part)) < kAssembleMinimumLeft) return -1;
    std::u16string work = path ? path : u"";
    if (!work.empty() && !psIsSeparator(work.back())) work += u'\\';  // an empty Path adds none
    work += name ? name : u"";
    const char16_t *e = ext ? ext : u"";
    if (*e == u'.') ++e;
    if (work.empty() || work.back() != u'.') work += u'.';
    work += e;
    u16Copy(dest, capacity, work.c_str());
    return 0;
}

namespace {
// Runs a path edit on a text variable whose last unit is made a terminator
// first, so that an unterminated vector is never read past its capacity.
int32_t editInPlace(char16_t *text, int32_t capacity, int32_t (*edit)(char16_t *)) {
    if (!text || capacity < 1) return 0;
    text[capacity - 1] = 0;
    edit(text);
    return 0;
}
}  // namespace

int32_t psStripExtensionIn(char16_t *text, int32_t capacity) {
    return editInPlace(text, capacity, psStripExtension<char16_t>);
}

int32_t psStripPathIn(char16_t *text, int32_t capacity) { return editInPlace(text, capacity, psStripPath<char16_t>); }

int32_t psStripFilenameIn(char16_t *text, int32_t capacity) {
    return editInPlace(text, capacity, psStripFilename<char16_t>);
}

}  // namespace mx
