#include "dde/win32/dde_wait.h"

#include <dde.h>

#include "dde/win32/dde_window.h"

namespace mx {

namespace {

bool isAnswer(HWND channel, const MSG &msg, UINT first, UINT second) {
    if (msg.message != first && msg.message != second) return false;
    // Read afresh: a terminate dispatched meanwhile clears the server, and
    // then nothing more is taken as the answer.
    DdeState *state = ddeStateOf(channel);
    return state && state->server && reinterpret_cast<HWND>(msg.wParam) == state->server;
}

}  // namespace

bool ddeAwait(HWND channel, uint32_t waitMs, UINT first, UINT second, MSG &answer) {
    const DWORD started = GetTickCount();
    for (;;) {
        DWORD elapsed = GetTickCount() - started;
        if (elapsed >= waitMs) return false;
        if (!IsWindow(channel)) return false;
        MSG msg;
        if (PeekMessageW(&msg, channel, WM_DDE_FIRST, WM_DDE_LAST, PM_REMOVE)) {
            if (isAnswer(channel, msg, first, second)) {
                answer = msg;
                return true;
            }
            DispatchMessageW(&msg);
            continue;
        }
        // Nothing for the channel: sleep until something new is posted or
        // sent to this thread, or the time is up. The peek above has marked
        // what is queued for other windows as seen, so it does not wake us.
        MsgWaitForMultipleObjectsEx(0, nullptr, waitMs - elapsed, QS_POSTMESSAGE | QS_SENDMESSAGE, 0);
    }
}

}  // namespace mx
