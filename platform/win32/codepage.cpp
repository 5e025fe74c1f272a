// Code-page conversions through the system: WideCharToMultiByte and
// MultiByteToWideChar with no flags, so that the system's best-fit and
// default characters apply.
#include <windows.h>

#include "platform/codepage.h"
#include "platform/win32/wide.h"

namespace mx {

namespace {
bool known(uint32_t codePage) {
    return codePage == kCodePageIso8859_15 || codePage == kCodePageIso8859_1 ||
           codePage == kCodePageWindows1252 || codePage == kCodePageUtf8;
}
}  // namespace

int32_t mxp_WideToCodePage(uint32_t codePage, const char16_t *text, int32_t n, char *out,
                           int32_t capacity) {
    if (!known(codePage) || !text || n < 1 || capacity < 0 || (capacity > 0 && !out)) return 0;
    return WideCharToMultiByte(codePage, 0, wide(text), n, out,
                               capacity, nullptr, nullptr);
}

int32_t mxp_CodePageToWide(uint32_t codePage, const char *bytes, int32_t n, char16_t *out,
                           int32_t capacity) {
    if (!known(codePage) || !bytes || n < 1 || capacity < 0 || (capacity > 0 && !out)) return 0;
    return MultiByteToWideChar(codePage, 0, bytes, n, wide(out), capacity);
}

}  // namespace mx
