// A machine without a desktop: there are no windows, and every box the
// library would show is written to standard error instead and answered as a
// box that could not be shown.
#include <cstdio>

#include "base/utf8.h"
#include "platform/platform.h"

namespace mx {

WindowHandle mxp_TopLevelWindow(WindowHandle window) { return window; }

WindowHandle mxp_ActiveWindow() { return nullptr; }

uint32_t mxp_RegisterWindowMessage(const char16_t *) { return 0; }

namespace {
BoxSink boxSink = nullptr;
}

void mxp_SetBoxSink(BoxSink sink) { boxSink = sink; }

int32_t mxp_MessageBox(WindowHandle, const char16_t *text, const char16_t *title, uint32_t) {
    if (boxSink) {
        boxSink(title ? title : u"", text ? text : u"");
        return 0;
    }
    std::string line = toUtf8(title) + ": " + toUtf8(text) + "\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
    return 0;
}

}  // namespace mx
