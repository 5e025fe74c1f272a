// Waiting for the server's answer to a posted transaction (Win32).
#pragma once
#include <windows.h>

#include <cstdint>

namespace mx {

// Waits up to waitMs milliseconds (counted from the call) for a message
// `first` or `second` from the channel's recorded server. Only the channel
// window's DDE messages are taken from the thread's queue; every other one
// of them goes to the window procedure. Sleeps while the queue brings
// nothing. True with the message in answer; false on time-out or when the
// channel window is gone.
bool ddeAwait(HWND channel, uint32_t waitMs, UINT first, UINT second, MSG &answer);

}  // namespace mx
