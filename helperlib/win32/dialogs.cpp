// Helper library, Win32: dialog translation, edit selection and the
// platform's file and folder choosers.
#include <windows.h>
#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

#include <vector>

#include "base/u16.h"
#include "helperlib/kelvane_dialogs.h"
#include "platform/win32/wide.h"

namespace mx {

int32_t TLX_TranslateDialogW(WindowHandle dialog, const char16_t *, int32_t) {
    // No translation source is installed: the template texts stay.
    return dialog && IsWindow(static_cast<HWND>(dialog)) ? 1 : 0;
}

int32_t SendEmSetSel(WindowHandle edit, int32_t, int32_t first, int32_t last) {
    HWND hwnd = static_cast<HWND>(edit);
    if (!hwnd || !IsWindow(hwnd)) return 0;
    SendMessageW(hwnd, EM_SETSEL, WPARAM(first), LPARAM(last));
    return 1;
}

int32_t Kelvane_ExtendedFileNameDialogW(char16_t *buffer, int32_t capacity,
                                        const KelvaneFileRequest *request) {
    if (!request || !buffer || capacity < 1) return 0;
    // The chooser needs room for a full path whatever the variable holds;
    // the answer is cut to the variable's capacity afterwards.
    std::vector<wchar_t> name(size_t(capacity > 32768 ? capacity : 32768), L'\0');
    u16Copy(reinterpret_cast<char16_t *>(name.data()), int32_t(name.size()), buffer);
    std::vector<wchar_t> filter(size_t(u16Len(request->filter)) + 16, L'\0');
    if (!kelvaneFilterToPairs(request->filter, reinterpret_cast<char16_t *>(filter.data()),
                              int32_t(filter.size())))
        return 0;
    OPENFILENAMEW ofn{};
    ofn.lStructSize = sizeof ofn;
    ofn.hwndOwner = GetActiveWindow();
    ofn.hInstance = static_cast<HINSTANCE>(request->instance);
    ofn.lpstrFilter = filter.data();
    ofn.nFilterIndex = 1;
    ofn.lpstrFile = name.data();
    ofn.nMaxFile = DWORD(name.size());
    ofn.lpstrTitle = request->title && *request->title ? wide(request->title) : nullptr;
    ofn.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    BOOL chosen = request->mode == kFileSave ? GetSaveFileNameW(&ofn) : GetOpenFileNameW(&ofn);
    if (!chosen) return 0;
    u16Copy(buffer, capacity, reinterpret_cast<const char16_t *>(name.data()));
    return 1;
}

namespace {

struct FolderStart {
    const char16_t *path;
    const char16_t *title;
};

int CALLBACK folderCallback(HWND dialog, UINT message, LPARAM, LPARAM data) {
    if (message == BFFM_INITIALIZED) {
        const FolderStart *start = reinterpret_cast<const FolderStart *>(data);
        if (start->title && *start->title) SetWindowTextW(dialog, wide(start->title));
        if (start->path && *start->path)
            SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(start->path));
    }
    return 0;
}

}  // namespace

int32_t Kelvane_DirectoryDialogW(char16_t *buffer, int32_t capacity, const char16_t *title,
                                 int32_t flags, int32_t) {
    if (!buffer || capacity < 1) return 0;
    FolderStart start{buffer, title};
    BROWSEINFOW bi{};
    bi.hwndOwner = GetActiveWindow();
    bi.lpszTitle = title ? wide(title) : L"";
    bi.ulFlags = BIF_RETURNONLYFSDIRS | ((flags & 1) ? BIF_EDITBOX : 0);
    bi.lpfn = folderCallback;
    bi.lParam = reinterpret_cast<LPARAM>(&start);
    // The folder chooser needs COM on this thread; a host may have set it up already.
    HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    LPITEMIDLIST chosen = SHBrowseForFolderW(&bi);
    if (SUCCEEDED(com)) CoUninitialize();
    if (!chosen) return 0;
    wchar_t path[MAX_PATH * 4] = {};
    BOOL ok = SHGetPathFromIDListW(chosen, path);
    CoTaskMemFree(chosen);
    if (!ok) return 0;
    u16Copy(buffer, capacity, reinterpret_cast<const char16_t *>(path));
    return 1;
}

}  // namespace mx
