// Helper library: the default printer and its device mode. A machine
// without printers (and the Linux build, which has no printing) answers
// "no printer".
#pragma once
#include <cstdint>

namespace mx {

// Writes the default printer's name into buffer (cut to capacity - 1 units,
// terminated; empty when there is none). The four reserved words are
// ignored. Returns the name's length, 0 when there is no default printer.
int32_t Kelvane_GetStandardPrinterW(char16_t *buffer, int32_t capacity, int32_t reserved1,
                                    int32_t reserved2, int32_t reserved3, int32_t reserved4);

// The device mode block of printer: with buffer absent and size 0 returns
// the number of bytes the block needs; with a buffer of size bytes fills it
// and returns the bytes written. Below 1 when the printer does not exist or
// has no device mode (or the buffer is too small). The reserved words are
// ignored.
int32_t Kelvane_GetPrinterDevmodeW(const char16_t *printer, int32_t reserved1, int32_t reserved2,
                                   void *buffer, int32_t size);

}  // namespace mx
