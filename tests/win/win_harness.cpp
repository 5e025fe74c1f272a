#include "win_harness.h"

#include <cstdio>
#include <fstream>
#include <sstream>

#include "host_common.h"
#include "unattended.h"

namespace {
std::string captured;

void captureBox(const std::string &line) { captured += line; }

LONG CALLBACK capturePrint(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    if (number == 1 && count == 1) captured += hostFormatValue(args[0]) + "\n";
    return 0;
}

const WCHAR *w(const std::u16string &s) { return reinterpret_cast<const WCHAR *>(s.c_str()); }

template <class F>
WinRun capture(long abortAfter, F run) {
    unattendedStart(captureBox);
    hostSetAbortAfter(abortAfter);
    captured.clear();
    WinRun r;
    r.result = run(abortAfter >= 0 ? hostAbort : nullptr);
    r.output = captured;
    return r;
}

template <class T>
T entry(HMODULE dll, const char *name) {
    return reinterpret_cast<T>(GetProcAddress(dll, name));
}
}  // namespace

const WinExports &dll() {
    static WinExports e = [] {
        WinExports x{};
        x.dll = LoadLibraryW(L"morvix32w.dll");
        x.runMacro = entry<decltype(x.runMacro)>(x.dll, "Run_Macro");
        x.runMemMacroExt = entry<decltype(x.runMemMacroExt)>(x.dll, "Run_MemMacroExt");
        x.getMacroHeader = entry<decltype(x.getMacroHeader)>(x.dll, "Get_MacroHeader");
        x.getMacroLibVersion = entry<decltype(x.getMacroLibVersion)>(x.dll, "Get_MacroLib_Version");
        x.getFunctionList = entry<decltype(x.getFunctionList)>(x.dll, "Get_MacroLib_InternalFunctionList");
        x.getVersion = entry<decltype(x.getVersion)>(x.dll, "Morvix_GetVersion");
        x.getInstance = entry<decltype(x.getInstance)>(x.dll, "Morvix_GetInstance");
        x.getTlxModuleName = entry<decltype(x.getTlxModuleName)>(x.dll, "Morvix_GetTlxModuleName");
        return x;
    }();
    return e;
}

WinRun winRunMemory(const std::u16string &text, const wchar_t *title, long abortAfter, HWND window) {
    return capture(abortAfter, [&](MX_ABORT_CALLBACK abort) {
        return dll().runMemMacroExt(GetModuleHandleW(nullptr), window, w(text), title, kHostTable,
                                    capturePrint, abort, 0, 1, 0);
    });
}

WinRun winRunFile(const std::u16string &command, int country, long abortAfter, HWND window,
                  const MX_FUNCTION_ROW *table, MX_HOST_CALLBACK callback) {
    return capture(abortAfter, [&](MX_ABORT_CALLBACK abort) {
        return dll().runMacro(GetModuleHandleW(nullptr), window, w(command), table ? table : kHostTable,
                              callback ? callback : capturePrint, abort, 0, country);
    });
}

std::string runIn(HWND window, const std::string &text) {
    WinRun r = winRunMemory(utf16(text), nullptr, -1, window);
    return r.result == 0 ? r.output : r.output + "result: " + std::to_string(r.result) + "\n";
}

std::wstring winScratchDir() {
    wchar_t base[MAX_PATH], name[MAX_PATH];
    GetTempPathW(MAX_PATH, base);
    GetTempFileNameW(base, L"mxt", 0, name);
    DeleteFileW(name);
    CreateDirectoryW(name, nullptr);
    return name;
}

std::wstring binDir() {
    wchar_t path[MAX_PATH];
    std::wstring p(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    return p.substr(0, p.find_last_of(L'\\'));
}

std::string winReadFile(const std::wstring &path) {
    std::ifstream f(path.c_str(), std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
}

void winWriteFile(const std::wstring &path, const std::string &bytes) {
    std::ofstream f(path.c_str(), std::ios::binary);
    f << bytes;
}

std::string utf8(const std::wstring &s) {
    int n = WideCharToMultiByte(CP_UTF8, 0, s.c_str(), int(s.size()), nullptr, 0, nullptr, nullptr);
    std::string out(size_t(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, s.c_str(), int(s.size()), out.data(), n, nullptr, nullptr);
    return out;
}

std::u16string utf16(const std::string &text) {
    int n = MultiByteToWideChar(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0);
    std::u16string out(size_t(n), u'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), int(text.size()), reinterpret_cast<wchar_t *>(out.data()), n);
    return out;
}

std::string macroPath(const std::wstring &path) {
    std::string out;
    for (char c : utf8(path)) out += c == '\\' ? std::string("\\\\") : std::string(1, c);
    return out;
}

std::string num(HWND w) { return std::to_string(long(reinterpret_cast<intptr_t>(w))); }

std::string hex(const void *p) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%llx", static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(p)));
    return buf;
}
