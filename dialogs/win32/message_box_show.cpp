// Message boxes, Win32: the platform's box, owned by the window that has the
// keyboard focus, which gets the focus back afterwards.
#include <windows.h>

#include "dialogs/dialogs.h"
#include "dialogs/win32/dialog_procs.h"

namespace mx {

int32_t dlgShowBox(const char16_t *title, const char16_t *text, uint32_t style) {
    HWND focus = GetFocus();
    int pressed = MessageBoxW(focus, wide(text), wide(title), style);
    if (focus) SetFocus(focus);
    return pressed;
}

}  // namespace mx
