// The dialogs macros open: message boxes, the input dialog, the list box and
// list view dialogs and the file and folder choosers. Plain functions that
// the dispatch handlers call; none sets an error code.
#pragma once
#include <cstdint>

#include "dialogs/dialog_records.h"
#include "engine/run_context.h"

namespace mx {

// ---- message boxes (message_box.cpp, */message_box_show.cpp) ----------------

// Button values a macro passes and gets back.
enum : int32_t { kAnswerOk = 1, kAnswerCancel = 2, kAnswerYes = 4, kAnswerNo = 8 };

// The platform style for an icon (33, 63, 73, 83; others: none), a button
// set (1, 3, 12, 14; others: OK) and the modality.
uint32_t dlgMessageStyle(int32_t icon, int32_t buttons, bool systemModal);

// The platform's answer (IDOK ...) as the macro's value; anything else 0.
int32_t dlgButtonValue(int32_t pressed);

// Shows a box owned by the window that has the focus, gives the focus back
// afterwards and returns the pressed button's value (0: no box shown).
int32_t dlgShowMessage(const char16_t *title, const char16_t *text, int32_t icon, int32_t buttons,
                       bool systemModal);

// Platform part: shows the box with the style and returns the platform's
// answer (0 when no box could be shown).
int32_t dlgShowBox(const char16_t *title, const char16_t *text, uint32_t style);

// ---- input dialog (input.cpp, */input_dialog.cpp) ---------------------------

// Runs the input dialog owned by the run's host window at the run's dialog
// position. Returns 1 after OK (buffer holds the typed text, cut to
// capacity), 2 after Abbruch (buffer unchanged).
int32_t dlgInputText(RunContext &ctx, const char16_t *title, const char16_t *prompt, char16_t *buffer,
                     int32_t capacity);

// Platform part: runs template 300 with the record; returns the dialog's
// end code (0 after Abbruch, -1 when it cannot be created).
intptr_t dlgRunInputDialog(WindowHandle owner, InputDialogRecord &record);

// IntDialog: the input dialog on the decimal form of *value; *value becomes
// the number the text begins with (0 when none), also after Abbruch.
int32_t dlgIntDialog(RunContext &ctx, const char16_t *title, const char16_t *prompt, int32_t *value);

// The number a text begins with: blanks, a sign, digits; 0 when none;
// saturated to the 32-bit range.
int32_t dlgLeadingNumber(const char16_t *text);

// ---- list dialogs (list_box.cpp, */list_box_dialog.cpp, */list_view_dialog.cpp)

// Flags the ListDialog rows pass: sorted when sort is non-zero, plus 4 for
// the rows numbered 9000.
int32_t dlgListDialogFlags(int32_t sort, bool ansiRow);

// Runs the list box dialog owned by the active window; returns the record's
// result (position, 0, -2, -3).
int32_t dlgListBoxDialog(ListBoxRecord &record);

// Runs the list view dialog; returns its end code (1 OK, 2 Abbrechen, -1
// when it cannot be created).
int32_t dlgListViewDialog(const char16_t *title, const char16_t *header, const char16_t *file,
                          int32_t flags);

// The control rectangles of the list box dialog for a client size of
// width by height and an OK button of buttonW by buttonH.
struct ListBoxLayout {
    int32_t listLeft, listTop, listRight, listBottom;
    int32_t okLeft, cancelLeft, buttonTop;
};
ListBoxLayout dlgListBoxLayout(int32_t width, int32_t height, int32_t buttonW, int32_t buttonH);

// ---- file and folder choosers (*/choosers.cpp) -----------------------------

// FilenameDialog: mode 32 saves, anything else opens. Returns 1 with the
// chosen name in buffer, 2 when cancelled.
int32_t dlgFilenameDialog(char16_t *buffer, int32_t capacity, int32_t mode, const char16_t *title,
                          const char16_t *filter);

// DirectoryDialog: returns 1 with the chosen directory in buffer, 2 when
// cancelled.
int32_t dlgDirectoryDialog(char16_t *buffer, int32_t capacity, const char16_t *title, int32_t flags);

}  // namespace mx
