// Doubles in fixed notation, rounded exactly: the number formatting of the
// library that needs no operating system.
#pragma once
#include <cstdint>

namespace mx {

// dst = value rounded to fract decimals (to nearest on the exact binary
// value, ties to even), decimal separator sep before the decimals, thousand
// (0: none) between groups of three integer digits, "-" in front of a
// negative value; cut to cap - 1 units and terminated. Returns 0; -1 with
// dst empty when the n rounded digits give n + n/3 + 6 >= 50 (such a text
// has no place in the library's number buffers), and for an infinite or NaN
// value.
int32_t fmtFixed(double value, int32_t fract, char16_t thousand, char16_t sep, char16_t *dst, int32_t cap);

}  // namespace mx
