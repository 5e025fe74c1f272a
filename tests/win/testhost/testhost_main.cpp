// testhost.exe - a host with a real desktop for tests of other areas:
//   testhost.exe [--reply N] [--param TEXT]... [--log FILE] [--stay MS] [MACROFILE...]
// creates the windows of testhost_windows.h, runs each macro file through
// morvix32w.dll with its frame window as the host window (Print writes to
// standard output, boxes are closed unattended and reported on standard
// error), writes the host requests it received to FILE, then keeps its
// windows alive for MS milliseconds (handling messages) and exits with 0
// when every run answered 0, else 1.
#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <string>

#include "host_common.h"
#include "testhost_windows.h"
#include "unattended.h"

int wmain(int argc, wchar_t **argv) {
    LRESULT reply = MX_HOST_DONE;
    std::vector<std::wstring> params, macros;
    std::wstring log;
    DWORD stay = 0;
    for (int i = 1; i < argc; ++i) {
        std::wstring a = argv[i];
        bool more = i + 1 < argc;
        if (a == L"--reply" && more) reply = _wtol(argv[++i]);
        else if (a == L"--param" && more) params.push_back(argv[++i]);
        else if (a == L"--log" && more) log = argv[++i];
        else if (a == L"--stay" && more) stay = DWORD(_wtol(argv[++i]));
        else macros.push_back(a);
    }
    _setmode(_fileno(stdout), _O_BINARY);  // output as the native host writes it
    _setmode(_fileno(stderr), _O_BINARY);
    const TestDesktop &d = testDesktop();
    hostReset(reply, params);
    unattendedStart();
    HMODULE dll = LoadLibraryW(L"morvix32w.dll");
    auto run = reinterpret_cast<decltype(&Run_Macro)>(GetProcAddress(dll, "Run_Macro"));
    if (!run) return 2;
    int status = 0;
    for (const std::wstring &m : macros)
        if (run(GetModuleHandleW(nullptr), d.frame, m.c_str(), kHostTable, hostFunction, nullptr, 0, 1) != 0)
            status = 1;
    if (!log.empty()) {
        FILE *f = _wfopen(log.c_str(), L"wb");
        if (f) {
            std::string text = hostRequestLog();
            fwrite(text.data(), 1, text.size(), f);
            fclose(f);
        }
    }
    for (DWORD start = GetTickCount(); GetTickCount() - start < stay; Sleep(10)) pumpMessages();
    return status;
}
