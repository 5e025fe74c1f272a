// Small pieces the box watcher and the answer hook of mxrun.exe share.
#pragma once
#include <windows.h>

#include <string>

namespace mxhost {

// Writes line to standard error as it is (UTF-8 bytes).
inline void toStandardError(const std::string &line) {
    DWORD written;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), line.data(), DWORD(line.size()), &written, nullptr);
}

// The window's text; empty for a window without one.
inline std::u16string windowText(HWND w) {
    int n = GetWindowTextLengthW(w);
    std::wstring s(size_t(n) + 1, L'\0');
    GetWindowTextW(w, s.data(), n + 1);
    s.resize(size_t(n));
    return std::u16string(s.begin(), s.end());
}

}  // namespace mxhost
