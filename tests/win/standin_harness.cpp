#include "standin_harness.h"

#include <cstdio>

#include "win_harness.h"

namespace {
std::wstring logPath;
const wchar_t *kKey = L"Software\\Kelvane Software\\Report\\Install";
}  // namespace

std::wstring standinDir(const std::wstring &kind, const std::wstring &variant) {
    wchar_t exe[MAX_PATH];
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    std::wstring dir = exe;
    dir.resize(dir.rfind(L'\\'));
    return dir + L"\\modules\\" + kind + L"\\" + variant;
}

void standinLogStart() {
    if (logPath.empty()) logPath = winScratchDir() + L"\\calls.log";
    DeleteFileW(logPath.c_str());
    SetEnvironmentVariableW(L"MX_STANDIN_LOG", logPath.c_str());
}

std::vector<std::string> standinCalls() {
    std::vector<std::string> lines;
    std::string text = winReadFile(logPath), line;
    for (char c : text) {
        if (c == '\n') lines.push_back(line), line.clear();
        else line += c;
    }
    DeleteFileW(logPath.c_str());
    return lines;
}

void setAppPath(const std::wstring &path) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"AppPath", REG_SZ, path.c_str(),
                    DWORD((path.size() + 1) * sizeof(wchar_t)));
}

void removeAppPath() { RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, L"AppPath"); }

namespace {
HWND owner;
}

HWND activeOwner() {
    if (!owner)
        owner = CreateWindowExW(0, L"STATIC", L"Gastgeber", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 300,
                                 200, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetActiveWindow(owner);
    SetForegroundWindow(owner);
    return owner;
}

std::string utf8(const std::wstring &s) {
    int n = WideCharToMultiByte(CP_UTF8, 0, s.c_str(), int(s.size()), nullptr, 0, nullptr, nullptr);
    std::string out(size_t(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, s.c_str(), int(s.size()), out.data(), n, nullptr, nullptr);
    return out;
}

std::string hex(const void *p) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%llx", static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(p)));
    return buf;
}

void releaseOwner() {
    // A top-level window of a thread that waits for a child process would
    // block that child's broadcasts (DDE initiation): none may outlive a test.
    if (owner) DestroyWindow(owner);
    owner = nullptr;
}
