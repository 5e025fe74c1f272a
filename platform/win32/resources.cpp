#include <windows.h>

#include "base/text_out.h"
#include "base/u16.h"
#include "platform/paths.h"
#include "platform/platform.h"
#include "platform/win32/wide.h"

namespace mx {

int32_t mxp_LoadString(ModuleHandle module, uint32_t id, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return 0;
    buf[0] = 0;
    if (capacity < 2) return 0;
    int n = LoadStringW(static_cast<HINSTANCE>(module), id, wide(buf), capacity);
    if (n <= 0) buf[0] = 0;
    return n > 0 ? n : 0;
}

int32_t mxp_ModuleFileVersion(ModuleHandle module, char16_t *buf, int32_t capacity) {
    u16Copy(buf, capacity, u"");
    wchar_t path[MAX_PATH];
    uint16_t v[4];
    if (!GetModuleFileNameW(static_cast<HMODULE>(module), path, MAX_PATH) || !mxp_FileVersion(narrow(path), v))
        return 0;
    TextOut out(buf, capacity);
    for (int i = 0; i < 4; ++i) {
        if (i > 0) out.put(u'.');
        out.decimal(v[i]);
    }
    return out.len;
}

}  // namespace mx
