// Helper library: decoding command messages and turning filter texts into
// the chooser's form. No platform calls.
#include "helperlib/kelvane_dialogs.h"

namespace mx {

int32_t Evaluate_WmCommand(uintptr_t wParam, intptr_t lParam, WmCommandInfo *out) {
    int32_t id = int32_t(wParam & 0xFFFF);
    if (out) {
        out->id = id;
        out->notification = int32_t((wParam >> 16) & 0xFFFF);
        out->control = reinterpret_cast<WindowHandle>(lParam);
    }
    return id;
}

int32_t GetWmCommandId(uintptr_t wParam, intptr_t lParam) {
    return Evaluate_WmCommand(wParam, lParam, nullptr);
}

int32_t kelvaneFilterToPairs(const char16_t *filter, char16_t *out, int32_t capacity) {
    if (!filter || !*filter) filter = u"All|*.*";
    int32_t n = 0;
    for (const char16_t *p = filter; *p; ++p) {
        if (n >= capacity - 2) return 0;
        out[n++] = *p == u'|' ? u'\0' : *p;
    }
    // A trailing '|' already ended the last part.
    if (n > 0 && out[n - 1] != u'\0') {
        if (n >= capacity - 1) return 0;
        out[n++] = u'\0';
    }
    if (n >= capacity) return 0;
    out[n++] = u'\0';
    return n;
}

}  // namespace mx
