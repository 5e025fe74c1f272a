// Conversions between UTF-16 and the code pages of XML files: 28605
// (ISO-8859-15), 28591 (ISO-8859-1), 1252 (WINDOWS-1252) and 65001 (UTF-8).
// Windows uses the system's conversions; the native build has tables of its
// own that give "?" where the Windows conversion may choose a best-fit
// character (see docs/xml.md).
#pragma once
#include <cstdint>

#include "base/codepage.h"

namespace mx {

// Converts n > 0 units of text to the code page. A character the code page
// cannot hold becomes its best-fit character where the platform has one,
// otherwise "?"; an unpaired surrogate becomes U+FFFD in UTF-8. With capacity
// 0 only counts: returns the number of bytes needed. Otherwise writes at
// most capacity bytes to out (not terminated) and returns the number
// written. Returns 0 for an unknown code page, n < 1 or a capacity too small.
int32_t mxp_WideToCodePage(uint32_t codePage, const char16_t *text, int32_t n, char *out,
                           int32_t capacity);

// Converts n > 0 bytes of the code page to UTF-16; an invalid UTF-8 sequence
// becomes U+FFFD. Capacity 0 counts the units needed; otherwise writes at
// most capacity units (not terminated) and returns the number written.
// Returns 0 for an unknown code page, n < 1 or a capacity too small.
int32_t mxp_CodePageToWide(uint32_t codePage, const char *bytes, int32_t n, char16_t *out,
                           int32_t capacity);

}  // namespace mx
