// Numbers to text and back, remainders and the Deutsche Mark rate.
// Destinations are written within their capacity and stay terminated.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// Deutsche Mark to the Euro.
constexpr double kEuroRate = 1.95583;

// result = value in decimal, padded on the left with lead up to digits
// characters (at most 20; a "-" sign takes one of them), cut to cap - 1
// units. Result 0.
int32_t numIntToString(int32_t value, char16_t *result, int32_t cap, char16_t digits, char16_t lead);

// Reads s as a decimal long: leading white space, an optional sign, digits
// up to the first other character; no digits give 0, values beyond the
// 32-bit range the nearest limit.
int32_t numStringToInt(TextIn s);

// *value = the number in s read with the decimal separator sep: only digits,
// "+", "-" and sep (read as the point) are kept, at most 99 of them, then the
// kept text is read as far as it forms a number (nothing: 0). Result 0.
int32_t numStringToFloat(TextIn s, double *value, char16_t sep);

// Remainder of base / divideBy truncated toward zero, with the sign of base.
// A divisor of 0 answers base (the quotient counts as 0); the smallest long
// modulo -1 answers 0.
int32_t numModulo(int32_t base, int32_t divideBy);

// *euro = dm / 1.95583 and *dm = euro * 1.95583, unrounded. Result 0.
int32_t numDmToEuro(double dm, double *euro);
int32_t numEuroToDm(double euro, double *dm);

}  // namespace mx
