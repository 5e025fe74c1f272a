// mxrun.exe: runs a macro on Windows through morvix32w.dll, loaded with
// LoadLibraryW like any host would, or checks macros with --check. Options
// and output as the native morvix.
#include <windows.h>

#include <cstdio>
#include <fcntl.h>
#include <io.h>

#include "check_command.h"
#include "engine/process_state.h"
#include "host_common.h"
#include "answer_hook.h"
#include "unattended.h"

namespace {

struct Exports {
    decltype(&Run_Macro) runMacro;
    decltype(&Run_MemMacro) runMemMacro;
    decltype(&Run_MemMacroExt) runMemMacroExt;
};

bool load(Exports &e) {
    HMODULE dll = LoadLibraryW(L"morvix32w.dll");
    if (!dll) return false;
    e.runMacro = reinterpret_cast<decltype(&Run_Macro)>(GetProcAddress(dll, "Run_Macro"));
    e.runMemMacro = reinterpret_cast<decltype(&Run_MemMacro)>(GetProcAddress(dll, "Run_MemMacro"));
    e.runMemMacroExt =
        reinterpret_cast<decltype(&Run_MemMacroExt)>(GetProcAddress(dll, "Run_MemMacroExt"));
    return e.runMacro && e.runMemMacro && e.runMemMacroExt;
}

const WCHAR *w(const std::u16string &s) { return reinterpret_cast<const WCHAR *>(s.c_str()); }

// --check FILE...: the engine's check, linked in, with the DLL's built-in
// table and its string table, so the messages are the run's own.
int checkCommand(const std::vector<std::u16string> &args) {
    HMODULE dll = LoadLibraryW(L"morvix32w.dll");
    auto table = dll ? reinterpret_cast<decltype(&Get_MacroLib_InternalFunctionList)>(
                           reinterpret_cast<void *>(GetProcAddress(dll, "Get_MacroLib_InternalFunctionList")))
                     : nullptr;
    if (!table) {
        std::fprintf(stderr, "mxrun: morvix32w.dll cannot be loaded\n");
        return 70;
    }
    mx::gProcess.module = dll;
    mx::gProcess.tlxModuleName = u"MORVIXDLL";
    return hostCheckFiles({args.begin() + 1, args.end()}, table());
}

}  // namespace

int wmain(int argc, wchar_t **argv) {
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    std::vector<std::u16string> args;
    for (int i = 1; i < argc; ++i) args.emplace_back(reinterpret_cast<const char16_t *>(argv[i]));
    if (!args.empty() && args[0] == u"--check") return checkCommand(args);
    HostOptions o;
    std::string error;
    if (!hostParseArgs(args, o, error)) {
        std::fprintf(stderr, "mxrun: %s\n%s", error.c_str(), hostUsage());
        return 64;
    }
    Exports e;
    if (!load(e)) {
        std::fprintf(stderr, "mxrun: morvix32w.dll cannot be loaded\n");
        return 70;
    }
    if (!o.answers.empty()) {
        // The answer script answers every dialog, message boxes included.
        if (!answersLoad(o.answers, error)) {
            std::fprintf(stderr, "mxrun: %s\n", error.c_str());
            return 66;
        }
        answerHookStart();
    } else if (o.unattended) {
        unattendedStart();
    }
    hostSetAbortAfter(o.abortAfter);
    MX_ABORT_CALLBACK abort = o.abortAfter >= 0 ? hostAbort : nullptr;
    LONG r;
    if (o.memory) {
        r = o.hasTitle ? e.runMemMacroExt(GetModuleHandleW(nullptr), nullptr, w(o.text), w(o.title),
                                          kHostTable, hostFunction, abort, 0, o.country, 0)
                       : e.runMemMacro(GetModuleHandleW(nullptr), nullptr, w(o.text), kHostTable,
                                       hostFunction, abort, 0, o.country, 0);
    } else {
        std::u16string cmd = hostMacroCommand(o);
        r = e.runMacro(GetModuleHandleW(nullptr), nullptr, w(cmd), kHostTable, hostFunction, abort, 0,
                       o.country);
    }
    return hostExitStatus(r);
}
