// Formatting the four numbers of a file version with a macro's pattern.
#pragma once
#include <cstdint>

namespace mx {

// Formats pattern with the four numbers in order into buf, cut to capacity
// and terminated. Directives follow the printf conventions:
//   directive = "%" flags* width? ("." precision)? length* conversion
//   flags = "-" | "+" | " " | "#" | "0";  length = h | l | L | q | j | z | t
// d, i, u, x, X and o print the next number, c its character; any other
// conversion letter prints the next number in decimal; "%%" gives "%"; a
// directive after the fourth prints nothing. Nothing but the four numbers is
// ever read. Returns the length of the formatted text before cutting.
int32_t vfFormat(char16_t *buf, int32_t capacity, const char16_t *pattern, const uint16_t numbers[4]);

}  // namespace mx
