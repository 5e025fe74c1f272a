// Helper library: what the library's dialog procedures share (translating a
// dialog, selecting an edit field's text, decoding command messages) and the
// platform's standard file and folder choosers.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// Translates the caption and control texts of dialog for the translation
// module. No translation source is installed, so every text stays as the
// template has it. Returns 1, 0 for an absent window (natively always 0).
int32_t TLX_TranslateDialogW(WindowHandle dialog, const char16_t *module, int32_t reserved);

// Selects the characters from first up to last (-1: to the end) of an edit
// field. Returns 1, 0 for an absent window (natively always 0).
int32_t SendEmSetSel(WindowHandle edit, int32_t reserved, int32_t first, int32_t last);

// A command message taken apart.
struct WmCommandInfo {
    int32_t id;              // the control or menu id (low word of wParam)
    int32_t notification;    // the notification code (high word of wParam)
    WindowHandle control;    // the control that sent it (lParam), absent for menus and keys
};

// Fills out from a command message's parameters. Returns the id; out may be
// absent.
int32_t Evaluate_WmCommand(uintptr_t wParam, intptr_t lParam, WmCommandInfo *out);

// The id of a command message (the low word of wParam).
int32_t GetWmCommandId(uintptr_t wParam, intptr_t lParam);

// The request of Kelvane_ExtendedFileNameDialogW; unused fields stay zero.
// On 32-bit builds it is sixteen 32-bit words, 64 bytes.
struct KelvaneFileRequest {
    uint32_t size;               // sizeof the record
    ModuleHandle instance;       // the calling module
    uintptr_t reserved3;
    const char16_t *filter;      // "Name|pattern|Name|pattern", see docs/dialogs.md
    uintptr_t reserved5;
    const char16_t *title;       // the chooser's caption; absent or empty: the platform's
    uintptr_t reserved7[5];
    int32_t mode;                // 1 open, 2 save
    const char16_t *tlxModule;   // translation module name
    uintptr_t reserved14[3];
};
static_assert(sizeof(void *) != 4 || sizeof(KelvaneFileRequest) == 64,
              "on 32-bit builds the request is sixteen 32-bit words");
enum : int32_t { kFileOpen = 1, kFileSave = 2 };

// Shows the platform's open or save chooser, starting from the name in
// buffer. Returns 1 with the chosen full name in buffer (cut to capacity),
// 0 when the user cancelled, the request is absent or the chooser cannot be
// shown (buffer untouched). Natively no chooser can be shown: 0.
int32_t Kelvane_ExtendedFileNameDialogW(char16_t *buffer, int32_t capacity,
                                        const KelvaneFileRequest *request);

// Shows the platform's folder chooser with title as its caption, starting
// at the directory in buffer. Flags bit 0 adds an edit field for typing a
// path. Returns 1 with the chosen directory in buffer (cut to capacity), 0
// when the user cancelled or nothing could be shown. Natively always 0.
int32_t Kelvane_DirectoryDialogW(char16_t *buffer, int32_t capacity, const char16_t *title,
                                 int32_t flags, int32_t reserved);

// The filter text turned into the chooser's form: each '|' becomes a NUL and
// the whole ends with two NULs; an absent or empty filter gives "All|*.*".
// Writes at most capacity units; returns the units used, 0 when it does not
// fit.
int32_t kelvaneFilterToPairs(const char16_t *filter, char16_t *out, int32_t capacity);

}  // namespace mx
