// Running macros through morvix32w.dll the way a host does: the DLL is
// loaded with LoadLibraryW, Print output and every box (read by a CBT hook
// and closed with its default button) are captured in order. Also the small
// path and text helpers every Windows test needs.
#pragma once
#include <windows.h>

#include <string>

#include "morvix.h"

struct WinExports {
    HMODULE dll;
    decltype(&Run_Macro) runMacro;
    decltype(&Run_MemMacroExt) runMemMacroExt;
    decltype(&Get_MacroHeader) getMacroHeader;
    decltype(&Get_MacroLib_Version) getMacroLibVersion;
    decltype(&Get_MacroLib_InternalFunctionList) getFunctionList;
    decltype(&Morvix_GetVersion) getVersion;
    decltype(&Morvix_GetInstance) getInstance;
    decltype(&Morvix_GetTlxModuleName) getTlxModuleName;
};

// The loaded library's exports (loaded once).
const WinExports &dll();

struct WinRun {
    LONG result = 0;
    std::string output;  // Print lines and "TITLE: TEXT" box lines, UTF-8
};

WinRun winRunMemory(const std::u16string &text, const wchar_t *title = nullptr, long abortAfter = -1,
                    HWND window = nullptr);
WinRun winRunFile(const std::u16string &command, int country = 1, long abortAfter = -1,
                  HWND window = nullptr,
                  const MX_FUNCTION_ROW *table = nullptr, MX_HOST_CALLBACK callback = nullptr);

// Runs a memory macro (UTF-8) with window as the host's window; returns what
// it printed (boxes included), followed by "result: N" when the run failed.
std::string runIn(HWND window, const std::string &text);

// A fresh empty directory (Windows path).
std::wstring winScratchDir();
// The folder of the test programs (no trailing backslash).
std::wstring binDir();

std::string winReadFile(const std::wstring &path);
void winWriteFile(const std::wstring &path, const std::string &bytes);

std::string utf8(const std::wstring &s);
std::u16string utf16(const std::string &utf8Text);
// A Windows path inside a macro's text constant (UTF-8, backslashes doubled).
std::string macroPath(const std::wstring &path);
// A window handle or pointer as a macro or a log shows it.
std::string num(HWND w);
std::string hex(const void *p);
