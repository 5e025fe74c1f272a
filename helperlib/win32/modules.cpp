// Helper library, Win32: run-time modules through the loader.
#include <windows.h>

#include "helperlib/kelvane_modules.h"

namespace mx {

ModuleHandle LoadDynamicLibraryW(const char16_t *fileName) {
    if (!fileName || !*fileName) return nullptr;
    // A module that cannot be loaded answers null, not a system error box.
    UINT previous = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    HMODULE module = LoadLibraryW(reinterpret_cast<const wchar_t *>(fileName));
    SetErrorMode(previous);
    return module;
}

void *Kelvane_GetProcAddressW(ModuleHandle module, const char16_t *name) {
    char ascii[256];
    int n = 0;
    if (!module || !name || !*name) return nullptr;
    for (; name[n]; ++n) {
        if (name[n] > 0x7F || n + 1 >= int(sizeof ascii)) return nullptr;
        ascii[n] = char(name[n]);
    }
    ascii[n] = 0;
    return reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(module), ascii));
}

void Kelvane_FreeDynamicLibrary(ModuleHandle module) {
    if (module) FreeLibrary(static_cast<HMODULE>(module));
}

}  // namespace mx
