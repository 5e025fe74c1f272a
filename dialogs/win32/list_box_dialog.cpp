// The list box dialog, Win32: template 10006 and its dialog procedure.
#include <windows.h>

#include <cstdlib>

#include "base/u16.h"
#include "dialogs/dialog_ids.h"
#include "dialogs/dialogs.h"
#include "dialogs/win32/dialog_procs.h"
#include "engine/process_state.h"
#include "helperlib/kelvane_dialogs.h"
#include "helperlib/kelvane_lists.h"
#include "helperlib/kelvane_text.h"

namespace mx {

namespace {

constexpr int kListIds[] = {IDC_LIST_SORTED, IDC_LIST_PLAIN, IDC_LIST_SORTED_MULTI, IDC_LIST_MULTI};
constexpr int32_t kEntryReadCapacity = 1000;

int listIdFor(int32_t flags) {
    bool sorted = flags & kListSorted, multi = flags & kListMulti;
    if (sorted && multi) return IDC_LIST_SORTED_MULTI;
    if (multi) return IDC_LIST_MULTI;
    return sorted ? IDC_LIST_SORTED : IDC_LIST_PLAIN;
}

void layout(HWND dialog, HWND list) {
    RECT client, ok;
    GetClientRect(dialog, &client);
    HWND okButton = GetDlgItem(dialog, IDOK);
    GetWindowRect(okButton, &ok);
    int bw = ok.right - ok.left, bh = ok.bottom - ok.top;
    ListBoxLayout l = dlgListBoxLayout(client.right, client.bottom, bw, bh);
    MoveWindow(list, l.listLeft, l.listTop, l.listRight - l.listLeft, l.listBottom - l.listTop, TRUE);
    MoveWindow(okButton, l.okLeft, l.buttonTop, bw, bh, TRUE);
    MoveWindow(GetDlgItem(dialog, IDCANCEL), l.cancelLeft, l.buttonTop, bw, bh, TRUE);
}

void place(HWND dialog, const ListBoxRecord &r) {
    int width = r.width, height = r.height;
    if (!(height > 0 && width > 0)) {
        RECT rc;
        GetWindowRect(dialog, &rc);
        width = rc.right - rc.left;
        height = rc.bottom - rc.top;
    }
    int x = r.x, y = r.y;
    if (x < 0 || y < 0) {
        x = (GetSystemMetrics(SM_CXSCREEN) - width) / 2;
        y = (GetSystemMetrics(SM_CYSCREEN) - height) / 2;
    }
    MoveWindow(dialog, x, y, width, height, TRUE);
}

void init(HWND dialog, ListBoxRecord &r) {
    TLX_TranslateDialogW(dialog, gProcess.tlxModuleName, 0);
    r.dialog = dialog;
    SetWindowTextW(dialog, wide(r.title ? r.title : u""));
    HWND list = GetDlgItem(dialog, listIdFor(r.flags));
    r.list = list;
    for (int id : kListIds) ShowWindow(GetDlgItem(dialog, id), SW_HIDE);
    place(dialog, r);
    ShowWindow(list, SW_SHOW);
    layout(dialog, list);
    Kelvane_ListView_LoadFromFileExtendedW(list, r.file, 0);
    SendMessageW(list, LB_SETCURSEL, 0, 0);
    if (r.scrollWidth > 0) SendMessageW(list, LB_SETHORIZONTALEXTENT, WPARAM(r.scrollWidth), 0);
    SetFocus(list);
}

int32_t acceptSingle(ListBoxRecord &r) {
    HWND list = static_cast<HWND>(r.list);
    LRESULT at = SendMessageW(list, LB_GETCURSEL, 0, 0);
    if (at < 0) return kListNothingSelected;
    Kelvane_GetBoxEntryW(list, -1, r.first, r.firstCapacity);
    KelvaneCopyStringW(r.second, Kelvane_GetItemData(list, -1), r.secondCapacity);
    return int32_t(at) + 1;
}

int32_t acceptMulti(ListBoxRecord &r) {
    HWND list = static_cast<HWND>(r.list);
    LRESULT count = SendMessageW(list, LB_GETSELCOUNT, 0, 0);
    if (count <= 0) return kListNothingSelected;
    int *picked = static_cast<int *>(std::malloc(size_t(count) * sizeof(int)));
    if (!picked) return kListNoMemory;
    count = SendMessageW(list, LB_GETSELITEMS, WPARAM(count), reinterpret_cast<LPARAM>(picked));
    char16_t entry[kEntryReadCapacity];
    for (LRESULT i = 0; i < count; ++i) {
        if (i > 0) {
            KelvaneAppendStringW(r.first, u"\t", r.firstCapacity);
            KelvaneAppendStringW(r.second, u"\t", r.secondCapacity);
        }
        Kelvane_GetBoxEntryW(list, picked[i], entry, kEntryReadCapacity);
        KelvaneAppendStringW(r.first, entry, r.firstCapacity);
        KelvaneAppendStringW(r.second, Kelvane_GetItemData(list, picked[i]), r.secondCapacity);
    }
    int32_t result = count > 0 ? picked[0] + 1 : kListNothingSelected;
    std::free(picked);
    return result;
}

void accept(HWND dialog, ListBoxRecord &r) {
    if (r.first && r.firstCapacity > 0) r.first[0] = 0;
    if (r.second && r.secondCapacity > 0) r.second[0] = 0;
    r.result = (r.flags & kListMulti) ? acceptMulti(r) : acceptSingle(r);
    EndDialog(dialog, 1);
}

// Every entry's hidden value is a heap text the loader made for the dialog.
void freeHiddenValues(HWND list) {
    LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        LRESULT data = SendMessageW(list, LB_GETITEMDATA, WPARAM(i), 0);
        if (data != LB_ERR && data) {
            std::free(reinterpret_cast<void *>(data));
            SendMessageW(list, LB_SETITEMDATA, WPARAM(i), 0);
        }
    }
}

}  // namespace

int32_t dlgListBoxDialog(ListBoxRecord &record) {
    record.result = 0;
    DialogBoxParamW(static_cast<HINSTANCE>(gProcess.module), MAKEINTRESOURCEW(IDD_LISTBOX),
                    GetActiveWindow(), ListBoxDialogCallback, reinterpret_cast<LPARAM>(&record));
    return record.result;
}

}  // namespace mx

extern "C" INT_PTR CALLBACK ListBoxDialogCallback(HWND dialog, UINT message, WPARAM wParam,
                                                   LPARAM lParam) {
    using namespace mx;
    ListBoxRecord *r = dialogRecord<ListBoxRecord>(dialog, message, lParam);
    if (!r) return 0;
    switch (message) {
        case WM_INITDIALOG: init(dialog, *r); return 0;
        case WM_SIZE:
            if (r->list) layout(dialog, static_cast<HWND>(r->list));
            return 1;
        case WM_COMMAND:
            switch (GetWmCommandId(wParam, lParam)) {
                case IDOK: accept(dialog, *r); return 1;
                case IDCANCEL:
                    r->result = kListCancelled;
                    EndDialog(dialog, 2);
                    return 1;
                default: return 1;
            }
        case WM_DESTROY:
            if (r->list) freeHiddenValues(static_cast<HWND>(r->list));
            return 1;
        default: return 0;
    }
}
