// Windows, MDI and the clipboard on a machine without a desktop: no window
// is ever found, queries answer 0, and the clipboard cannot be opened.
#include "base/u16.h"
#include "desktop/clipboard.h"
#include "desktop/mdi.h"
#include "desktop/windows.h"

namespace mx {

WindowHandle dskGetWindow(const char16_t *, const char16_t *) { return nullptr; }

int32_t dskGetTitle(WindowHandle, char16_t *buffer, int32_t capacity) {
    u16Copy(buffer, capacity, u"");
    return 0;
}

int32_t dskGetWindowClientSize(WindowHandle, int32_t *height, int32_t *width) {
    *height = 0;
    *width = 0;
    return 0;
}

int32_t dskShowWindow(WindowHandle, int32_t) { return 0; }
WindowHandle dskWindowActivate(WindowHandle) { return nullptr; }
WindowHandle dskWindowGetActive() { return nullptr; }
intptr_t dskSendMessage(WindowHandle, uint32_t, uintptr_t, intptr_t, bool) { return 0; }
int32_t dskGetScreenHeight() { return 0; }
int32_t dskGetScreenWidth() { return 0; }
int32_t dskBeep(int32_t) { return 0; }

WindowHandle dskMdiClient(WindowHandle) { return nullptr; }
WindowHandle dskMdiGetActive(WindowHandle) { return nullptr; }
int32_t dskMdiActivate(WindowHandle, WindowHandle) { return 0; }
int32_t dskMdiActivateNext(WindowHandle) { return 0; }
int32_t dskMdiRestoreOrMaximize(WindowHandle, bool) { return 0; }
int32_t dskMdiIsMaximized(WindowHandle) { return 0; }

int32_t dskReadClipboard(WindowHandle, char16_t *, int32_t) { return 1; }
int32_t dskWriteClipboard(WindowHandle, const char16_t *, int32_t) { return 1; }

}  // namespace mx
