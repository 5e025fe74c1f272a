#include "helperlib/kelvane_strings.h"
#include "base/u16.h"
#include "base/utf8.h"

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
// sequence.
int32_t utf8Escapes(const char16_t *s, int first, uint32_t *cp) {
    unsigned char bytes[4] = {static_cast<unsigned char>(first)};
    size_t n = 1;
    for (int b; n < 4 && (b = escapedByte(s + 3 * n)) >= 0; ++n) bytes[n] = static_cast<unsigned char>(b);
    Utf8Read r = utf8Decode(bytes, n);
    if (!r.valid) return 0;
    *cp = r.cp;
    return r.length;
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
        w += utf16Encode(cp, text + w);
        r += 3 * span;
        ++decoded;
    }
    text[w] = 0;
    return decoded;
}

}  // namespace mx
