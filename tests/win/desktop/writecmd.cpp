// writecmd.exe FILE [...]: writes its whole command line (UTF-8) to
// FILE.cmdline, through a temporary name of its own so a reader never sees
// half of it, even while a second start for the same file writes too.
#include <windows.h>

#include <string>

int wmain(int argc, wchar_t **argv) {
    if (argc < 2) return 1;
    const wchar_t *line = GetCommandLineW();
    int n = WideCharToMultiByte(CP_UTF8, 0, line, -1, nullptr, 0, nullptr, nullptr);
    std::string bytes(size_t(n > 0 ? n - 1 : 0), '\0');
    if (n > 1) WideCharToMultiByte(CP_UTF8, 0, line, -1, bytes.data(), n, nullptr, nullptr);
    std::wstring target = std::wstring(argv[1]) + L".cmdline", temp = target + std::to_wstring(GetCurrentProcessId()) + L".tmp";
    HANDLE f = CreateFileW(temp.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (f == INVALID_HANDLE_VALUE) return 1;
    DWORD written = 0;
    WriteFile(f, bytes.data(), DWORD(bytes.size()), &written, nullptr);
    CloseHandle(f);
    return MoveFileExW(temp.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
