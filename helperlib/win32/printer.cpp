// Helper library, Win32: the default printer and its device mode through
// the print spooler.
#include <windows.h>
#include <winspool.h>

#include "base/u16.h"
#include "helperlib/kelvane_printer.h"

namespace mx {

int32_t Kelvane_GetStandardPrinterW(char16_t *buffer, int32_t capacity, int32_t, int32_t, int32_t,
                                    int32_t) {
    wchar_t name[1024];
    DWORD size = DWORD(sizeof name / sizeof name[0]);
    if (!GetDefaultPrinterW(name, &size)) name[0] = 0;
    return u16Copy(buffer, capacity, reinterpret_cast<const char16_t *>(name));
}

int32_t Kelvane_GetPrinterDevmodeW(const char16_t *printer, int32_t, int32_t, void *buffer,
                                   int32_t size) {
    if (!printer || !*printer) return -1;
    wchar_t *name = const_cast<wchar_t *>(reinterpret_cast<const wchar_t *>(printer));
    HANDLE handle = nullptr;
    if (!OpenPrinterW(name, &handle, nullptr)) return -1;
    LONG needed = DocumentPropertiesW(nullptr, handle, name, nullptr, nullptr, 0);
    int32_t result = needed;
    if (buffer && needed > 0) {
        if (size < needed) {
            result = -1;
        } else {
            auto *mode = static_cast<DEVMODEW *>(buffer);
            result = DocumentPropertiesW(nullptr, handle, name, mode, nullptr, DM_OUT_BUFFER) == IDOK
                         ? int32_t(mode->dmSize + mode->dmDriverExtra)
                         : -1;
        }
    }
    ClosePrinter(handle);
    return result;
}

}  // namespace mx
