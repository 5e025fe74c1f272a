// Comparing, searching, splitting and testing texts. Units are compared
// exactly (ordinal, case-sensitive). Destinations are written within their
// capacity and stay terminated.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// Length in UTF-16 units (bounded by the capacity).
int32_t txtStrLen(TextIn s);

// Sign of the ordinal comparison of a and b: -1, 0 or 1.
int32_t txtStrCmp(TextIn a, TextIn b);

// 0-based index of the first occurrence of find in s, -1 if absent; an
// empty find is found at 0.
int32_t txtStrStr(TextIn s, TextIn find);

// 1-based position of the first occurrence of find in s, 0 if absent.
int32_t txtFindString(TextIn s, TextIn find);

// Splits s at its first delim unit: param = the text before it, s = the text
// after it (moved to the front). Result 1. Without delim in s: param = all of
// s, s becomes empty, result 0. A zero delim: result -1, nothing changed.
int32_t txtStrDelim(char16_t *s, int32_t scap, char16_t *param, int32_t pcap, char16_t delim);

// res = field number index (0-based) of list, fields being separated by runs
// of TABs (leading and trailing TABs make no field); res is emptied first and
// stays empty when there is no such field. Result 0.
int32_t txtGetSubString(TextIn list, int32_t index, char16_t *res, int32_t rcap);

// 1 when every unit is a digit "0" to "9" (also for an empty text), else 0.
int32_t txtIsDigitString(TextIn s);

// 1 when every unit has a code from 1 to 32 (also for an empty or absent
// text), else 0.
int32_t txtIsStringWhite(TextIn s);

}  // namespace mx
