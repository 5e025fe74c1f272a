// Windows of the desktop: finding them by title, showing, activating and
// measuring them, window messages, screen metrics and the system beep.
// Handles travel as longs in macros; 0 means none. On a machine without a
// desktop (the native build) there are no windows: every search finds none
// and every query answers 0.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// The first top-level window whose title matches appPattern (see
// title_pattern.h); when childPattern is not empty, the first descendant of
// that window matching childPattern instead (0 when none matches). 0 when
// nothing is found. Reads titles only.
WindowHandle dskGetWindow(const char16_t *appPattern, const char16_t *childPattern);

// buffer = window's title, within capacity. Returns the title's length as the
// platform reports it (0 for a handle that is no window; buffer then empty).
int32_t dskGetTitle(WindowHandle window, char16_t *buffer, int32_t capacity);

// *height, *width = the client area's size in pixels (0, 0 for no window).
// Returns 0.
int32_t dskGetWindowClientSize(WindowHandle window, int32_t *height, int32_t *width);

// Shows window with the platform's show mode (3 maximized, 6 minimized,
// 9 restored). Returns 0.
int32_t dskShowWindow(WindowHandle window, int32_t showMode);

// Activates window's top enabled ancestor (restoring it when minimized) and
// gives window the focus. Returns the window that had the focus before, 0
// when window is no window or disabled (then nothing changes).
WindowHandle dskWindowActivate(WindowHandle window);

// The active window of the calling thread, 0 when none.
WindowHandle dskWindowGetActive();

// Sends (wait != 0, blocking until handled) or posts message to window.
// Returns the window's answer, or for a post non-zero on success.
intptr_t dskSendMessage(WindowHandle window, uint32_t message, uintptr_t wParam, intptr_t lParam,
                        bool wait);

// Primary screen height and width in pixels; 0 without a screen.
int32_t dskGetScreenHeight();
int32_t dskGetScreenWidth();

// Plays the message sound of mode: 33 ('!') exclamation, 63 ('?') question,
// anything else information. Returns 0.
int32_t dskBeep(int32_t mode);

}  // namespace mx
