// The exported functions of the library. Texts cross this boundary as WCHAR,
// which is a 16-bit unit on every build; the core works on char16_t.
#include "morvix.h"

#include <new>

#include "builtins/table.h"
#include "helperlib/kelvane_text.h"
#include "helperlib/kelvane_version.h"
#include "engine/process_state.h"
#include "interface/attach.h"
#include "engine/run_driver.h"
#include "interface/run_entry.h"

namespace {

const char16_t *core(const WCHAR *s) { return reinterpret_cast<const char16_t *>(s); }
char16_t *core(WCHAR *s) { return reinterpret_cast<char16_t *>(s); }
const mx::FunctionRow *core(const MX_FUNCTION_ROW *rows) {
    return reinterpret_cast<const mx::FunctionRow *>(rows);
}
mx::HostCallback core(MX_HOST_CALLBACK cb) { return reinterpret_cast<mx::HostCallback>(cb); }
mx::AbortCallback core(MX_ABORT_CALLBACK cb) { return reinterpret_cast<mx::AbortCallback>(cb); }

LONG run(const mx::RunRequest &request) {
    mx::RunContext ctx;
    mx::entryInit(ctx, request);
    // The run itself turns exhausted memory into error 116; showing that
    // error may itself run out of memory, and no exception may reach the host.
    try {
        return mx::entryRun(ctx);
    } catch (const std::bad_alloc &) {
        return -1;
    }
}

#ifndef _WIN32
// Without a DLL entry point the native build attaches when the program starts
// and detaches when it ends.
struct NativeAttach {
    NativeAttach() { mx::processAttach(nullptr); }
    ~NativeAttach() { mx::processDetach(); }
} nativeAttach;
#endif

}  // namespace

extern "C" {

LONG MX_EXPORT Run_Macro(HINSTANCE hostInstance, HWND window, const WCHAR *macroCommand,
                         const MX_FUNCTION_ROW *hostTable, MX_HOST_CALLBACK hostCallback,
                         MX_ABORT_CALLBACK abortCallback, LONG_PTR callbackValue,
                         LONG countryCode) {
    return run({hostInstance, window, core(macroCommand), nullptr, core(macroCommand),
                core(hostTable), core(hostCallback), core(abortCallback), callbackValue,
                countryCode});
}

LONG MX_EXPORT Run_MemMacroExt(HINSTANCE hostInstance, HWND window, const WCHAR *macroText,
                               const WCHAR *macroTitle, const MX_FUNCTION_ROW *hostTable,
                               MX_HOST_CALLBACK hostCallback, MX_ABORT_CALLBACK abortCallback,
                               LONG_PTR callbackValue, LONG countryCode, LONG) {
    return run({hostInstance, window, nullptr, core(macroText), core(macroTitle), core(hostTable),
                core(hostCallback), core(abortCallback), callbackValue, countryCode});
}

LONG MX_EXPORT Run_MemMacro(HINSTANCE hostInstance, HWND window, const WCHAR *macroText,
                            const MX_FUNCTION_ROW *hostTable, MX_HOST_CALLBACK hostCallback,
                            MX_ABORT_CALLBACK abortCallback, LONG_PTR callbackValue,
                            LONG countryCode, LONG reserved) {
    return Run_MemMacroExt(hostInstance, window, macroText, nullptr, hostTable, hostCallback,
                           abortCallback, callbackValue, countryCode, reserved);
}

LONG MX_EXPORT Get_MacroHeader(const WCHAR *macroCommand, WCHAR *name, LONG capacity) {
    return mx::runReadHeader(core(macroCommand), core(name), capacity);
}

LONG MX_EXPORT Morvix_GetVersion(WCHAR *buffer, LONG capacity) {
    return mx::Kelvane_GetResourceFileVersionW(mx::gProcess.module, 1, core(buffer), capacity, 0);
}

LONG MX_EXPORT Get_MacroLib_Version(WCHAR *buffer, LONG capacity) {
    return Morvix_GetVersion(buffer, capacity);
}

HINSTANCE MX_EXPORT Morvix_GetInstance(void) { return static_cast<HINSTANCE>(mx::gProcess.module); }

LONG MX_EXPORT Morvix_GetTlxModuleName(WCHAR *buffer, LONG capacity) {
    return mx::KelvaneCopyStringW(core(buffer), u"MORVIXDLL", capacity);
}

const MX_FUNCTION_ROW *MX_EXPORT Get_MacroLib_InternalFunctionList(void) {
    return reinterpret_cast<const MX_FUNCTION_ROW *>(mx::biTable());
}

}  // extern "C"
