// The code-page tables and conversions (see base/codepage.h).
#include "base/codepage.h"

#include <algorithm>
#include <array>

#include "base/utf8.h"

namespace mx {

namespace {

using UpperHalf = std::array<char16_t, 128>;  // characters of the bytes 0x80 to 0xFF

constexpr UpperHalf latin1Half() {
    UpperHalf t{};
    for (int i = 0; i < 128; ++i) t[size_t(i)] = char16_t(0x80 + i);
    return t;
}

constexpr UpperHalf latin9Half() {
    UpperHalf t = latin1Half();
    t[0xA4 - 0x80] = 0x20AC;  // euro sign
    t[0xA6 - 0x80] = 0x0160;
    t[0xA8 - 0x80] = 0x0161;
    t[0xB4 - 0x80] = 0x017D;
    t[0xB8 - 0x80] = 0x017E;
    t[0xBC - 0x80] = 0x0152;
    t[0xBD - 0x80] = 0x0153;
    t[0xBE - 0x80] = 0x0178;
    return t;
}

// 0x80 to 0x9F hold typographic characters; the five bytes without one
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control of the same number.
constexpr UpperHalf windows1252Half() {
    UpperHalf t = latin1Half();
    constexpr char16_t low[32] = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
        0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    };
    for (int i = 0; i < 32; ++i) t[size_t(i)] = low[i];
    return t;
}

constexpr UpperHalf kLatin1 = latin1Half();
constexpr UpperHalf kLatin9 = latin9Half();
constexpr UpperHalf kWindows1252 = windows1252Half();

// A character and its byte, sorted by character for the reverse lookup.
struct Pair {
    char16_t c;
    unsigned char byte;
};
using ReverseTable = std::array<Pair, 128>;

ReverseTable reverseOf(const UpperHalf &half) {
    ReverseTable r{};
    for (int i = 0; i < 128; ++i) r[size_t(i)] = {half[size_t(i)], static_cast<unsigned char>(0x80 + i)};
    std::sort(r.begin(), r.end(), [](const Pair &a, const Pair &b) { return a.c < b.c; });
    return r;
}

const UpperHalf *upperHalf(uint32_t codePage) {
    switch (codePage) {
        case kCodePageIso8859_1: return &kLatin1;
        case kCodePageIso8859_15: return &kLatin9;
        case kCodePageWindows1252: return &kWindows1252;
        default: return nullptr;
    }
}

const ReverseTable &reverseTable(uint32_t codePage) {
    static const ReverseTable latin1 = reverseOf(kLatin1);
    static const ReverseTable latin9 = reverseOf(kLatin9);
    static const ReverseTable windows1252 = reverseOf(kWindows1252);
    return codePage == kCodePageIso8859_1 ? latin1 : codePage == kCodePageIso8859_15 ? latin9 : windows1252;
}

// Collects output bytes or units within a capacity; capacity 0 only counts.
template <class T>
struct Sink {
    T *out;
    int32_t capacity;
    int32_t count = 0;
    bool overflow = false;
    void put(T v) {
        if (capacity > 0) {
            if (count >= capacity) {
                overflow = true;
                return;
            }
            out[count] = v;
        }
        ++count;
    }
    int32_t result() const { return overflow ? 0 : count; }
};

int32_t wideTo8Bit(uint32_t codePage, const char16_t *text, int32_t n, Sink<char> &sink) {
    const ReverseTable &reverse = reverseTable(codePage);
    for (int32_t i = 0; i < n && !sink.overflow; ++i) {
        char16_t c = text[i];
        if (c < 0x80) {
            sink.put(char(c));
            continue;
        }
        auto it = std::lower_bound(reverse.begin(), reverse.end(), c,
                                   [](const Pair &p, char16_t v) { return p.c < v; });
        sink.put(it != reverse.end() && it->c == c ? char(it->byte) : '?');
    }
    return sink.result();
}

int32_t wideToUtf8(const char16_t *text, int32_t n, Sink<char> &sink) {
    for (int64_t i = 0; i < n && !sink.overflow; ++i) {
        char b[4];
        int count = utf8Encode(utf16CodePointAt(text, n, &i), b);
        for (int k = 0; k < count; ++k) sink.put(b[k]);
    }
    return sink.result();
}

// Each invalid sequence becomes one U+FFFD.
int32_t utf8ToWide(const unsigned char *s, int32_t n, Sink<char16_t> &sink) {
    for (int32_t i = 0; i < n && !sink.overflow;) {
        Utf8Read r = utf8Decode(s + i, size_t(n - i));
        char16_t u[2];
        for (int32_t k = 0, count = utf16Encode(r.cp, u); k < count; ++k) sink.put(u[k]);
        i += r.length;
    }
    return sink.result();
}

}  // namespace

int32_t cpWideToBytes(uint32_t codePage, const char16_t *text, int32_t n, char *out, int32_t capacity) {
    if (!text || n < 1 || capacity < 0 || (capacity > 0 && !out)) return 0;
    Sink<char> sink{out, capacity};
    if (codePage == kCodePageUtf8) return wideToUtf8(text, n, sink);
    if (!upperHalf(codePage)) return 0;
    return wideTo8Bit(codePage, text, n, sink);
}

int32_t cpBytesToWide(uint32_t codePage, const char *bytes, int32_t n, char16_t *out, int32_t capacity) {
    if (!bytes || n < 1 || capacity < 0 || (capacity > 0 && !out)) return 0;
    Sink<char16_t> sink{out, capacity};
    auto *s = reinterpret_cast<const unsigned char *>(bytes);
    if (codePage == kCodePageUtf8) return utf8ToWide(s, n, sink);
    const UpperHalf *half = upperHalf(codePage);
    if (!half) return 0;
    for (int32_t i = 0; i < n && !sink.overflow; ++i)
        sink.put(s[i] < 0x80 ? char16_t(s[i]) : (*half)[size_t(s[i] - 0x80)]);
    return sink.result();
}

}  // namespace mx
