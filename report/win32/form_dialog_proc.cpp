// Form dialog, Win32: the dialog procedure (exported as
// Form_Dialog_Callback) and the modal run of template 10005.
#include <windows.h>

#include "engine/process_state.h"
#include "helperlib/kelvane_dialogs.h"
#include "helperlib/kelvane_window.h"
#include "platform/platform.h"
#include "report/form_dialog.h"
#include "report/form_layout.h"

extern "C" INT_PTR CALLBACK Form_Dialog_Callback(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

namespace mx {

namespace {

constexpr int kTemplate = 10005;
constexpr int kFrame = 1032;
constexpr int kStatus = 1014;

void place(HWND dialog, int id, const FormRect &r) {
    if (HWND w = GetDlgItem(dialog, id)) MoveWindow(w, r.left, r.top, r.right - r.left, r.bottom - r.top, TRUE);
}

// Places the buttons, the status field and the frame for the client area.
void layOut(HWND dialog) {
    RECT client, button;
    HWND cancel = GetDlgItem(dialog, IDCANCEL);
    if (!cancel || !GetClientRect(dialog, &client) || !GetWindowRect(cancel, &button)) return;
    FormLayout l = formLayout({client.left, client.top, client.right, client.bottom},
                              button.right - button.left, button.bottom - button.top);
    place(dialog, IDCANCEL, l.cancel);
    place(dialog, IDOK, l.ok);
    place(dialog, kStatus, l.status);
    place(dialog, kFrame, l.frame);
}

INT_PTR initDialog(HWND dialog, FormState *s) {
    SetWindowLongPtrW(dialog, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(s));
    s->dialog = dialog;
    s->frame = GetDlgItem(dialog, kFrame);
    TLX_TranslateDialogW(dialog, gProcess.tlxModuleName, 0);
    SetWindowTextW(dialog, reinterpret_cast<const wchar_t *>(s->title));
    if (!formOpen(s)) {
        EndDialog(dialog, 2);
        return 1;
    }
    if (s->height > 0 && s->width > 0) MoveWindow(dialog, 0, 0, s->width, s->height, FALSE);
    if (s->mode == 1)
        ShowWindow(dialog, SW_MAXIMIZE);
    else
        Kelvane_CenterWindow(dialog);
    formPrepare(s);
    layOut(dialog);
    SetFocus(static_cast<HWND>(s->frame));
    return 0;
}

}  // namespace

int32_t formRunDialog(FormState *state) {
    INT_PTR ended = DialogBoxParamW(static_cast<HINSTANCE>(gProcess.module), MAKEINTRESOURCEW(kTemplate),
                                    static_cast<HWND>(mxp_ActiveWindow()), Form_Dialog_Callback,
                                    reinterpret_cast<LPARAM>(state));
    return ended == 1 ? 1 : 2;
}

}  // namespace mx

extern "C" INT_PTR CALLBACK Form_Dialog_Callback(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    using namespace mx;
    if (message == WM_INITDIALOG) return initDialog(dialog, reinterpret_cast<FormState *>(lParam));
    auto *s = reinterpret_cast<FormState *>(GetWindowLongPtrW(dialog, GWLP_USERDATA));
    if (!s) return 0;
    switch (message) {
    case WM_SIZE:
        layOut(dialog);
        InvalidateRect(dialog, nullptr, TRUE);
        return 1;
    case WM_COMMAND: {
        int32_t id = GetWmCommandId(wParam, lParam);
        if (id == IDOK) {
            formSave(s);
            EndDialog(dialog, 1);
        } else if (id == IDCANCEL) {
            EndDialog(dialog, 2);
        }
        return 1;
    }
    case WM_DESTROY:
        return 1;
    default:
        return 0;
    }
}
