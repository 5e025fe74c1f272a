// Windows of the desktop, Win32.
#include <windows.h>

#include "base/u16.h"
#include "desktop/enum_procs.h"
#include "desktop/windows.h"
#include "platform/win32/wide.h"

namespace mx {

namespace {
HWND hw(WindowHandle w) { return static_cast<HWND>(w); }
}  // namespace

WindowHandle dskGetWindow(const char16_t *appPattern, const char16_t *childPattern) {
    WindowSearch top{appPattern, nullptr};
    EnumWindows(GetWindowEnumProc, reinterpret_cast<LPARAM>(&top));
    if (!top.found || !childPattern || !*childPattern) return top.found;
    // EnumChildWindows visits every descendant, grandchildren included.
    WindowSearch child{childPattern, nullptr};
    EnumChildWindows(hw(top.found), GetWindowEnumProc, reinterpret_cast<LPARAM>(&child));
    return child.found;
}

int32_t dskGetTitle(WindowHandle window, char16_t *buffer, int32_t capacity) {
    if (!buffer || capacity < 1) return 0;
    if (!IsWindow(hw(window))) {
        buffer[0] = 0;
        return 0;
    }
    return GetWindowTextW(hw(window), wide(buffer), capacity);
}

int32_t dskGetWindowClientSize(WindowHandle window, int32_t *height, int32_t *width) {
    RECT r{};
    GetClientRect(hw(window), &r);
    *height = r.bottom - r.top;
    *width = r.right - r.left;
    return 0;
}

int32_t dskShowWindow(WindowHandle window, int32_t showMode) {
    ShowWindow(hw(window), showMode);
    return 0;
}

WindowHandle dskWindowActivate(WindowHandle window) {
    HWND before = GetFocus();
    HWND w = hw(window);
    if (!IsWindow(w) || !IsWindowEnabled(w)) return nullptr;
    HWND top = w;
    for (HWND parent = GetParent(top); parent && IsWindowEnabled(parent); parent = GetParent(top))
        top = parent;
    if (IsIconic(top)) ShowWindow(top, SW_RESTORE);
    SetActiveWindow(top);
    SetForegroundWindow(top);
    SetFocus(w);
    return before;
}

WindowHandle dskWindowGetActive() { return GetActiveWindow(); }

intptr_t dskSendMessage(WindowHandle window, uint32_t message, uintptr_t wParam, intptr_t lParam,
                        bool wait) {
    if (wait) return SendMessageW(hw(window), message, wParam, lParam);
    return PostMessageW(hw(window), message, wParam, lParam);
}

int32_t dskGetScreenHeight() { return GetSystemMetrics(SM_CYSCREEN); }
int32_t dskGetScreenWidth() { return GetSystemMetrics(SM_CXSCREEN); }

int32_t dskBeep(int32_t mode) {
    MessageBeep(mode == '!' ? MB_ICONEXCLAMATION : mode == '?' ? MB_ICONQUESTION : MB_ICONINFORMATION);
    return 0;
}

}  // namespace mx
