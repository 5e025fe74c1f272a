// The dialog procedures the library exports under these names, so that
// hosts and tools can recognise and drive the library's dialogs.
#pragma once
#include <windows.h>

#include "platform/win32/wide.h"

extern "C" {

// The input dialog (template 300); lParam of WM_INITDIALOG is an InputDialogRecord.
INT_PTR CALLBACK Anytext_Dialog_Callback(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// The list box dialog (template 10006); lParam is a ListBoxRecord.
INT_PTR CALLBACK ListBoxDialogCallback(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// The list view dialog (template 103); lParam is a ListViewRecord.
INT_PTR CALLBACK ListViewDialogCallback(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
}

namespace mx {

// The record a dialog keeps in its user data word (absent before WM_INITDIALOG).
template <class Record>
Record *dialogRecord(HWND dialog, UINT message, LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    return reinterpret_cast<Record *>(GetWindowLongPtrW(dialog, DWLP_USER));
}

}  // namespace mx
