// Report engine binding, Linux: no printers, so no device context.
#include "report/report_printer.h"

namespace mx {

void *reportCreatePrinterDC(const char16_t *, const void *) { return nullptr; }

void reportDeletePrinterDC(void *) {}

}  // namespace mx
