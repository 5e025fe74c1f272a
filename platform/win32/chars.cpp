#include <windows.h>

#include "platform/platform.h"

namespace mx {

bool mxp_IsAlpha(char16_t c) { return IsCharAlphaW(wchar_t(c)) != 0; }

bool mxp_IsAlphaNumeric(char16_t c) { return IsCharAlphaNumericW(wchar_t(c)) != 0; }

}  // namespace mx
