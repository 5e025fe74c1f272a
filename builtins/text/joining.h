// Joining texts: appending, plain copies and enclosing in a character.
// Destinations are written within their capacity and stay terminated.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// Appends at most room = cap - (length of s + 1) units of add to s. Result 1
// when room was at least 1 (also when add was cut), else 0 and s unchanged.
int32_t txtStrCat(char16_t *s, int32_t cap, TextIn add);

// txtStrCat for a text whose length len (txtLen(s, cap)) is known; *end
// receives its length afterwards.
int32_t txtStrCatAt(char16_t *s, int32_t cap, int32_t len, TextIn add, int32_t *end);

// Bounded copy of src into dst, characters unchanged (AsciiToAnsi and
// AnsiNachAscii). Result 1.
int32_t txtCopyText(TextIn src, char16_t *dst, int32_t cap);

// s = c, s, c, cut to cap - 1 units and terminated; a zero c adds nothing.
// A capacity below 3 changes nothing. Result 0.
int32_t txtEncloseString(char16_t *s, int32_t cap, char16_t c);

}  // namespace mx
