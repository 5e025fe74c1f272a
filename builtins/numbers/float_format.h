// Doubles as text: fixed decimals with separators, and digits spelt out.
// Destinations are written within their capacity and stay terminated.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// dst = value in fixed notation with fract decimals (see fmtFixed in
// base/number_format.h), sep before the decimals and thousand (0: none)
// between groups of three integer digits. Result 0; -1 with dst empty for a
// value too long for the number buffers, infinite or NaN.
int32_t numFloatToString(double value, char16_t *dst, int32_t cap, char16_t fract, char16_t thousand,
                         char16_t sep);

// dst = the decimal digits of |value| truncated to a long (the long
// conversion: beyond the 32-bit range 2147483648), each spelt by its name
// (German, English for language 44, from the string table) and joined by
// separator; a name is added only while the capacity left exceeds the
// separator's length plus 20. Result 0.
int32_t numFloatToDigitNames(double value, char16_t *dst, int32_t cap, TextIn separator, int32_t language);

}  // namespace mx
