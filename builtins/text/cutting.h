// Cutting texts: taking a part of a text into a destination, and removing
// characters from a text in place. Positions are 1-based. Every destination
// (dst, cap) is written within its capacity and stays terminated; a capacity
// below 1 leaves it untouched. Source and destination may be one variable.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// dst = Chars units of src from position Pos (below 1 counts as 1), fewer
// when src or the capacity ends first; empty when none remain. Result 0.
int32_t txtMidString(TextIn src, int32_t pos, int32_t chars, char16_t *dst, int32_t cap);

// txtMidString from position 1. Result 0.
int32_t txtLeftString(TextIn src, int32_t chars, char16_t *dst, int32_t cap);

// dst = the last n units of src, n the smallest of Chars, the length and
// cap - 1; empty when n < 1. Result 0.
int32_t txtRightString(TextIn src, int32_t chars, char16_t *dst, int32_t cap);

// Removes Chars units of s from position Pos (below 1 counts as 1); a stretch
// reaching past the end cuts s before Pos. Pos beyond the end, or Chars below
// 1, changes nothing. Result 0.
int32_t txtStripMid(char16_t *s, int32_t cap, int32_t pos, int32_t chars);

// txtStripMid from position 1. Result 0.
int32_t txtStripLeft(char16_t *s, int32_t cap, int32_t chars);

// Removes the last Chars units (all when Chars reaches the length); a
// negative Chars changes nothing. Result 0.
int32_t txtStripRight(char16_t *s, int32_t cap, int32_t chars);

// Replaces the trailing units with codes below 32 by zeros, walking back from
// index min(length, cap - 1); a blank or any other unit stops the walk.
// Result 0.
int32_t txtStripControl(char16_t *s, int32_t cap);

// Keeps only the digits "0" to "9" of s, in their order. Result 0.
int32_t txtStripNonDigits(char16_t *s, int32_t cap);

}  // namespace mx
