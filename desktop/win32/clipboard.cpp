// The clipboard's Unicode text, Win32.
#include <windows.h>

#include <cstring>

#include "desktop/clipboard.h"

namespace mx {

int32_t dskReadClipboard(WindowHandle owner, char16_t *dest, int32_t capacity) {
    if (!IsClipboardFormatAvailable(CF_UNICODETEXT)) return 1;
    if (!OpenClipboard(static_cast<HWND>(owner))) return 1;
    int32_t result = 1;
    HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (const wchar_t *text = data ? static_cast<const wchar_t *>(GlobalLock(data)) : nullptr) {
        // The block may hold more than the text; never read past it.
        size_t units = GlobalSize(data) / sizeof(wchar_t);
        if (dest && capacity > 0) {
            int32_t n = 0;
            while (n < capacity - 1 && size_t(n) < units && text[n]) dest[n] = char16_t(text[n]), ++n;
            dest[n] = 0;
        }
        GlobalUnlock(data);
        result = 0;
    }
    CloseClipboard();
    return result;
}

int32_t dskWriteClipboard(WindowHandle owner, const char16_t *text, int32_t length) {
    if (length < 0) length = 0;
    if (!OpenClipboard(static_cast<HWND>(owner))) return 1;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, (size_t(length) + 1) * sizeof(wchar_t));
    int32_t result = 1;
    if (block) {
        if (auto *dst = static_cast<wchar_t *>(GlobalLock(block))) {
            if (length) std::memcpy(dst, text, size_t(length) * sizeof(wchar_t));
            dst[length] = 0;
            GlobalUnlock(block);
            EmptyClipboard();
            if (SetClipboardData(CF_UNICODETEXT, block)) result = 0;
        }
        if (result != 0) GlobalFree(block);  // the clipboard did not take it
    }
    CloseClipboard();
    return result;
}

}  // namespace mx
