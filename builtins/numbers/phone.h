// Telephone numbers in international form.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// dst = number (its first 99 units, blanks around removed) with the country
// prefix put in front: instead of one leading "0", or before the whole
// number; a number that is empty or starts with "+" or "00" stays as it is.
// Cut to cap - 1 units. Result 0.
int32_t numPhoneToInternational(TextIn number, char16_t *dst, int32_t cap, TextIn prefix);

}  // namespace mx
