// Helper library, Win32: filling list boxes and list views from list files
// and reading list-box entries back.
#include <windows.h>
#include <commctrl.h>

#include <cstdlib>
#include <cstring>

#include "base/u16.h"
#include "helperlib/kelvane_lists.h"

namespace mx {

namespace {

bool isListView(HWND hwnd) {
    wchar_t cls[32];
    return GetClassNameW(hwnd, cls, 32) && lstrcmpiW(cls, WC_LISTVIEWW) == 0;
}

wchar_t *wide(const std::u16string &s) {
    return const_cast<wchar_t *>(reinterpret_cast<const wchar_t *>(s.c_str()));
}

// A heap copy the dialog frees with free(); absent when memory is short.
char16_t *heapCopy(const std::u16string &s) {
    auto *copy = static_cast<char16_t *>(std::malloc((s.size() + 1) * sizeof(char16_t)));
    if (copy) std::memcpy(copy, s.c_str(), (s.size() + 1) * sizeof(char16_t));
    return copy;
}

int32_t fillListBox(HWND box, const std::vector<ListEntry> &entries) {
    int32_t added = 0;
    SendMessageW(box, WM_SETREDRAW, FALSE, 0);
    for (const ListEntry &e : entries) {
        LRESULT at = SendMessageW(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(e.display())));
        if (at < 0) break;
        SendMessageW(box, LB_SETITEMDATA, WPARAM(at), reinterpret_cast<LPARAM>(heapCopy(e.hidden())));
        ++added;
    }
    SendMessageW(box, WM_SETREDRAW, TRUE, 0);
    return added;
}

int32_t fillListView(HWND view, const std::vector<ListEntry> &entries) {
    HWND header = reinterpret_cast<HWND>(SendMessageW(view, LVM_GETHEADER, 0, 0));
    int columns = header ? int(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
    if (columns < 1) columns = 1;
    int32_t row = 0;
    for (const ListEntry &e : entries) {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = wide(e.cells[0]);
        int at = int(SendMessageW(view, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
        if (at < 0) break;
        for (int c = 1; c < columns && size_t(c) < e.cells.size(); ++c) {
            LVITEMW cell{};
            cell.iSubItem = c;
            cell.pszText = wide(e.cells[size_t(c)]);
            SendMessageW(view, LVM_SETITEMTEXTW, WPARAM(at), reinterpret_cast<LPARAM>(&cell));
        }
        ++row;
    }
    return row;
}

}  // namespace

int32_t Kelvane_ListView_LoadFromFileExtendedW(WindowHandle list, const char16_t *file, int32_t) {
    HWND hwnd = static_cast<HWND>(list);
    if (!hwnd || !IsWindow(hwnd)) return -1;
    std::vector<ListEntry> entries;
    if (!kelvaneReadListFile(file, GetParent(hwnd), entries)) return -1;
    return isListView(hwnd) ? fillListView(hwnd, entries) : fillListBox(hwnd, entries);
}

int32_t Kelvane_ListView_CreateColumnsW(WindowHandle listView, int32_t, const char16_t *header) {
    HWND view = static_cast<HWND>(listView);
    if (!view || !IsWindow(view)) return 0;
    int32_t n = 0;
    for (const ListColumn &c : kelvaneParseHeader(header)) {
        LVCOLUMNW col{};
        col.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        col.cx = c.width;
        col.pszText = wide(c.title);
        col.iSubItem = n;
        if (SendMessageW(view, LVM_INSERTCOLUMNW, WPARAM(n), reinterpret_cast<LPARAM>(&col)) < 0) break;
        ++n;
    }
    return n;
}

int32_t Kelvane_GetBoxEntryW(WindowHandle listBox, int32_t index, char16_t *buffer, int32_t capacity) {
    HWND box = static_cast<HWND>(listBox);
    if (buffer && capacity > 0) buffer[0] = 0;
    if (!box || !buffer || capacity < 1) return -1;
    if (index == -1) index = int32_t(SendMessageW(box, LB_GETCURSEL, 0, 0));
    LRESULT len = index < 0 ? LB_ERR : SendMessageW(box, LB_GETTEXTLEN, WPARAM(index), 0);
    if (len == LB_ERR) return -1;
    // LB_GETTEXT has no capacity: read into a buffer of the entry's length.
    std::u16string text(size_t(len) + 1, u'\0');
    len = SendMessageW(box, LB_GETTEXT, WPARAM(index), reinterpret_cast<LPARAM>(text.data()));
    if (len == LB_ERR) return -1;
    return u16Copy(buffer, capacity, text.c_str());
}

const char16_t *Kelvane_GetItemData(WindowHandle listBox, int32_t index) {
    HWND box = static_cast<HWND>(listBox);
    if (!box) return nullptr;
    if (index == -1) index = int32_t(SendMessageW(box, LB_GETCURSEL, 0, 0));
    if (index < 0) return nullptr;
    LRESULT data = SendMessageW(box, LB_GETITEMDATA, WPARAM(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<const char16_t *>(data);
}

}  // namespace mx
