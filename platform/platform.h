// The operating-system seam. The portable core calls only these functions;
// platform/win32/ implements them with the Win32 API and the C runtime,
// platform/posix/ as a machine without a desktop would answer.
// Every function states its result and its side effects.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// ---- characters -------------------------------------------------------------

// Non-zero when c is a letter as the platform's letter test sees it (umlauts count).
bool mxp_IsAlpha(char16_t c);
// Non-zero for letters and digits.
bool mxp_IsAlphaNumeric(char16_t c);

// ---- windows and boxes ------------------------------------------------------

// The top-level ancestor of a window (the window itself when it has no
// parent, absent for absent). No side effects.
WindowHandle mxp_TopLevelWindow(WindowHandle window);

// Message box styles the library uses.
enum : uint32_t {
    kBoxOk = 0x0,
    kBoxIconError = 0x10,
    kBoxIconInfo = 0x40,
    kBoxTaskModal = 0x2000,
};

// Shows a modal message box and waits for it to be closed. Returns the
// button pressed (1 for OK), or 0 when no box could be shown. The native build
// writes "TITLE: TEXT\n" to standard error and returns 0.
int32_t mxp_MessageBox(WindowHandle owner, const char16_t *text, const char16_t *title,
                       uint32_t style);

// Where the native build's boxes go instead of standard error (tests
// capture them); absent restores standard error. No effect on Windows.
using BoxSink = void (*)(const char16_t *title, const char16_t *text);
void mxp_SetBoxSink(BoxSink sink);

// The currently active window of the thread's desktop, or absent.
WindowHandle mxp_ActiveWindow();

// Registers a process-wide window message name; returns its number or 0.
uint32_t mxp_RegisterWindowMessage(const char16_t *name);

// ---- resources --------------------------------------------------------------

// Loads string resource id of module into buf (at most capacity - 1 units,
// terminated). Returns its length; 0 and an empty text when there is none.
int32_t mxp_LoadString(ModuleHandle module, uint32_t id, char16_t *buf, int32_t capacity);

// The file version "a.b.c.d" of module's version resource. Returns its length,
// 0 and an empty buffer when there is none.
int32_t mxp_ModuleFileVersion(ModuleHandle module, char16_t *buf, int32_t capacity);

}  // namespace mx
