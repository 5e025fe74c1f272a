// The standard browser natively: xdg-open, when the desktop has it.
#include "base/utf8.h"
#include "helperlib/kelvane_mail.h"
#include "platform/spawn.h"

namespace mx {

int32_t Kelvane_RunStandardBrowserW(const char16_t *url, int32_t) {
    if (!url || !*url) return -1;
    return mxp_SpawnDetached({"xdg-open", toUtf8(url)}) == 0 ? 0 : -1;
}

}  // namespace mx
