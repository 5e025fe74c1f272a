// Padding and trimming texts in place. Every function writes within the
// capacity cap of s and leaves s terminated; a capacity below 1 leaves it
// untouched.
#pragma once
#include <cstdint>

namespace mx {

// Pads s on the right with fill up to Lng units, or cuts it to its first Lng
// units; never beyond cap - 1. A negative Lng counts as 0. Result 0.
int32_t txtFillStringRight(char16_t *s, int32_t cap, int32_t lng, char16_t fill);

// Pads s on the left with fill up to Lng units, or keeps its last Lng units
// (the text is reversed, padded on the right and reversed again). A negative
// Lng counts as 0. Result 0.
int32_t txtFillStringLeft(char16_t *s, int32_t cap, int32_t lng, char16_t fill);

// Terminates s at cap - 1, then replaces the trailing units equal to c by
// zeros. Result 0.
int32_t txtTrimRight(char16_t *s, int32_t cap, char16_t c);

// Removes the leading units equal to c (c = 0: no change), moving the rest to
// the front, at most cap - 1 units. Result 0.
int32_t txtTrimLeft(char16_t *s, int32_t cap, char16_t c);

}  // namespace mx
