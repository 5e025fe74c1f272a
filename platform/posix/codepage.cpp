// The native build converts with the tables of base/codepage.h.
#include "base/codepage.h"
#include "platform/codepage.h"

namespace mx {

int32_t mxp_WideToCodePage(uint32_t codePage, const char16_t *text, int32_t n, char *out,
                           int32_t capacity) {
    return cpWideToBytes(codePage, text, n, out, capacity);
}

int32_t mxp_CodePageToWide(uint32_t codePage, const char *bytes, int32_t n, char16_t *out,
                           int32_t capacity) {
    return cpBytesToWide(codePage, bytes, n, out, capacity);
}

}  // namespace mx
