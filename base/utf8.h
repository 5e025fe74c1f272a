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

// UTF-8 bytes as UTF-16; malformed bytes become U+FFFD.
inline std::u16string fromUtf8(const std::string &s) {
    std::u16string out;
    for (size_t i = 0; i < s.size();) {
        unsigned char b = static_cast<unsigned char>(s[i]);
        int extra = b < 0x80 ? 0 : (b >> 5) == 6 ? 1 : (b >> 4) == 14 ? 2 : (b >> 3) == 30 ? 3 : -1;
        uint32_t cp = extra == 0 ? b : extra == 1 ? b & 0x1F : extra == 2 ? b & 0x0F : b & 0x07;
        bool ok = extra >= 0 && i + size_t(extra) < s.size() + (extra == 0 ? 1 : 0);
        for (int k = 1; ok && k <= extra; ++k) {
            unsigned char c = static_cast<unsigned char>(s[i + size_t(k)]);
            if ((c & 0xC0) != 0x80) ok = false;
            else cp = (cp << 6) | (c & 0x3F);
        }
        if (!ok) {
            out += char16_t(0xFFFD);
            ++i;
            continue;
        }
        i += size_t(extra) + 1;
        if (cp >= 0x10000) {
            cp -= 0x10000;
            out += char16_t(0xD800 + (cp >> 10));
            out += char16_t(0xDC00 + (cp & 0x3FF));
        } else {
            out += char16_t(cp);
        }
    }
    return out;
}

}  // namespace mx
