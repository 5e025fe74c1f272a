// Helper library, native: a machine without a desktop has no window to move.
#include "helperlib/kelvane_window.h"

namespace mx {

int32_t Kelvane_CenterWindow(WindowHandle) { return 0; }

}  // namespace mx

namespace mx {

WindowHandle SendWmMdiGetActive(WindowHandle, int32_t *maximized) {
    if (maximized) *maximized = 0;
    return nullptr;
}

}  // namespace mx
