// The clipboard's Unicode text, with the host window as the clipboard's
// owner while it is open. Every open is closed again on every path.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// dest = the clipboard's text, at most capacity - 1 units, terminated.
// Returns 0; 1 with dest unchanged when there is no text, the clipboard
// cannot be opened (always, without a desktop) or the text cannot be read.
int32_t dskReadClipboard(WindowHandle owner, char16_t *dest, int32_t capacity);

// Puts the first length units of text on the clipboard as its only content.
// Returns 0 when the clipboard took it, 1 on failure (nothing is leaked).
int32_t dskWriteClipboard(WindowHandle owner, const char16_t *text, int32_t length);

}  // namespace mx
