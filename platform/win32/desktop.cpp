#include <windows.h>

#include "platform/platform.h"
#include "platform/win32/wide.h"

namespace mx {

WindowHandle mxp_TopLevelWindow(WindowHandle window) {
    HWND w = static_cast<HWND>(window);
    while (w) {
        HWND parent = GetParent(w);
        if (!parent) break;
        w = parent;
    }
    return w;
}

void mxp_SetBoxSink(BoxSink) {}

WindowHandle mxp_ActiveWindow() { return GetActiveWindow(); }

uint32_t mxp_RegisterWindowMessage(const char16_t *name) {
    return RegisterWindowMessageW(wide(name));
}

int32_t mxp_MessageBox(WindowHandle owner, const char16_t *text, const char16_t *title,
                       uint32_t style) {
    return MessageBoxW(static_cast<HWND>(owner), wide(text),
                       wide(title), style);
}

}  // namespace mx
