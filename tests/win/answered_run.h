// Runs through morvix32w.dll whose dialogs a user answers: the answer hook
// of mxrun.exe carries out an answer script in the real windows, and the
// test sees each dialog before its answer.
#pragma once
#include <windows.h>

#include <functional>
#include <string>

#include "answer_hook.h"

using DialogLook = std::function<void(HWND dialog, mx::DialogKind kind)>;

// A visible top-level window of the test that stands for the host's window.
HWND answeredHost();

// Runs the memory macro (UTF-8) with window as the host's window and the
// answer script answers; look sees each dialog first. Returns the Print
// lines, the boxes and the notes of the script in order, then "result: N".
// Fails the test when an answer is left.
std::string runAnswered(const std::string &answers, const std::string &macro, DialogLook look = nullptr,
                        HWND window = answeredHost());
