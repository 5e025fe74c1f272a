// The window enumeration procedures the library exports (hosts may use them
// with EnumWindows / EnumChildWindows as well). Each takes the address of a
// search record in its lParam, stores the first window that matches and
// stops the enumeration there.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// GetWindowEnumProc: the first window whose title (at most 255 characters)
// matches pattern as a title pattern.
struct WindowSearch {
    const char16_t *pattern;
    WindowHandle found;
};

// GetHwndOfHinstEnumProc: the first window whose module instance is instance.
struct InstanceSearch {
    ModuleHandle instance;
    WindowHandle found;
};

// GetHwndOfModuleEnumProc: the first window whose module instance belongs to
// the module file named module (its full path or file name, without case).
struct ModuleSearch {
    const char16_t *module;
    WindowHandle found;
};

}  // namespace mx

#ifdef _WIN32
#include <windows.h>
extern "C" {
BOOL CALLBACK GetWindowEnumProc(HWND window, LPARAM search);
BOOL CALLBACK GetHwndOfHinstEnumProc(HWND window, LPARAM search);
BOOL CALLBACK GetHwndOfModuleEnumProc(HWND window, LPARAM search);
}
#endif
