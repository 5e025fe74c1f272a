// Helper library: bounded text copies.
#pragma once
#include <cstdint>

namespace mx {

// Copies text into dst, cut to capacity - 1 units and always terminated.
// Returns the number of units copied (0 when capacity < 1).
int32_t KelvaneCopyStringW(char16_t *dst, const char16_t *text, int32_t capacity);

// Appends text to the text in dst within capacity, always terminated.
// Returns the new length.
int32_t KelvaneAppendStringW(char16_t *dst, const char16_t *text, int32_t capacity);

}  // namespace mx
