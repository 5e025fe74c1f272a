// Case mapping with the user interface's own buffers functions.
#include <windows.h>

#include "platform/casemap.h"
#include "platform/win32/wide.h"

namespace mx {

char16_t mxp_CharUpper(char16_t c) {
    wchar_t one[1] = {wchar_t(c)};
    CharUpperBuffW(one, 1);
    return char16_t(one[0]);
}

char16_t mxp_CharLower(char16_t c) {
    wchar_t one[1] = {wchar_t(c)};
    CharLowerBuffW(one, 1);
    return char16_t(one[0]);
}

void mxp_UpperText(char16_t *s, int32_t n) {
    if (s && n > 0) CharUpperBuffW(wide(s), DWORD(n));
}

void mxp_LowerText(char16_t *s, int32_t n) {
    if (s && n > 0) CharLowerBuffW(wide(s), DWORD(n));
}

}  // namespace mx
