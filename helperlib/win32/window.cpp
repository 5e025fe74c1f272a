// Helper library, Win32: window placement.
#include <windows.h>

#include "helperlib/kelvane_window.h"

namespace mx {

int32_t Kelvane_CenterWindow(WindowHandle window) {
    HWND hwnd = static_cast<HWND>(window);
    RECT r;
    if (!hwnd || !IsWindow(hwnd) || !GetWindowRect(hwnd, &r)) return 0;
    int width = r.right - r.left, height = r.bottom - r.top;
    int x = (GetSystemMetrics(SM_CXSCREEN) - width) / 2;
    int y = (GetSystemMetrics(SM_CYSCREEN) - height) / 2;
    SetWindowPos(hwnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return 1;
}

}  // namespace mx

namespace mx {

WindowHandle SendWmMdiGetActive(WindowHandle client, int32_t *maximized) {
    BOOL max = FALSE;
    HWND hwnd = static_cast<HWND>(client);
    HWND child = hwnd && IsWindow(hwnd)
                     ? reinterpret_cast<HWND>(SendMessageW(hwnd, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&max)))
                     : nullptr;
    if (maximized) *maximized = child && max ? 1 : 0;
    return child;
}

}  // namespace mx
