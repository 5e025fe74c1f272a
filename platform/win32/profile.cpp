// Profile files through the Win32 profile functions.
#include <windows.h>

#include "platform/profile.h"

namespace mx {

namespace {
const wchar_t *wide(const char16_t *s) { return reinterpret_cast<const wchar_t *>(s); }
}  // namespace

int32_t mxp_ProfileRead(const char16_t *file, const char16_t *section, const char16_t *key,
                        const char16_t *def, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return 0;
    return int32_t(GetPrivateProfileStringW(wide(section), wide(key), def ? wide(def) : L"",
                                            reinterpret_cast<wchar_t *>(buf), DWORD(capacity),
                                            file ? wide(file) : L""));
}

int32_t mxp_ProfileWrite(const char16_t *file, const char16_t *section, const char16_t *key,
                         const char16_t *value) {
    return WritePrivateProfileStringW(wide(section), wide(key), wide(value), file ? wide(file) : L"") ? 1 : 0;
}

}  // namespace mx
