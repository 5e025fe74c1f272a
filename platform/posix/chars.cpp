// Letter tests with the C library's Unicode tables (the C.UTF-8 locale),
// without touching the process's global locale.
#include <cwctype>

#include "platform/platform.h"
#include "platform/posix/unicode_locale.h"

namespace mx {

namespace {
// Latin-1 and Latin Extended-A letters, for a C library without C.UTF-8.
bool latinLetter(char16_t c) {
    if ((c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z')) return true;
    if (c == 0xAA || c == 0xB5 || c == 0xBA) return true;
    if (c >= 0xC0 && c <= 0x17F) return c != 0xD7 && c != 0xF7;
    return false;
}
}  // namespace

bool mxp_IsAlpha(char16_t c) {
    if (c < 0x80) return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
    if (c >= 0xD800 && c < 0xE000) return false;
    locale_t loc = unicodeLocale();
    return loc ? iswalpha_l(wint_t(c), loc) != 0 : latinLetter(c);
}

bool mxp_IsAlphaNumeric(char16_t c) {
    if (c < 0x80)
        return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9');
    if (mxp_IsAlpha(c)) return true;
    locale_t loc = unicodeLocale();
    return loc && !(c >= 0xD800 && c < 0xE000) && iswdigit_l(wint_t(c), loc) != 0;
}

}  // namespace mx
