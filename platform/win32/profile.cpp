// Profile files through the Win32 profile functions.
#include <windows.h>

#include "base/path_surgery.h"
#include "base/u16.h"
#include "platform/profile.h"
#include "platform/win32/wide.h"

namespace mx {

// A device is no profile: reads give the default, writes fail, and neither
// touches the device (a console or a port may wait for ever).
int32_t mxp_ProfileRead(const char16_t *file, const char16_t *section, const char16_t *key,
                        const char16_t *def, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return 0;
    if (psNamesDevice(file)) return u16Copy(buf, capacity, def);
    return int32_t(GetPrivateProfileStringW(wide(section), wide(key), wideOrEmpty(def),
                                            wide(buf), DWORD(capacity),
                                            wideOrEmpty(file)));
}

int32_t mxp_ProfileWrite(const char16_t *file, const char16_t *section, const char16_t *key,
                         const char16_t *value) {
    if (psNamesDevice(file)) return 0;
    return WritePrivateProfileStringW(wide(section), wide(key), wide(value), wideOrEmpty(file)) ? 1 : 0;
}

}  // namespace mx
