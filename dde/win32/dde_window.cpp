// The window class "MorvixDdeCommunication": registration, and the window
// procedure that answers the messages of the initiate and of the server's
// terminate. Transaction answers are taken out of the queue by the waiting
// loop before they get here.
#include "dde/win32/dde_window.h"

#include <dde.h>

#include <new>

#include "dde/dde_class.h"

extern "C" LRESULT CALLBACK WndProcDdeCommunication(HWND window, UINT message, WPARAM wParam,
                                                    LPARAM lParam);

namespace mx {

namespace {

const wchar_t kClassName[] = L"MorvixDdeCommunication";
ATOM gClassAtom = 0;
HINSTANCE gClassModule = nullptr;

DdeState *stateWord(HWND window) { return reinterpret_cast<DdeState *>(GetWindowLongPtrW(window, 0)); }

// An acknowledgement of the initiate (sent, not posted, so its two atoms
// come unpacked): the first server keeps the conversation, any later one is
// told to go at once.
LRESULT onInitiateAck(HWND window, DdeState *state, HWND answering, LPARAM lParam) {
    GlobalDeleteAtom(LOWORD(lParam));
    GlobalDeleteAtom(HIWORD(lParam));
    if (ddeLiveServer(state))
        PostMessageW(answering, WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(window), 0);
    else
        state->server = answering;
    return 1;
}

// The server ends the conversation: answer it and forget it.
LRESULT onTerminate(HWND window, DdeState *state) {
    PostMessageW(state->server, WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(window), 0);
    state->server = nullptr;
    return 1;
}

void onDestroy(HWND window, DdeState *state) {
    if (HWND server = ddeLiveServer(state))
        PostMessageW(server, WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(window), 0);
    delete state;
    SetWindowLongPtrW(window, 0, 0);
}

}  // namespace

HINSTANCE ddeClassModule() { return gClassModule; }

HWND ddeLiveServer(const DdeState *state) {
    return state && state->server && IsWindow(state->server) ? state->server : nullptr;
}

DdeState *ddeStateOf(HWND channel) {
    if (!channel || !gClassAtom || !IsWindow(channel)) return nullptr;
    DWORD process = 0;
    if (GetWindowThreadProcessId(channel, &process) != GetCurrentThreadId() ||
        process != GetCurrentProcessId())
        return nullptr;
    if (GetClassLongPtrW(channel, GCW_ATOM) != gClassAtom) return nullptr;
    return stateWord(channel);
}

int32_t ddeRegisterClass(ModuleHandle module) {
    WNDCLASSW wc = {};
    wc.lpfnWndProc = WndProcDdeCommunication;
    wc.cbWndExtra = sizeof(LONG_PTR);  // the state pointer
    wc.hInstance = static_cast<HINSTANCE>(module);
    wc.lpszClassName = kClassName;
    gClassAtom = RegisterClassW(&wc);
    if (!gClassAtom) return -1;
    gClassModule = wc.hInstance;
    return 0;
}

void ddeUnregisterClass(ModuleHandle module) {
    if (!gClassAtom) return;
    UnregisterClassW(kClassName, static_cast<HINSTANCE>(module));
    gClassAtom = 0;
    gClassModule = nullptr;
}

}  // namespace mx

extern "C" LRESULT CALLBACK WndProcDdeCommunication(HWND window, UINT message, WPARAM wParam,
                                                    LPARAM lParam) {
    using namespace mx;
    if (message == WM_CREATE) {
        DdeState *state = new (std::nothrow) DdeState{};
        if (!state) return -1;
        SetWindowLongPtrW(window, 0, reinterpret_cast<LONG_PTR>(state));
        return 0;
    }
    DdeState *state = stateWord(window);
    if (!state) return DefWindowProcW(window, message, wParam, lParam);
    HWND from = reinterpret_cast<HWND>(wParam);
    switch (message) {
    case WM_DDE_ACK:
        if (state->initiating) return onInitiateAck(window, state, from, lParam);
        break;
    case WM_DDE_TERMINATE:
        if (state->server && from == state->server) return onTerminate(window, state);
        break;
    case WM_DESTROY:
        onDestroy(window, state);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}
