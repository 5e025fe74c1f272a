// Finding a pattern in a text in time linear in both (Knuth-Morris-Pratt):
// the text functions search texts of any length a macro can build, and a
// naive search costs length times pattern length on texts like "aaa...ab".
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace mx {

class U16Finder {
public:
    // Prepares the search for the m units of pattern (kept by reference: the
    // pattern must outlive the finder). May throw std::bad_alloc.
    U16Finder(const char16_t *pattern, int32_t m);

    // Index of the first occurrence in text[from, n), or -1. An empty
    // pattern occurs at from.
    int32_t find(const char16_t *text, int32_t n, int32_t from = 0) const;

    // Marks in starts[i] (for i < n) whether an occurrence begins at i;
    // occurrences may overlap.
    void markAll(const char16_t *text, int32_t n, std::vector<bool> &starts) const;

private:
    const char16_t *p_;
    int32_t m_;
    std::vector<int32_t> fail_;  // length of the longest proper border of p_[0..i]
};

}  // namespace mx
