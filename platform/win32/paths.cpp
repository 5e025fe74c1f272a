// Paths and module information with the Win32 API.
#include <windows.h>

#include <vector>

#include "base/u16.h"
#include "platform/paths.h"
#include "platform/win32/wide.h"

namespace mx {

namespace {
constexpr DWORD kLongPath = 32768;
}  // namespace

int32_t mxp_ModuleFileName(ModuleHandle module, char16_t *buf, int32_t capacity) {
    std::vector<wchar_t> path(kLongPath);
    DWORD n = GetModuleFileNameW(static_cast<HMODULE>(module), path.data(), kLongPath);
    if (n == 0 || n >= kLongPath) path[0] = 0;
    return u16Copy(buf, capacity, narrow(path.data()));
}

int32_t mxp_WindowsDirectory(char16_t *buf, int32_t capacity) {
    wchar_t path[MAX_PATH + 1];
    UINT n = GetWindowsDirectoryW(path, MAX_PATH + 1);
    if (n == 0 || n > MAX_PATH) path[0] = 0;
    return u16Copy(buf, capacity, narrow(path));
}

int32_t mxp_CurrentDirectory(char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 0) return 0;
    return int32_t(GetCurrentDirectoryW(DWORD(capacity), wide(buf)));
}

int32_t mxp_ShortPathName(const char16_t *path, char16_t *buf, int32_t capacity) {
    if (!path || !buf || capacity < 0) return 0;
    return int32_t(GetShortPathNameW(wide(path), wide(buf), DWORD(capacity)));
}

int32_t mxp_TempDirectory(char16_t *buf, int32_t capacity) {
    wchar_t path[MAX_PATH + 2];
    DWORD n = GetTempPathW(MAX_PATH + 2, path);
    if (n == 0 || n > MAX_PATH + 1) n = 0;
    while (n > 3 && (path[n - 1] == L'\\' || path[n - 1] == L'/')) --n;
    path[n] = 0;
    return u16Copy(buf, capacity, narrow(path));
}

std::u16string mxp_FullPath(const char16_t *path) {
    const wchar_t *name = path && *path ? wide(path) : L".";
    std::vector<wchar_t> full(kLongPath);
    DWORD n = GetFullPathNameW(name, kLongPath, full.data(), nullptr);
    if (n == 0 || n >= kLongPath) return path ? std::u16string(path) : std::u16string();
    return narrow(full.data());
}

static_assert(sizeof(VS_FIXEDFILEINFO) == 52, "the root block of a version resource has 52 bytes");

bool mxp_FileVersion(const char16_t *path, uint16_t version[4]) {
    for (int i = 0; i < 4; ++i) version[i] = 0;
    DWORD handle = 0;
    DWORD size = path ? GetFileVersionInfoSizeW(wide(path), &handle) : 0;
    if (!size) return false;
    std::vector<unsigned char> data(size);
    VS_FIXEDFILEINFO *info = nullptr;
    UINT len = 0;
    if (!GetFileVersionInfoW(wide(path), 0, size, data.data()) ||
        !VerQueryValueW(data.data(), L"\\", reinterpret_cast<void **>(&info), &len) || !info ||
        len != sizeof(VS_FIXEDFILEINFO))
        return false;
    version[0] = HIWORD(info->dwFileVersionMS);
    version[1] = LOWORD(info->dwFileVersionMS);
    version[2] = HIWORD(info->dwFileVersionLS);
    version[3] = LOWORD(info->dwFileVersionLS);
    return true;
}

char16_t mxp_NameFold(char16_t c) {
    return char16_t(reinterpret_cast<ULONG_PTR>(CharUpperW(reinterpret_cast<LPWSTR>(ULONG_PTR(c)))));
}

char16_t mxp_PathSeparator() { return u'\\'; }

std::string mxp_ToAnsi(const char16_t *text) {
    if (!text || !*text) return {};
    int n = WideCharToMultiByte(CP_ACP, 0, wide(text), -1, nullptr, 0, nullptr, nullptr);
    std::string out(n > 0 ? size_t(n) : 1, '\0');
    if (n <= 0 || !WideCharToMultiByte(CP_ACP, 0, wide(text), -1, out.data(), n, nullptr, nullptr)) return {};
    out.resize(size_t(n) - 1);
    return out;
}

std::u16string mxp_FromAnsi(const char *text) {
    if (!text || !*text) return {};
    int n = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
    std::vector<wchar_t> out(n > 0 ? size_t(n) : 1);
    if (n <= 0 || !MultiByteToWideChar(CP_ACP, 0, text, -1, out.data(), n)) return {};
    return narrow(out.data());
}

}  // namespace mx
