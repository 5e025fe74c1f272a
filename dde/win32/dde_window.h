// The conversation window of one channel and its state record (Win32).
#pragma once
#include <windows.h>

#include <cstdint>

namespace mx {

// One record per channel window, pointed to by the window's extra word 0.
struct DdeState {
    HWND server;         // the window that accepted the conversation, or null
    int32_t initiating;  // non-zero only while the initiate is being sent
};

// The channel window a macro's long names.
inline HWND ddeWindowOf(int32_t channel) { return reinterpret_cast<HWND>(static_cast<intptr_t>(channel)); }
inline int32_t ddeChannelOf(HWND window) { return static_cast<int32_t>(reinterpret_cast<intptr_t>(window)); }

// The module the class was registered with (the library's own).
HINSTANCE ddeClassModule();

// The state of channel when it is a live conversation window of this
// library owned by the calling thread; null for anything else (0, a dead
// handle, a window of another class, thread or process). No side effects.
DdeState *ddeStateOf(HWND channel);

// The recorded server when it is still a live window, else null.
HWND ddeLiveServer(const DdeState *state);

}  // namespace mx
