// Colours written as HTML does: "#" and six hexadecimal digits.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// Reads "#RRGGBB" (digits in either case, exactly seven characters) into
// red, green and blue. Result 0; -1 for any other text, with red 0, green 0
// and blue 255 (set before reading).
int32_t numHtmlToRgb(TextIn html, int32_t *red, int32_t *green, int32_t *blue);

// dst = "#RRGGBB" in upper-case digits, a component outside 0 to 255
// counting as 255; cut to cap - 1 units. Result 0.
int32_t numRgbToHtml(int32_t red, int32_t green, int32_t blue, char16_t *dst, int32_t cap);

}  // namespace mx
