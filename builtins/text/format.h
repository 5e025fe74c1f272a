// Formatted composition of texts (MakeText1 to MakeText5 and MakeTextInt):
// the printf conventions for wide texts, done here without the C library so
// that a pattern can only ever read the parameters it was given.
//
// Pattern grammar:
//   pattern   := { literal | "%%" | directive }
//   directive := "%" flags [width] ["." [precision]] [length] conversion
//   flags     := { "-" | "+" | " " | "#" | "0" }
//   width     := digits | "*"          precision := digits | "*"
//   length    := "hh" | "h" | "l" | "ll" | "L" | "j" | "z" | "t" | "w"
//              | "I" | "I32" | "I64"
//   conversion: d i u o x X c C s S e E f F g G a A n %
// A parameter is a text or a long. What a conversion makes of the other kind
// (a text for "%d", a long for "%s"), and of a directive without a parameter
// left, is stated at txtFormat.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// One parameter: a text, or a long when text.s is absent.
struct FormatArg {
    TextIn text;
    int32_t value = 0;
};

// Formats pattern with args[0..count) into dst: at most cap - 1 units and a
// terminator. Texts for numeric conversions and "*" count as their decimal
// value (read as StringToInt reads), longs for "%s" as their decimal text;
// "%c" takes a text's first unit or a long's low 16 bits; "%n" writes and
// takes nothing; a directive with no parameter left, an unknown conversion
// and a directive cut off by the end of the pattern are written as they
// stand. Float conversions show at most 100 decimals. Returns the number of
// units written, or -1 when the text did not fit with its terminator (dst
// then holds as much as fits). cap < 1: nothing written, -1.
int32_t txtFormat(char16_t *dst, int32_t cap, TextIn pattern, const FormatArg *args, int32_t count);

// MakeText1..5: the parameters are count texts.
int32_t txtMakeText(char16_t *dst, int32_t cap, TextIn pattern, const TextIn *params, int32_t count);

// MakeTextInt: the one parameter is a long.
int32_t txtMakeTextInt(char16_t *dst, int32_t cap, TextIn pattern, int32_t value);

}  // namespace mx
