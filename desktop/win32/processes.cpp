// Processes, the shell's associations and the environment, Win32.
#include <windows.h>
#include <shellapi.h>

#include <cstdlib>
#include <string>

#include "base/u16.h"
#include "desktop/processes.h"
#include "platform/win32/wide.h"

namespace mx {

namespace {

// Starts commandLine (CreateProcessW may write into its command line, so it
// gets a copy). False with the last error set when it cannot.
bool start(const char16_t *commandLine, int32_t showMode, DWORD flags, PROCESS_INFORMATION *pi) {
    std::wstring line(wideOrEmpty(commandLine));
    STARTUPINFOW si{};
    si.cb = sizeof si;
    si.dwFlags = STARTF_USESHOWWINDOW;
    si.wShowWindow = WORD(showMode & 0xFFFF);
    *pi = {};
    return CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, flags, nullptr, nullptr, &si, pi);
}

}  // namespace

int32_t dskCreateProcess(const char16_t *commandLine, int32_t showMode) {
    PROCESS_INFORMATION pi;
    if (!start(commandLine, showMode, 0, &pi)) return -1;
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return 0;
}

int32_t dskExecuteProgramModal(const char16_t *commandLine, int32_t showFlag, int32_t *exitCode) {
    PROCESS_INFORMATION pi;
    if (!start(commandLine, showFlag ? showFlag : SW_SHOW, NORMAL_PRIORITY_CLASS, &pi))
        return int32_t(GetLastError());
    WaitForSingleObject(pi.hProcess, INFINITE);
    DWORD code = 0;
    int32_t result = 0;
    if (GetExitCodeProcess(pi.hProcess, &code))
        *exitCode = int32_t(code);
    else
        result = int32_t(GetLastError());
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return result;
}

int32_t dskShellExecute(const char16_t *file, const char16_t *verb, int32_t showFlags) {
    HINSTANCE r = ShellExecuteW(nullptr, wideOrEmpty(verb), wideOrEmpty(file), nullptr, L"", showFlags);
    return reinterpret_cast<INT_PTR>(r) <= 32 ? -1 : 0;
}

int32_t dskFindExecutable(const char16_t *file, char16_t *program, int32_t capacity) {
    wchar_t found[MAX_PATH] = {};
    HINSTANCE r = FindExecutableW(wideOrEmpty(file), L"", found);
    if (reinterpret_cast<INT_PTR>(r) <= 32) return -1;
    u16Copy(program, capacity, narrow(found));
    return 0;
}

int32_t dskGetEnvironment(const char16_t *name, char16_t *value, int32_t capacity) {
    wchar_t key[100];
    int32_t n = 0;
    for (; name && name[n] && n < 99; ++n) key[n] = wchar_t(name[n]);
    key[n] = 0;
    const wchar_t *found = _wgetenv(key);
    if (!found) return -1;
    u16Copy(value, capacity, narrow(found));
    return 0;
}

}  // namespace mx
