// The list view dialog, Win32: template 103 and its dialog procedure.
#include <windows.h>
#include <commctrl.h>

#include <cstdlib>
#include <cstring>

#include "base/u16.h"
#include "dialogs/dialog_ids.h"
#include "dialogs/dialogs.h"
#include "dialogs/win32/dialog_procs.h"
#include "engine/errors.h"
#include "engine/process_state.h"
#include "helperlib/kelvane_dialogs.h"
#include "helperlib/kelvane_lists.h"

namespace mx {

namespace {

// A heap copy for the dialog's lifetime; absent (after the system error
// box 153) when memory is short.
char16_t *copyText(const char16_t *text) {
    size_t bytes = (size_t(u16Len(text)) + 1) * sizeof(char16_t);
    auto *copy = static_cast<char16_t *>(std::malloc(bytes));
    if (!copy) {
        errShowSystemError(153);
        return nullptr;
    }
    std::memcpy(copy, text ? text : u"", bytes);
    return copy;
}

void init(HWND dialog, ListViewRecord &r) {
    r.dialog = dialog;
    HWND view = GetDlgItem(dialog, IDC_LISTVIEW);
    DWORD style = ((r.flags & kListViewGrid) ? LVS_EX_GRIDLINES : 0) |
                  ((r.flags & kListViewFullRow) ? LVS_EX_FULLROWSELECT : 0);
    if (style) SendMessageW(view, LVM_SETEXTENDEDLISTVIEWSTYLE, style, style);
    SetWindowTextW(dialog, wide(r.title ? r.title : u""));
    Kelvane_ListView_CreateColumnsW(view, 0, r.header);
    Kelvane_ListView_LoadFromFileExtendedW(view, r.file, 0);
}

}  // namespace

int32_t dlgListViewDialog(const char16_t *title, const char16_t *header, const char16_t *file,
                          int32_t flags) {
    INITCOMMONCONTROLSEX icc{sizeof icc, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&icc);
    ListViewRecord r{nullptr, copyText(title), copyText(header), copyText(file), flags};
    INT_PTR end = DialogBoxParamW(static_cast<HINSTANCE>(gProcess.module), MAKEINTRESOURCEW(IDD_LISTVIEW),
                                  GetActiveWindow(), ListViewDialogCallback, reinterpret_cast<LPARAM>(&r));
    std::free(r.title);
    std::free(r.header);
    std::free(r.file);
    return int32_t(end);
}

}  // namespace mx

extern "C" INT_PTR CALLBACK ListViewDialogCallback(HWND dialog, UINT message, WPARAM wParam,
                                                    LPARAM lParam) {
    using namespace mx;
    ListViewRecord *r = dialogRecord<ListViewRecord>(dialog, message, lParam);
    if (!r) return 0;
    switch (message) {
        case WM_INITDIALOG: init(dialog, *r); return 0;
        case WM_COMMAND:
            switch (GetWmCommandId(wParam, lParam)) {
                case IDOK: EndDialog(dialog, 1); return 1;
                case IDCANCEL: EndDialog(dialog, 2); return 1;
                default: return 0;
            }
        default: return 0;
    }
}
