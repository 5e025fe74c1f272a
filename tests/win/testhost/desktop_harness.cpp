#include "desktop_harness.h"

std::string runIn(HWND window, const std::string &text) {
    int n = MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, nullptr, 0);
    std::wstring w(size_t(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, w.data(), n);
    std::u16string u(w.begin(), w.end() - 1);
    WinRun r = winRunMemory(u, nullptr, -1, window);
    return r.result == 0 ? r.output : r.output + "result: " + std::to_string(r.result) + "\n";
}

std::string num(HWND w) { return std::to_string(long(reinterpret_cast<intptr_t>(w))); }

std::wstring binDir() {
    wchar_t path[MAX_PATH];
    DWORD n = GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring p(path, n);
    return p.substr(0, p.find_last_of(L'\\'));
}

std::string utf8(const std::wstring &s) {
    int n = WideCharToMultiByte(CP_UTF8, 0, s.c_str(), int(s.size()), nullptr, 0, nullptr, nullptr);
    std::string out(size_t(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, s.c_str(), int(s.size()), out.data(), n, nullptr, nullptr);
    return out;
}

std::string macroPath(const std::wstring &path) {
    std::string out;
    for (char c : utf8(path)) out += c == '\\' ? std::string("\\\\") : std::string(1, c);
    return out;
}
