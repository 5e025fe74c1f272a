// Running macros inside the test host: the frame window (or another window
// of the test desktop) is the window handed to the run.
#pragma once
#include <string>

#include "testhost_windows.h"
#include "win_harness.h"

// Runs a memory macro with window as the host's window; returns what it
// printed (boxes included). A failed run adds "result: N".
std::string runIn(HWND window, const std::string &text);

// A window handle as a macro sees it, in decimal.
std::string num(HWND w);

// The folder of the test programs (Windows path, no trailing backslash).
std::wstring binDir();

// A Windows path written inside a macro's text constant (backslashes doubled).
std::string macroPath(const std::wstring &path);

std::string utf8(const std::wstring &s);
