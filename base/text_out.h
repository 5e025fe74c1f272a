// A bounded writer into a UTF-16 buffer: it keeps at most capacity - 1 units,
// cuts everything after that, and leaves the buffer terminated at all times.
#pragma once
#include <cstdint>

namespace mx {

struct TextOut {
    char16_t *buf;
    int32_t capacity;
    int32_t len = 0;

    TextOut(char16_t *b, int32_t c) : buf(b), capacity(c) {
        if (buf && capacity > 0) buf[0] = 0;
    }
    void put(char16_t c) {
        if (len >= capacity - 1) return;
        buf[len++] = c;
        buf[len] = 0;
    }
    void text(const char16_t *s) {
        for (; s && *s; ++s) put(*s);
    }
    void ascii(const char *s, const char *end) {
        for (; s < end; ++s) put(char16_t(static_cast<unsigned char>(*s)));
    }
    // v in decimal with at least minDigits digits (zeros in front); a "-"
    // before negative values.
    void decimal(int64_t v, int32_t minDigits = 1) {
        if (v < 0) put(u'-');
        uint64_t mag = v < 0 ? 0u - uint64_t(v) : uint64_t(v);
        char16_t rev[20];
        int32_t n = 0;
        do {
            rev[n++] = char16_t(u'0' + mag % 10);
            mag /= 10;
        } while (mag);
        for (int32_t i = n; i < minDigits; ++i) put(u'0');
        while (n > 0) put(rev[--n]);
    }
};

}  // namespace mx
