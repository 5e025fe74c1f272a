// The known end of one character vector. A macro that appends to the same
// text again and again (StrCat in a loop) would otherwise search the whole
// text for its terminator on every append. The record is kept true by
// forgetting it whenever its storage may change behind the appender's back:
// an assignment into it, a call that is handed it, its release.
#pragma once
#include <cstddef>
#include <cstdint>

#include "engine/types.h"

namespace mx {

// True with *length set when the text at s (capacity units) is known to end
// there; the unit at *length is then its terminator. No side effects.
bool textEndKnown(const char16_t *s, int32_t capacity, int32_t *length);

// Records that the text at s ends at length (< capacity) and that the caller
// vouches for the units before it. Changes the stamp.
void textEndRemember(const char16_t *s, int32_t capacity, int32_t length);

// Forgets the record when the bytes at data may overlap its text.
void textEndForget(const void *data, size_t bytes);

// Changes whenever a text end is remembered: a call that changed it vouches
// for its record.
uint64_t textEndStamp();

// After a call with these arguments: forgets the record when an argument's
// storage overlaps it, unless the callee remembered the record itself since
// stamp (the stamp read before the call) for exactly that argument.
void textEndAfterCall(Value *const *args, int32_t count, uint64_t stamp);

}  // namespace mx
