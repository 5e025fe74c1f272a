// Character case mapping: the platform's simple one-to-one Unicode mapping
// of UTF-16 code units. Windows answers with its own tables; the native build
// agrees with them for Latin-1 and Latin Extended-A (for example "ß" has no
// capital, "ÿ" maps to "Ÿ", the dotless and dotted "i" stay as they are).
#pragma once
#include <cstdint>

namespace mx {

// The capital and the small form of one code unit; a unit without one comes
// back unchanged. No side effects.
char16_t mxp_CharUpper(char16_t c);
char16_t mxp_CharLower(char16_t c);

// Map the first n units of s in place (n < 1: nothing). Units beyond n are
// not touched, terminators included.
void mxp_UpperText(char16_t *s, int32_t n);
void mxp_LowerText(char16_t *s, int32_t n);

}  // namespace mx
