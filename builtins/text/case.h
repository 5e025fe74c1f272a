// Case mapping and letter tests with the platform's Unicode tables.
#pragma once
#include <cstdint>

namespace mx {

// Terminates s at cap - 1, then maps the whole text in place. Result 0.
int32_t txtStringToUpper(char16_t *s, int32_t cap);
int32_t txtStringToLower(char16_t *s, int32_t cap);

// The mapped code of the character in the low 16 bits of ch.
int32_t txtToUpper(int32_t ch);
int32_t txtToLower(int32_t ch);

// 1 when the character in the low 16 bits of ch is a letter (a letter or a
// digit), else 0.
int32_t txtIsAlpha(int32_t ch);
int32_t txtIsAlphaNumeric(int32_t ch);

}  // namespace mx
