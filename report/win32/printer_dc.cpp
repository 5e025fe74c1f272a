// Report engine binding, Win32: printer device contexts.
#include <windows.h>

#include "report/report_printer.h"

namespace mx {

void *reportCreatePrinterDC(const char16_t *printer, const void *devmode) {
    return CreateDCW(nullptr, reinterpret_cast<const wchar_t *>(printer), nullptr,
                     static_cast<const DEVMODEW *>(devmode));
}

void reportDeletePrinterDC(void *dc) {
    if (dc) DeleteDC(static_cast<HDC>(dc));
}

}  // namespace mx
