// The stand-in run-time modules (tests/modules) under Wine: their
// directories beside the test program, their call log, the engine location
// in the registry, and an owner window that is active while a macro runs.
#pragma once
#include <windows.h>

#include <string>
#include <vector>

// bin\modules\KIND\VARIANT (KIND "report" or "form").
std::wstring standinDir(const std::wstring &kind, const std::wstring &variant);

// Starts a fresh call log for the stand-ins in a scratch directory.
void standinLogStart();
// The lines logged since the last call (the log starts anew).
std::vector<std::string> standinCalls();

// Sets, blanks or removes the current user's engine location "AppPath".
void setAppPath(const std::wstring &path);
void removeAppPath();

// A visible top-level window of the test made the active one.
HWND activeOwner();
// Destroys that window (call when the test ends).
void releaseOwner();
