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
