#include "answer_hook.h"

#include <commctrl.h>
#include <dlgs.h>
#include <shlobj.h>

#include "base/utf8.h"
#include "window_text.h"

using mx::AnswerAction;
using mx::DialogAnswer;
using mx::DialogKind;

using mxhost::toStandardError;
using mxhost::windowText;

namespace {

constexpr UINT_PTR kTimerId = 0x4D58;
const wchar_t kAnsweredMark[] = L"Morvix.Answered";

thread_local HHOOK hook;
AnswerBoxReport reportTo;
AnswerObserver observer;

std::wstring className(HWND w) {
    wchar_t cls[64] = {};
    GetClassNameW(w, cls, 64);
    return cls;
}

bool hasChildOfClass(HWND w, const wchar_t *cls) {
    struct Search {
        const wchar_t *cls;
        bool found;
    } s{cls, false};
    EnumChildWindows(
        w,
        [](HWND child, LPARAM p) -> BOOL {
            auto *s = reinterpret_cast<Search *>(p);
            if (lstrcmpiW(className(child).c_str(), s->cls) == 0) s->found = true;
            return !s->found;
        },
        reinterpret_cast<LPARAM>(&s));
    return s.found;
}

// Shown as far as the control itself goes: a dialog may still be waiting
// to be shown when its answer is due.
bool shown(HWND control) { return control && (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE); }

bool visibleButton(HWND w, int id) { return shown(GetDlgItem(w, id)); }

HWND visibleList(HWND w) {
    for (int id = 1002; id <= 1005; ++id) {
        HWND list = GetDlgItem(w, id);
        if (shown(list)) return list;
    }
    return nullptr;
}

void press(HWND w, int id) {
    HWND button = GetDlgItem(w, id);
    if (shown(button)) SendMessageW(button, BM_CLICK, 0, 0);
    else SendMessageW(w, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0);
}

void type(HWND edit, const std::u16string &text) {
    SetFocus(edit);
    // The dialog selected the whole text; the first key replaces it.
    SendMessageW(edit, WM_CLEAR, 0, 0);
    for (char16_t c : text) SendMessageW(edit, WM_CHAR, WPARAM(c), 0);
}

void select(HWND list, const std::vector<int32_t> &picks) {
    bool multi = GetWindowLongW(list, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL);
    int count = int(SendMessageW(list, LB_GETCOUNT, 0, 0));
    if (multi) SendMessageW(list, LB_SETSEL, FALSE, -1);
    else SendMessageW(list, LB_SETCURSEL, WPARAM(-1), 0);
    for (int32_t p : picks) {
        if (p < 1 || p > count) continue;
        if (multi) SendMessageW(list, LB_SETSEL, TRUE, p - 1);
        else SendMessageW(list, LB_SETCURSEL, WPARAM(p - 1), 0);
    }
}

int buttonOf(AnswerAction a) {
    switch (a) {
        case AnswerAction::kOk: return IDOK;
        case AnswerAction::kYes: return IDYES;
        case AnswerAction::kNo: return IDNO;
        default: return IDCANCEL;
    }
}

void reportBox(HWND w) {
    HWND textControl = GetDlgItem(w, 0xFFFF);
    std::u16string text = textControl ? windowText(textControl) : std::u16string();
    reportTo(mx::toUtf8(windowText(w).c_str()) + ": " + mx::toUtf8(text.c_str()) + "\n");
}

void carryOut(HWND w, DialogKind kind, const DialogAnswer &a) {
    switch (kind) {
        case DialogKind::kInput:
            if (a.action == AnswerAction::kText) type(GetDlgItem(w, 302), a.text);
            break;
        case DialogKind::kListBox:
            if (a.action == AnswerAction::kSelect) select(visibleList(w), a.picks);
            break;
        case DialogKind::kFile:
            if (a.action == AnswerAction::kPath) {
                HWND name = GetDlgItem(w, cmb13);
                if (!name) name = GetDlgItem(w, edt1);
                SetWindowTextW(name, reinterpret_cast<const wchar_t *>(a.text.c_str()));
            }
            break;
        case DialogKind::kDirectory:
            if (a.action == AnswerAction::kPath)
                SendMessageW(w, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(a.text.c_str()));
            break;
        default: break;
    }
    bool confirm = a.action != AnswerAction::kCancel && a.action != AnswerAction::kYes &&
                   a.action != AnswerAction::kNo;
    press(w, confirm ? IDOK : buttonOf(a.action));
}

// Runs inside the dialog's own message loop, once its set-up is done.
void CALLBACK answer(HWND w, UINT, UINT_PTR id, DWORD) {
    KillTimer(w, id);
    DialogKind kind = answerDialogKind(w);
    bool box = kind <= DialogKind::kMessageYesNoCancel;
    if (box) reportBox(w);
    if (observer) observer(w, kind);
    carryOut(w, kind, answersNext(kind, windowText(w)));
}

LRESULT CALLBACK watch(int code, WPARAM wParam, LPARAM lParam) {
    HWND w = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && className(w) == L"#32770" && !GetPropW(w, kAnsweredMark)) {
        // A dialog is answered once, however often it becomes active again.
        SetPropW(w, kAnsweredMark, HANDLE(1));
        SetTimer(w, kTimerId, 1, answer);
    }
    if (code == HCBT_DESTROYWND) RemovePropW(w, kAnsweredMark);
    return CallNextHookEx(hook, code, wParam, lParam);
}

}  // namespace

DialogKind answerDialogKind(HWND w) {
    if (GetDlgItem(w, 302) && GetDlgItem(w, 301)) return DialogKind::kInput;
    if (visibleList(w)) return DialogKind::kListBox;
    HWND view = GetDlgItem(w, 1001);
    if (view && lstrcmpiW(className(view).c_str(), WC_LISTVIEWW) == 0) return DialogKind::kListView;
    if (GetDlgItem(w, cmb13) || GetDlgItem(w, edt1)) return DialogKind::kFile;
    if (hasChildOfClass(w, WC_TREEVIEWW)) return DialogKind::kDirectory;
    bool yes = visibleButton(w, IDYES), cancel = visibleButton(w, IDCANCEL);
    if (yes) return cancel ? DialogKind::kMessageYesNoCancel : DialogKind::kMessageYesNo;
    return cancel ? DialogKind::kMessageOkCancel : DialogKind::kMessageOk;
}

bool answerHookStart(AnswerBoxReport report, AnswerObserver seen) {
    reportTo = report ? report : toStandardError;
    observer = seen;
    if (hook) return true;
    hook = SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId());
    return hook != nullptr;
}

void answerHookStop() {
    if (hook) UnhookWindowsHookEx(hook);
    hook = nullptr;
}
