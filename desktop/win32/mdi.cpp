// The host's MDI document windows, Win32.
#include <windows.h>

#include "desktop/mdi.h"
#include "helperlib/kelvane_window.h"

namespace mx {

WindowHandle dskMdiClient(WindowHandle host) {
    HWND parent = static_cast<HWND>(host);
    if (!parent || !IsWindow(parent)) return nullptr;
    for (HWND w = GetWindow(parent, GW_CHILD); w; w = GetWindow(w, GW_HWNDNEXT)) {
        wchar_t cls[32];
        if (GetClassNameW(w, cls, 32) && !lstrcmpiW(cls, L"MDICLIENT")) return w;
    }
    return nullptr;
}

WindowHandle dskMdiGetActive(WindowHandle host) {
    WindowHandle client = dskMdiClient(host);
    return client ? SendWmMdiGetActive(client, nullptr) : nullptr;
}

int32_t dskMdiActivate(WindowHandle host, WindowHandle child) {
    if (HWND client = static_cast<HWND>(dskMdiClient(host)))
        SendMessageW(client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(child), 0);
    return 0;
}

int32_t dskMdiActivateNext(WindowHandle host) {
    if (HWND client = static_cast<HWND>(dskMdiClient(host))) SendMessageW(client, WM_MDINEXT, 0, 0);
    return 0;
}

int32_t dskMdiRestoreOrMaximize(WindowHandle host, bool maximize) {
    HWND client = static_cast<HWND>(dskMdiClient(host));
    if (!client) return 0;
    if (HWND child = static_cast<HWND>(SendWmMdiGetActive(client, nullptr)))
        SendMessageW(client, maximize ? WM_MDIMAXIMIZE : WM_MDIRESTORE, reinterpret_cast<WPARAM>(child), 0);
    return 0;
}

int32_t dskMdiIsMaximized(WindowHandle host) {
    WindowHandle client = dskMdiClient(host);
    int32_t maximized = 0;
    if (client) SendWmMdiGetActive(client, &maximized);
    return maximized;
}

}  // namespace mx
