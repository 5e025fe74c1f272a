// Helper library: window placement shared by the dialogs and the run-time
// modules.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// Centres window on the screen, keeping its size. Returns 1; 0 when window
// is absent or not a window (then nothing moves). Natively there are no
// windows: always 0.
int32_t Kelvane_CenterWindow(WindowHandle window);

}  // namespace mx

namespace mx {

// Asks the MDI client window for its active child (WM_MDIGETACTIVE).
// *maximized (when given) = 1 when that child is maximized, else 0. Returns
// the child, absent when there is none or client is no window. Natively:
// absent.
WindowHandle SendWmMdiGetActive(WindowHandle client, int32_t *maximized);

}  // namespace mx
