#include "standin_harness.h"

#include "win_harness.h"

namespace {
std::wstring logPath;
const wchar_t *kKey = L"Software\\Kelvane Software\\Report\\Install";
HWND owner;
}  // namespace

std::wstring standinDir(const std::wstring &kind, const std::wstring &variant) {
    return binDir() + L"\\modules\\" + kind + L"\\" + variant;
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

HWND activeOwner() {
    if (!owner)
        owner = CreateWindowExW(0, L"STATIC", L"Gastgeber", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 300,
                                200, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetActiveWindow(owner);
    SetForegroundWindow(owner);
    return owner;
}

void releaseOwner() {
    // A top-level window of a thread that waits for a child process would
    // block that child's broadcasts (DDE initiation): none may outlive a test.
    if (owner) DestroyWindow(owner);
    owner = nullptr;
}
