// Case mapping for the native build. Latin-1 and Latin Extended-A
// (U+0000 to U+017F) follow the Windows tables exactly, worked out here by
// rule; above them the C library's Unicode tables (C.UTF-8) are used, keeping
// only the one-to-one pairs of the basic plane, as the Windows tables do.
#include <cwctype>
#include <locale.h>

#include "platform/casemap.h"

namespace mx {

namespace {

constexpr char16_t kLatinEnd = 0x180;  // first unit after Latin Extended-A

locale_t unicodeLocale() {
    static locale_t loc = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t(0));
    return loc;
}

// Latin Extended-A pairs capital and small letters as neighbours: the capital
// is even in U+0100..U+0137 and U+014A..U+0177, odd in U+0139..U+0148 and
// U+0179..U+017E. U+0130, U+0131, U+0138, U+0149 and U+017F have no partner
// in the Windows tables; U+0178 pairs with U+00FF.
bool extendedPairCapital(char16_t c, bool *isCapital) {
    if ((c >= 0x100 && c <= 0x12F) || (c >= 0x132 && c <= 0x137) || (c >= 0x14A && c <= 0x177)) {
        *isCapital = (c % 2) == 0;
        return true;
    }
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) {
        *isCapital = (c % 2) == 1;
        return true;
    }
    return false;
}

char16_t latinUpper(char16_t c) {
    if (c >= u'a' && c <= u'z') return char16_t(c - 32);
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return char16_t(c - 32);
    if (c == 0xFF) return 0x178;
    bool capital = false;
    if (extendedPairCapital(c, &capital) && !capital) return char16_t(c - 1);
    return c;
}

char16_t latinLower(char16_t c) {
    if (c >= u'A' && c <= u'Z') return char16_t(c + 32);
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return char16_t(c + 32);
    if (c == 0x178) return 0xFF;
    bool capital = false;
    if (extendedPairCapital(c, &capital) && capital) return char16_t(c + 1);
    return c;
}

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
    if (m < kLatinEnd || m > 0xFFFF || (m >= 0xD800 && m < 0xE000)) return c;
    return libraryCase(m, !upper, loc) == wint_t(c) ? char16_t(m) : c;
}

}  // namespace

char16_t mxp_CharUpper(char16_t c) { return c < kLatinEnd ? latinUpper(c) : libraryMap(c, true); }

char16_t mxp_CharLower(char16_t c) { return c < kLatinEnd ? latinLower(c) : libraryMap(c, false); }

void mxp_UpperText(char16_t *s, int32_t n) {
    for (int32_t i = 0; s && i < n; ++i) s[i] = mxp_CharUpper(s[i]);
}

void mxp_LowerText(char16_t *s, int32_t n) {
    for (int32_t i = 0; s && i < n; ++i) s[i] = mxp_CharLower(s[i]);
}

}  // namespace mx
