#include <windows.h>

#include <cstdio>
#include <vector>

#include "base/u16.h"
#include "platform/platform.h"

namespace mx {

int32_t mxp_LoadString(ModuleHandle module, uint32_t id, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return 0;
    buf[0] = 0;
    if (capacity < 2) return 0;
    int n = LoadStringW(static_cast<HINSTANCE>(module), id, reinterpret_cast<wchar_t *>(buf), capacity);
    if (n <= 0) buf[0] = 0;
    return n > 0 ? n : 0;
}

int32_t mxp_ModuleFileVersion(ModuleHandle module, char16_t *buf, int32_t capacity) {
    u16Copy(buf, capacity, u"");
    wchar_t path[MAX_PATH];
    if (!GetModuleFileNameW(static_cast<HMODULE>(module), path, MAX_PATH)) return 0;
    DWORD handle = 0;
    DWORD size = GetFileVersionInfoSizeW(path, &handle);
    if (!size) return 0;
    std::vector<unsigned char> data(size);
    VS_FIXEDFILEINFO *info = nullptr;
    UINT len = 0;
    if (!GetFileVersionInfoW(path, 0, size, data.data()) ||
        !VerQueryValueW(data.data(), L"\\", reinterpret_cast<void **>(&info), &len) || !info)
        return 0;
    char text[64];
    std::snprintf(text, sizeof text, "%u.%u.%u.%u", unsigned(HIWORD(info->dwFileVersionMS)),
                  unsigned(LOWORD(info->dwFileVersionMS)), unsigned(HIWORD(info->dwFileVersionLS)),
                  unsigned(LOWORD(info->dwFileVersionLS)));
    return u16FromAscii(buf, capacity, text);
}

}  // namespace mx
