// The printer device context the extended print hands to the engine.
#pragma once

namespace mx {

// A device context for printer with the device mode block devmode; absent
// when none can be made (always on Linux, which has no printers).
void *reportCreatePrinterDC(const char16_t *printer, const void *devmode);

// Deletes a device context made by reportCreatePrinterDC; absent does nothing.
void reportDeletePrinterDC(void *dc);

}  // namespace mx
