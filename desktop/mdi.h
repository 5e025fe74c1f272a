// The host's MDI document windows. Each function first looks for the MDI
// client of the host window: its first child (in the platform's child order)
// whose class name is "MDICLIENT", ignoring case. Without one (and always on
// a machine without a desktop) each does nothing and answers 0.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// The MDI client of host, 0 when it has none.
WindowHandle dskMdiClient(WindowHandle host);

// The active MDI child, 0 when none.
WindowHandle dskMdiGetActive(WindowHandle host);
// Makes child the active MDI child. Returns 0.
int32_t dskMdiActivate(WindowHandle host, WindowHandle child);
// Activates the next MDI child. Returns 0.
int32_t dskMdiActivateNext(WindowHandle host);
// Restores (maximize false) or maximizes the active MDI child. Returns 0.
int32_t dskMdiRestoreOrMaximize(WindowHandle host, bool maximize);
// 1 when the active MDI child is maximized, else 0.
int32_t dskMdiIsMaximized(WindowHandle host);

}  // namespace mx
