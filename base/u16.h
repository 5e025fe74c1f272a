// Small helpers for terminated UTF-16 texts. Every copy is bounded by a
// capacity in code units, terminator included, and always terminates.
#pragma once
#include <cstdint>

namespace mx {

// Length of a terminated text; 0 for an absent one.
inline int32_t u16Len(const char16_t *s) {
    int32_t n = 0;
    if (s)
        while (s[n]) ++n;
    return n;
}

// Ordinal comparison by code units: <0, 0, >0. Absent texts read as empty.
inline int u16Cmp(const char16_t *a, const char16_t *b) {
    if (!a) a = u"";
    if (!b) b = u"";
    while (*a && *a == *b) ++a, ++b;
    return int(*a) - int(*b);
}

inline bool u16Eq(const char16_t *a, const char16_t *b) { return u16Cmp(a, b) == 0; }

// Copies at most capacity - 1 units of src (absent: empty) and terminates.
// Returns the number of units copied. Does nothing when capacity < 1.
inline int32_t u16Copy(char16_t *dst, int32_t capacity, const char16_t *src) {
    if (!dst || capacity < 1) return 0;
    int32_t n = 0;
    if (src)
        while (n < capacity - 1 && src[n]) dst[n] = src[n], ++n;
    dst[n] = 0;
    return n;
}

// Appends src after the text in dst within the capacity; returns the new length.
inline int32_t u16Append(char16_t *dst, int32_t capacity, const char16_t *src) {
    if (!dst || capacity < 1) return 0;
    int32_t len = u16Len(dst);
    if (len >= capacity) return len;
    return len + u16Copy(dst + len, capacity - len, src);
}

// White space for every text rule of the library: the codes 1 to 32.
inline bool u16IsWhite(char16_t c) { return c >= 1 && c <= 32; }

// True when the first n units of s (n < 0: up to the terminator) are all
// white; an absent or empty text counts as white. A terminator within the n
// units ends the text.
inline bool u16IsWhiteText(const char16_t *s, int32_t n = -1) {
    for (int32_t i = 0; s && (n < 0 || i < n) && s[i]; ++i)
        if (!u16IsWhite(s[i])) return false;
    return true;
}

// The value of a hexadecimal digit (either case), -1 for anything else.
inline int u16HexDigit(char16_t c) {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return -1;
}

// Writes the decimal form of v into dst (capacity at least 12 suffices).
int32_t u16FromLong(char16_t *dst, int32_t capacity, int32_t v);

// Copies an ASCII text into a UTF-16 destination within its capacity.
int32_t u16FromAscii(char16_t *dst, int32_t capacity, const char *src);

}  // namespace mx
