// Opening and closing conversations (Win32).
#include <dde.h>

#include "dde/dde_functions.h"
#include "dde/win32/dde_window.h"

namespace mx {

namespace {

const wchar_t *w(const char16_t *s) { return reinterpret_cast<const wchar_t *>(s); }

// An atom for a name; 0 only for an empty name (which asks for any
// application or topic). False when a non-empty name gets no atom (too long,
// table full): asking with 0 instead would reach every server.
bool nameAtom(const char16_t *name, ATOM &atom) {
    atom = name[0] ? GlobalAddAtomW(w(name)) : 0;
    return atom || !name[0];
}

// Asks for a server of prg and topic: to target, or to every top-level
// window when target is null. Servers answer while the send runs (see the
// window procedure). False when the atoms could not be made.
bool askServers(HWND channel, DdeState *state, const char16_t *prg, const char16_t *topic, HWND target) {
    ATOM app = 0, top = 0;
    if (!nameAtom(prg, app) || !nameAtom(topic, top)) {
        if (app) GlobalDeleteAtom(app);
        return false;
    }
    state->initiating = 1;
    SendMessageW(target ? target : HWND_BROADCAST, WM_DDE_INITIATE, reinterpret_cast<WPARAM>(channel),
                 MAKELPARAM(app, top));
    state->initiating = 0;
    if (app) GlobalDeleteAtom(app);
    if (top) GlobalDeleteAtom(top);
    return true;
}

// Appends up to the room left in a command line of capacity units.
void appendCut(wchar_t *line, size_t &length, size_t capacity, const char16_t *text) {
    for (; *text && length + 1 < capacity; ++text) line[length++] = static_cast<wchar_t>(*text);
    line[length] = 0;
}

// Starts "prg topic" (at most 255 characters) as a new process; nothing
// waits for it to become ready. True when the process was created.
bool startServer(const char16_t *prg, const char16_t *topic) {
    wchar_t line[256];
    size_t length = 0;
    line[0] = 0;
    appendCut(line, length, sizeof line / sizeof line[0], prg);
    appendCut(line, length, sizeof line / sizeof line[0], u" ");
    appendCut(line, length, sizeof line / sizeof line[0], topic);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(nullptr, line, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return false;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}

int32_t giveUp(HWND channel) {
    DestroyWindow(channel);
    return 0;
}

}  // namespace

int32_t ddeInitiate(const char16_t *prg, const char16_t *topic, int32_t window, int32_t start) {
    HWND channel = CreateWindowExW(0, L"MorvixDdeCommunication", nullptr, WS_DISABLED, 0, 0, 100, 100,
                                   nullptr, nullptr, ddeClassModule(), nullptr);
    if (!channel) return 0;
    DdeState *state = ddeStateOf(channel);
    if (!state) return giveUp(channel);
    HWND target = ddeWindowOf(window);
    if (!askServers(channel, state, prg, topic, target)) return giveUp(channel);
    if (ddeLiveServer(state)) return ddeChannelOf(channel);
    if (start == 0 || window != 0) return giveUp(channel);
    if (!startServer(prg, topic)) return giveUp(channel);
    if (!askServers(channel, state, prg, topic, nullptr)) return giveUp(channel);
    return ddeLiveServer(state) ? ddeChannelOf(channel) : giveUp(channel);
}

int32_t ddeTerminate(int32_t channel) {
    HWND window = ddeWindowOf(channel);
    // Only a conversation window of this library is destroyed: a macro that
    // passes another number must not close a window of its host.
    if (ddeStateOf(window)) DestroyWindow(window);
    return 0;
}

}  // namespace mx
