// The text built-ins whose work the helper library does: replacing,
// decoding, hashing and the MD5 digest.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// Replaces in s (capacity cap) every occurrence of find by replace, as the
// helper does with mode and its bits 4, 8 and 16 (all occurrences, cut to
// the capacity, no escapes) added. Result 0.
int32_t txtReplaceString(char16_t *s, int32_t cap, TextIn find, TextIn replace, int32_t mode);

// Decodes s in place with the helper (a text without terminator is first
// terminated at cap - 1). Result: the helper's.
int32_t txtDecodeString(char16_t *s, int32_t cap);

// The helper's hash of s reduced to 0 .. upperBound - 1.
int32_t txtCreateHash(TextIn s, int32_t upperBound);

// dst = the MD5 digest of s as 32 lower-case hexadecimal digits, cut to the
// capacity; empty for an empty or white s. Result 0.
int32_t txtMD5(TextIn s, char16_t *dst, int32_t cap);

}  // namespace mx
