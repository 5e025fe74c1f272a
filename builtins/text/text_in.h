// A text argument as the built-ins receive it: the characters of a character
// vector and its capacity (element count, terminator included). A vector
// whose every element is filled has no terminator, so every reader stops at
// the capacity as well as at the first zero unit.
#pragma once
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/heap.h"

namespace mx {

struct TextIn {
    const char16_t *s = nullptr;
    int32_t cap = 0;

    TextIn() = default;
    TextIn(const char16_t *text, int32_t capacity) : s(text), cap(capacity) {}
    // A terminated literal; its capacity is its array size.
    template <int32_t N>
    TextIn(const char16_t (&literal)[N]) : s(literal), cap(N) {}
    // A string object (tests); capacity: its length and the terminator.
    TextIn(const std::u16string &text) : s(text.c_str()), cap(int32_t(text.size()) + 1) {}
};

// Length of a text bounded by its capacity: the index of the first zero
// unit, or the capacity when there is none (0 for an absent text).
inline int32_t txtLen(const char16_t *s, int32_t cap) {
    int32_t n = 0;
    if (s)
        while (n < cap && s[n]) ++n;
    return n;
}

inline int32_t txtLen(TextIn t) { return txtLen(t.s, t.cap); }

// Copies n units from src to dst, correct when the two overlap (the source
// of an in-place function is often its destination).
inline void txtMove(char16_t *dst, const char16_t *src, int32_t n) {
    if (n <= 0 || dst == src) return;
    if (dst < src)
        for (int32_t i = 0; i < n; ++i) dst[i] = src[i];
    else
        for (int32_t i = n - 1; i >= 0; --i) dst[i] = src[i];
}

// Bounded copy of a text argument into dst: at most cap - 1 units, always
// terminated, correct when dst is the source itself. Returns the units copied
// (0 and nothing written when cap < 1).
inline int32_t txtCopy(char16_t *dst, int32_t cap, TextIn src) {
    if (!dst || cap < 1) return 0;
    int32_t n = txtLen(src);
    if (n > cap - 1) n = cap - 1;
    txtMove(dst, src.s, n);
    dst[n] = 0;
    return n;
}

// A terminated form of a text argument, for functions that read up to a
// terminator: the argument's own storage when it is terminated within its
// capacity, otherwise a private terminated copy (an empty text when memory
// is missing). Valid while the argument and this object live.
class TextZ {
public:
    explicit TextZ(TextIn t) {
        int32_t n = txtLen(t);
        if (t.s && n < t.cap) {
            text_ = t.s;
            return;
        }
        copy_ = static_cast<char16_t *>(heapMalloc(sizeof(char16_t) * (size_t(n) + 1)));
        if (!copy_) return;
        txtMove(copy_, t.s, n);
        copy_[n] = 0;
        text_ = copy_;
    }
    ~TextZ() { std::free(copy_); }
    TextZ(const TextZ &) = delete;
    TextZ &operator=(const TextZ &) = delete;
    const char16_t *get() const { return text_; }

private:
    const char16_t *text_ = u"";
    char16_t *copy_ = nullptr;
};

}  // namespace mx
