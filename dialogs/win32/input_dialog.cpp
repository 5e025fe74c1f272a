// The input dialog, Win32: template 300 and its dialog procedure.
#include <windows.h>

#include <string>

#include "base/u16.h"
#include "dialogs/dialog_ids.h"
#include "dialogs/dialogs.h"
#include "dialogs/win32/dialog_procs.h"
#include "engine/process_state.h"
#include "helperlib/kelvane_dialogs.h"

namespace mx {

namespace {

// Places the dialog: at the record's position when either coordinate is
// non-negative, otherwise centred with the frame and caption counted.
void place(HWND dialog, const InputDialogRecord &r) {
    RECT rc;
    GetWindowRect(dialog, &rc);
    int width = rc.right - rc.left, height = rc.bottom - rc.top;
    if (r.width > 0 && r.height > 0) width = r.width, height = r.height;
    int x = r.left, y = r.top;
    if (r.left < 0 && r.top < 0) {
        x = (GetSystemMetrics(SM_CXSCREEN) - width - 2 * GetSystemMetrics(SM_CXFRAME)) / 2;
        y = (GetSystemMetrics(SM_CYSCREEN) - height - 2 * GetSystemMetrics(SM_CYFRAME) -
             GetSystemMetrics(SM_CYCAPTION)) / 2;
    }
    MoveWindow(dialog, x, y, width, height, TRUE);
}

// The buffer's text up to its terminator or its capacity.
std::u16string current(const InputDialogRecord &r) {
    std::u16string s;
    for (int32_t i = 0; r.buffer && i < r.capacity && r.buffer[i]; ++i) s += r.buffer[i];
    return s;
}

void init(HWND dialog, const InputDialogRecord &r) {
    TLX_TranslateDialogW(dialog, gProcess.tlxModuleName, 0);
    place(dialog, r);
    SetWindowTextW(dialog, wide(r.title ? r.title : u""));
    SetDlgItemTextW(dialog, IDC_INPUT_PROMPT, wide(r.prompt ? r.prompt : u""));
    HWND edit = GetDlgItem(dialog, IDC_INPUT_EDIT);
    SetWindowTextW(edit, wide(current(r).c_str()));
    SendEmSetSel(edit, 0, 0, -1);
    SetFocus(edit);
}

void accept(HWND dialog, InputDialogRecord &r) {
    HWND edit = GetDlgItem(dialog, IDC_INPUT_EDIT);
    int n = GetWindowTextLengthW(edit);
    std::wstring text(size_t(n) + 1, L'\0');
    GetWindowTextW(edit, text.data(), n + 1);
    u16Copy(r.buffer, r.capacity, reinterpret_cast<const char16_t *>(text.c_str()));
}

}  // namespace

intptr_t dlgRunInputDialog(WindowHandle owner, InputDialogRecord &record) {
    return DialogBoxParamW(static_cast<HINSTANCE>(gProcess.module), MAKEINTRESOURCEW(IDD_INPUT),
                           static_cast<HWND>(owner), Anytext_Dialog_Callback,
                           reinterpret_cast<LPARAM>(&record));
}

}  // namespace mx

extern "C" INT_PTR CALLBACK Anytext_Dialog_Callback(HWND dialog, UINT message, WPARAM wParam,
                                                     LPARAM lParam) {
    using namespace mx;
    InputDialogRecord *r = dialogRecord<InputDialogRecord>(dialog, message, lParam);
    if (!r) return 0;
    switch (message) {
        case WM_INITDIALOG: init(dialog, *r); return 0;
        case WM_COMMAND: {
            WmCommandInfo command;
            switch (Evaluate_WmCommand(wParam, lParam, &command)) {
                case IDOK: accept(dialog, *r); EndDialog(dialog, 1); return 1;
                case IDCANCEL: EndDialog(dialog, 0); return 1;
                default: return 0;
            }
        }
        default: return 0;
    }
}
