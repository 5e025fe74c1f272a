#include "base/u16.h"
#include "helperlib/kelvane_text.h"

namespace mx {

int32_t KelvaneCopyStringW(char16_t *dst, const char16_t *text, int32_t capacity) {
    return u16Copy(dst, capacity, text);
}

int32_t KelvaneAppendStringW(char16_t *dst, const char16_t *text, int32_t capacity) {
    return u16Append(dst, capacity, text);
}

}  // namespace mx
