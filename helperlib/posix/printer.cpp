// Helper library, Linux: the native build does not print, so there is no
// default printer and no device mode.
#include "base/u16.h"
#include "helperlib/kelvane_printer.h"

namespace mx {

int32_t Kelvane_GetStandardPrinterW(char16_t *buffer, int32_t capacity, int32_t, int32_t, int32_t,
                                    int32_t) {
    u16Copy(buffer, capacity, u"");
    return 0;
}

int32_t Kelvane_GetPrinterDevmodeW(const char16_t *, int32_t, int32_t, void *, int32_t) { return -1; }

}  // namespace mx
