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

bool psNamesDevice(const char16_t *path) {
    if (!path) return false;
    if (psIsSeparator(path[0]) && psIsSeparator(path[1]) && path[2] == u'.' && psIsSeparator(path[3])) return true;
    int32_t start = 0, n = psLength(path);
    for (int32_t i = 0; i < n; ++i)
        if (psIsSeparator(path[i]) || path[i] == u':') start = i + 1;
    // The name before its first dot, without the blanks that end it.
    int32_t end = start;
    while (end < n && path[end] != u'.') ++end;
    while (end > start && path[end - 1] == u' ') --end;
    char16_t base[8];
    int32_t len = end - start;
    if (len < 3 || len > 7) return false;
    for (int32_t i = 0; i < len; ++i) {
        char16_t c = path[start + i];
        base[i] = c >= u'a' && c <= u'z' ? char16_t(c - 32) : c;
    }
    base[len] = 0;
    static const char16_t *const kDevices[] = {u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"};
    for (const char16_t *d : kDevices) {
        int32_t i = 0;
        while (d[i] && d[i] == base[i]) ++i;
        if (!d[i] && !base[i]) return true;
    }
    bool port = (base[0] == u'C' && base[1] == u'O' && base[2] == u'M') ||
                (base[0] == u'L' && base[1] == u'P' && base[2] == u'T');
    return port && len == 4 && base[3] >= u'1' && base[3] <= u'9';
}

}  // namespace mx
