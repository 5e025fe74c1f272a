#include "helperlib/kelvane_strings.h"
#include "base/u16.h"

namespace mx {

namespace {

// The byte of an escape "%XY" at s, or -1.
int escapedByte(const char16_t *s) {
    if (s[0] != u'%') return -1;
    int hi = u16HexDigit(s[1]);
    int lo = hi < 0 ? -1 : u16HexDigit(s[2]);
    return lo < 0 ? -1 : hi * 16 + lo;
}

// Reads a UTF-8 sequence of escapes at s (its first byte given). Returns the
// number of escapes it spans and sets *cp, or 0 when the bytes are no valid
// sequence (overlong forms and surrogates refused).
int32_t utf8Escapes(const char16_t *s, int first, uint32_t *cp) {
    int32_t extra = first >= 0xC2 && first <= 0xDF ? 1 : first >= 0xE0 && first <= 0xEF ? 2
                    : first >= 0xF0 && first <= 0xF4 ? 3 : 0;
    if (extra == 0) return 0;
    uint32_t v = uint32_t(first) & (extra == 1 ? 0x1F : extra == 2 ? 0x0F : 0x07);
    for (int32_t k = 1; k <= extra; ++k) {
        int b = escapedByte(s + 3 * k);
        if (b < 0x80 || b > 0xBF) return 0;
        if (k == 1 && ((first == 0xE0 && b < 0xA0) || (first == 0xED && b > 0x9F) ||
                       (first == 0xF0 && b < 0x90) || (first == 0xF4 && b > 0x8F)))
            return 0;
        v = (v << 6) | uint32_t(b & 0x3F);
    }
    *cp = v;
    return extra + 1;
}

}  // namespace

int32_t Kelvane_DecodeStringW(char16_t *text) {
    if (!text) return 0;
    int32_t r = 0, w = 0, decoded = 0;
    while (text[r]) {
        int b = escapedByte(text + r);
        if (b <= 0) {  // "%00" stays: a zero would end the text
            text[w++] = text[r++];
            continue;
        }
        uint32_t cp = 0;
        int32_t span = b >= 0x80 ? utf8Escapes(text + r, b, &cp) : 0;
        if (span == 0) {
            cp = uint32_t(b);
            span = 1;
        }
        if (cp >= 0x10000) {
            text[w++] = char16_t(0xD800 + ((cp - 0x10000) >> 10));
            text[w++] = char16_t(0xDC00 + ((cp - 0x10000) & 0x3FF));
        } else {
            text[w++] = char16_t(cp);
        }
        r += 3 * span;
        ++decoded;
    }
    text[w] = 0;
    return decoded;
}

}  // namespace mx
