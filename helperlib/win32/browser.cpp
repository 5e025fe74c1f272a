// The standard browser on Windows: the shell's "open" for the url.
#include <windows.h>
#include <shellapi.h>

#include "helperlib/kelvane_mail.h"
#include "platform/win32/wide.h"

namespace mx {

int32_t Kelvane_RunStandardBrowserW(const char16_t *url, int32_t) {
    if (!url || !*url) return -1;
    HINSTANCE r = ShellExecuteW(nullptr, L"open", wide(url), nullptr, nullptr,
                                SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(r) <= 32 ? -1 : 0;
}

}  // namespace mx
