// The registry through the Win32 registry functions.
#include <windows.h>

#include <vector>

#include "platform/registry.h"
#include "platform/win32/wide.h"

namespace mx {

namespace {

HKEY hive(RegRoot root) {
    switch (root) {
        case RegRoot::kCurrentUser: return HKEY_CURRENT_USER;
        case RegRoot::kLocalMachine: return HKEY_LOCAL_MACHINE;
        default: return nullptr;
    }
}

// Opens key with access; absent when the root selects no hive or it fails.
HKEY openKey(RegRoot root, const char16_t *key, REGSAM access) {
    HKEY h = nullptr;
    if (!hive(root) || RegOpenKeyExW(hive(root), wideOrEmpty(key), 0, access, &h) != ERROR_SUCCESS)
        return nullptr;
    return h;
}

HKEY createKey(RegRoot root, const char16_t *key) {
    HKEY h = nullptr;
    if (!hive(root) || RegCreateKeyExW(hive(root), wideOrEmpty(key), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &h,
                                       nullptr) != ERROR_SUCCESS)
        return nullptr;
    return h;
}

bool setValue(RegRoot root, const char16_t *key, const char16_t *name, DWORD type, const void *data,
              DWORD size) {
    HKEY h = createKey(root, key);
    if (!h) return false;
    bool ok =
        RegSetValueExW(h, wideOrEmpty(name), 0, type, static_cast<const BYTE *>(data), size) == ERROR_SUCCESS;
    RegCloseKey(h);
    return ok;
}

}  // namespace

bool mxp_RegReadString(RegRoot root, const char16_t *key, const char16_t *name, std::u16string *out) {
    HKEY h = openKey(root, key, KEY_QUERY_VALUE);
    if (!h) return false;
    DWORD type = 0, size = 0;
    bool ok = RegQueryValueExW(h, wideOrEmpty(name), nullptr, &type, nullptr, &size) == ERROR_SUCCESS &&
              (type == REG_SZ || type == REG_EXPAND_SZ);
    std::vector<wchar_t> data(size / sizeof(wchar_t) + 1, 0);
    ok = ok && RegQueryValueExW(h, wideOrEmpty(name), nullptr, &type, reinterpret_cast<BYTE *>(data.data()),
                                &size) == ERROR_SUCCESS;
    RegCloseKey(h);
    if (ok) out->assign(narrow(data.data()));
    return ok;
}

bool mxp_RegReadDword(RegRoot root, const char16_t *key, const char16_t *name, uint32_t *out) {
    HKEY h = openKey(root, key, KEY_QUERY_VALUE);
    if (!h) return false;
    DWORD type = 0, value = 0, size = sizeof value;
    bool ok = RegQueryValueExW(h, wideOrEmpty(name), nullptr, &type, reinterpret_cast<BYTE *>(&value), &size) ==
                  ERROR_SUCCESS &&
              type == REG_DWORD && size == sizeof value;
    RegCloseKey(h);
    if (ok) *out = value;
    return ok;
}

bool mxp_RegWriteString(RegRoot root, const char16_t *key, const char16_t *name, const char16_t *value) {
    const wchar_t *v = wideOrEmpty(value);
    return setValue(root, key, name, REG_SZ, v, DWORD((wcslen(v) + 1) * sizeof(wchar_t)));
}

bool mxp_RegWriteDword(RegRoot root, const char16_t *key, const char16_t *name, uint32_t value) {
    DWORD v = value;
    return setValue(root, key, name, REG_DWORD, &v, sizeof v);
}

int32_t mxp_RegDeleteValue(RegRoot root, const char16_t *key, const char16_t *name) {
    HKEY h = openKey(root, key, KEY_SET_VALUE);
    if (!h) return -1;
    bool ok = RegDeleteValueW(h, wideOrEmpty(name)) == ERROR_SUCCESS;
    RegCloseKey(h);
    return ok ? 0 : -1;
}

int32_t mxp_RegDeleteKey(RegRoot root, const char16_t *key) {
    if (!hive(root)) return -1;
    return RegDeleteKeyW(hive(root), wideOrEmpty(key)) == ERROR_SUCCESS ? 0 : -1;
}

}  // namespace mx
