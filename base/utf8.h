// Conversions between UTF-16 and UTF-8 for the edges that speak UTF-8
// (file names and standard streams on Linux, the hosts' output). Unpaired
// surrogates become U+FFFD.
#pragma once
#include <cstdint>
#include <string>

namespace mx {

// The UTF-8 bytes of code point cp into b; returns their count (1 to 4).
inline int utf8Encode(uint32_t cp, char b[4]) {
    if (cp < 0x80) {
        b[0] = char(cp);
        return 1;
    }
    int n = cp < 0x800 ? 2 : cp < 0x10000 ? 3 : 4;
    static const unsigned char kLead[5] = {0, 0, 0xC0, 0xE0, 0xF0};
    for (int k = n - 1; k > 0; --k, cp >>= 6) b[k] = char(0x80 | (cp & 0x3F));
    b[0] = char(kLead[n] | cp);
    return n;
}

inline void utf8Append(std::string &out, uint32_t cp) {
    char b[4];
    out.append(b, size_t(utf8Encode(cp, b)));
}

// The code point at s[*i] of a text of n units: a surrogate pair counts once
// (advancing *i past its first half), an unpaired surrogate is U+FFFD.
inline uint32_t utf16CodePointAt(const char16_t *s, int64_t n, int64_t *i) {
    uint32_t c = s[*i];
    if (c >= 0xD800 && c < 0xDC00 && *i + 1 < n && s[*i + 1] >= 0xDC00 && s[*i + 1] < 0xE000) {
        ++*i;
        return 0x10000 + ((c - 0xD800) << 10) + (s[*i] - 0xDC00u);
    }
    return c >= 0xD800 && c < 0xE000 ? 0xFFFD : c;
}

// n units of s (n < 0: up to the terminator) as UTF-8.
inline std::string toUtf8(const char16_t *s, int64_t n = -1) {
    std::string out;
    if (!s) return out;
    if (n < 0)
        for (n = 0; s[n]; ++n) {
        }
    for (int64_t i = 0; i < n; ++i) utf8Append(out, utf16CodePointAt(s, n, &i));
    return out;
}

// One UTF-8 sequence read from the front of n bytes.
struct Utf8Read {
    uint32_t cp;     // the code point; U+FFFD for an invalid sequence
    int32_t length;  // bytes taken, at least 1 when n > 0
    bool valid;
    bool truncated;  // the bytes ended inside a sequence that was valid so far
};

// Decodes the sequence at s. Only the shortest form of a code point counts:
// over-long forms (C0 AF is not "/"), surrogates and code points above
// U+10FFFF are invalid. An invalid sequence takes its lead byte and the
// continuation bytes that were acceptable so far, so each one stands for
// one U+FFFD. No side effects.
inline Utf8Read utf8Decode(const unsigned char *s, size_t n) {
    if (n == 0) return {0xFFFD, 0, false, true};
    unsigned char b = s[0];
    if (b < 0x80) return {b, 1, true, false};
    // Continuation bytes and the range the first of them must lie in.
    int32_t extra = 0;
    unsigned char low = 0x80, high = 0xBF;
    if (b >= 0xC2 && b <= 0xDF) extra = 1;
    else if (b >= 0xE0 && b <= 0xEF) extra = 2, low = b == 0xE0 ? 0xA0 : 0x80, high = b == 0xED ? 0x9F : 0xBF;
    else if (b >= 0xF0 && b <= 0xF4) extra = 3, low = b == 0xF0 ? 0x90 : 0x80, high = b == 0xF4 ? 0x8F : 0xBF;
    else return {0xFFFD, 1, false, false};
    uint32_t cp = b & (0x3Fu >> extra);
    for (int32_t k = 1; k <= extra; ++k, low = 0x80, high = 0xBF) {
        if (size_t(k) >= n) return {0xFFFD, k, false, true};
        if (s[k] < low || s[k] > high) return {0xFFFD, k, false, false};
        cp = (cp << 6) | (s[k] & 0x3Fu);
    }
    return {cp, extra + 1, true, false};
}

// Code point cp as UTF-16 into u: one unit or a surrogate pair; returns the
// count (1 or 2).
inline int32_t utf16Encode(uint32_t cp, char16_t u[2]) {
    if (cp < 0x10000) return u[0] = char16_t(cp), 1;
    u[0] = char16_t(0xD800 + ((cp - 0x10000) >> 10));
    u[1] = char16_t(0xDC00 + ((cp - 0x10000) & 0x3FF));
    return 2;
}

inline void utf16Append(std::u16string &out, uint32_t cp) {
    char16_t u[2];
    out.append(u, size_t(utf16Encode(cp, u)));
}

// True when every sequence of the bytes is valid UTF-8.
inline bool utf8Valid(const std::string &s) {
    auto *bytes = reinterpret_cast<const unsigned char *>(s.data());
    for (size_t i = 0; i < s.size();) {
        Utf8Read r = utf8Decode(bytes + i, s.size() - i);
        if (!r.valid) return false;
        i += size_t(r.length);
    }
    return true;
}

// UTF-8 bytes as UTF-16; each invalid sequence becomes one U+FFFD.
inline std::u16string fromUtf8(const std::string &s) {
    std::u16string out;
    auto *bytes = reinterpret_cast<const unsigned char *>(s.data());
    for (size_t i = 0; i < s.size();) {
        Utf8Read r = utf8Decode(bytes + i, s.size() - i);
        utf16Append(out, r.cp);
        i += size_t(r.length);
    }
    return out;
}

}  // namespace mx
