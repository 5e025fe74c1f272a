#include "base/u16.h"

namespace mx {

int32_t u16FromLong(char16_t *dst, int32_t capacity, int32_t v) {
    char16_t tmp[12];
    int32_t n = 0;
    uint32_t mag = v < 0 ? 0u - uint32_t(v) : uint32_t(v);
    do {
        tmp[n++] = char16_t(u'0' + mag % 10);
        mag /= 10;
    } while (mag);
    if (v < 0) tmp[n++] = u'-';
    char16_t out[13];
    for (int32_t i = 0; i < n; ++i) out[i] = tmp[n - 1 - i];
    out[n] = 0;
    return u16Copy(dst, capacity, out);
}

int32_t u16FromAscii(char16_t *dst, int32_t capacity, const char *src) {
    if (!dst || capacity < 1) return 0;
    int32_t n = 0;
    if (src)
        while (n < capacity - 1 && src[n]) dst[n] = char16_t(static_cast<unsigned char>(src[n])), ++n;
    dst[n] = 0;
    return n;
}

}  // namespace mx
