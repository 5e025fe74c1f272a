#include "interface/kelvane/kelvane_strings.h"

namespace mx {

namespace {

// The code point at text[*i] (a surrogate pair counts once, advancing *i);
// an unpaired surrogate is U+FFFD.
uint32_t codePointAt(const char16_t *text, int32_t length, int32_t *i) {
    uint32_t cp = text[*i];
    bool high = cp >= 0xD800 && cp < 0xDC00;
    if (high && *i + 1 < length && text[*i + 1] >= 0xDC00 && text[*i + 1] < 0xE000) {
        ++*i;
        return 0x10000 + ((cp - 0xD800) << 10) + (text[*i] - 0xDC00u);
    }
    return cp >= 0xD800 && cp < 0xE000 ? 0xFFFD : cp;
}

// The UTF-8 bytes of cp into b; returns their count.
int32_t encode(uint32_t cp, unsigned char b[4]) {
    if (cp < 0x80) {
        b[0] = static_cast<unsigned char>(cp);
        return 1;
    }
    int32_t n = cp < 0x800 ? 2 : cp < 0x10000 ? 3 : 4;
    static const unsigned char kLead[5] = {0, 0, 0xC0, 0xE0, 0xF0};
    for (int32_t k = n - 1; k > 0; --k, cp >>= 6) b[k] = static_cast<unsigned char>(0x80 | (cp & 0x3F));
    b[0] = static_cast<unsigned char>(kLead[n] | cp);
    return n;
}

}  // namespace

void kstrUtf8Bytes(const char16_t *text, int32_t length, KelvaneByteSink sink, void *context) {
    for (int32_t i = 0; text && i < length; ++i) {
        unsigned char b[4];
        sink(context, b, encode(codePointAt(text, length, &i), b));
    }
}

}  // namespace mx
