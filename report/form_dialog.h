// The form dialog: the library's dialog (template 10005) hosting a form that
// the form module MSKDLG32.DLL draws inside its frame, loads from and saves
// to a destination file.
#pragma once
#include <cstdint>

#include "base/handles.h"
#include "report/form_entries.h"

namespace mx {

// One dialog's state, made per call and freed after the dialog.
struct FormState {
    const char16_t *form;
    const char16_t *destFile;
    const char16_t *title;
    int32_t height;
    int32_t width;
    int32_t mode;
    int32_t flags;  // kept, read by nothing
    WindowHandle dialog;
    WindowHandle frame;  // control 1032, the form's parent
    void *formHandle;
    ModuleHandle module;
    form::Open open;
    form::MakeUntitled makeUntitled;
    form::SetWorkModeExt setWorkModeExt;
    form::PerformBeginMacro performBeginMacro;
    form::SetHwndNotify setHwndNotify;
    form::SetChangeFlag setChangeFlag;
    form::LoadFromProfileExtended loadFromProfileExtended;
    form::SaveToProfileExtended saveToProfileExtended;
    form::DataAccess dataAccess;
};

// FormDialog: 2 at once for an empty form name; loads the form module
// (message 2000 when it cannot) and its nine entry points (2001 naming the
// first missing one), runs the dialog, unloads the module. Returns 1 when
// the dialog ended with OK, 2 otherwise. Shows 153 when the state cannot
// be made.
int32_t reportFormDialog(const char16_t *form, const char16_t *destFile, const char16_t *title,
                   int32_t height, int32_t width, int32_t mode, int32_t flags);

// Runs template 10005 modally for state, owned by the active window.
// Returns the value the dialog ended with; 2 when it could not run (always
// on Linux, which has no desktop).
int32_t formRunDialog(FormState *state);

// The steps of the dialog that touch the form, in their order: open it in
// the frame (false when the module answers null), then prepare it.
bool formOpen(FormState *state);
void formPrepare(FormState *state);

// On OK: saves the form to a non-blank destination file, once formatted and
// once neutral, and hands it the data access call.
void formSave(FormState *state);

}  // namespace mx
