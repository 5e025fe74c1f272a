// Case mapping for the native build. Latin-1 and Latin Extended-A follow the
// Windows tables by the rules of base/case_rules.h; above them the C
// library's Unicode tables (C.UTF-8) are used, keeping only the one-to-one
// pairs of the basic plane, as the Windows tables do.
#include <cwctype>

#include "base/case_rules.h"
#include "platform/casemap.h"
#include "platform/posix/unicode_locale.h"

namespace mx {

namespace {

wint_t libraryCase(wint_t c, bool upper, locale_t loc) {
    return upper ? towupper_l(c, loc) : towlower_l(c, loc);
}

// The C library's answer for units above Latin Extended-A, kept only when it
// is a plain unit of the basic plane outside the Latin range and maps back:
// like the Windows tables, only one-to-one pairs count (so "ς", the title
// case "ǅ" or the ohm sign keep their form).
char16_t libraryMap(char16_t c, bool upper) {
    if (c >= 0xD800 && c < 0xE000) return c;
    locale_t loc = unicodeLocale();
    if (!loc) return c;
    wint_t m = libraryCase(wint_t(c), upper, loc);
    if (m < kLatinCaseEnd || m > 0xFFFF || (m >= 0xD800 && m < 0xE000)) return c;
    return libraryCase(m, !upper, loc) == wint_t(c) ? char16_t(m) : c;
}

}  // namespace

char16_t mxp_CharUpper(char16_t c) { return c < kLatinCaseEnd ? caseLatinUpper(c) : libraryMap(c, true); }

char16_t mxp_CharLower(char16_t c) { return c < kLatinCaseEnd ? caseLatinLower(c) : libraryMap(c, false); }

void mxp_UpperText(char16_t *s, int32_t n) {
    for (int32_t i = 0; s && i < n; ++i) s[i] = mxp_CharUpper(s[i]);
}

void mxp_LowerText(char16_t *s, int32_t n) {
    for (int32_t i = 0; s && i < n; ++i) s[i] = mxp_CharLower(s[i]);
}

}  // namespace mx
