#include "unattended.h"

#include <windows.h>

#include <string>

#include "base/utf8.h"
#include "window_text.h"

using mxhost::toStandardError;
using mxhost::windowText;

namespace {

thread_local HHOOK hook;  // one watcher per thread that shows boxes
BoxReport reportTo;
HWND lastOwner;

bool isDialog(HWND w) {
    wchar_t cls[16];
    return GetClassNameW(w, cls, 16) && lstrcmpW(cls, L"#32770") == 0;
}

// Once the box is shown: report it and press its default button.
void CALLBACK answer(HWND w, UINT, UINT_PTR id, DWORD) {
    KillTimer(w, id);
    HWND textControl = GetDlgItem(w, 0xFFFF);
    std::u16string title = windowText(w);
    std::u16string text = textControl ? windowText(textControl) : std::u16string();
    std::string line = mx::toUtf8(title.c_str()) + ": " + mx::toUtf8(text.c_str()) + "\n";
    lastOwner = GetWindow(w, GW_OWNER);
    reportTo(line);
    LRESULT def = SendMessageW(w, DM_GETDEFID, 0, 0);
    WORD button = HIWORD(def) == DC_HASDEFID ? LOWORD(def) : IDOK;
    PostMessageW(w, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), 0);
}

LRESULT CALLBACK watch(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && isDialog(reinterpret_cast<HWND>(wParam)))
        // Answer from the box's own message loop, once its texts are set.
        SetTimer(reinterpret_cast<HWND>(wParam), 1, 1, answer);
    return CallNextHookEx(hook, code, wParam, lParam);
}

}  // namespace

bool unattendedStart(BoxReport report) {
    reportTo = report ? report : toStandardError;
    if (hook) return true;
    hook = SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId());
    return hook != nullptr;
}

void unattendedStop() {
    if (hook) UnhookWindowsHookEx(hook);
    hook = nullptr;
}

void *unattendedLastOwner() { return lastOwner; }
