// Message boxes, native: the box is written to standard error (or the box
// sink) as every box of the native build is. Without an answer source no box
// could be shown (0); with one, a box with only OK is confirmed and any other
// gets the source's answer.
#include "dialogs/dialog_answers.h"
#include "dialogs/dialogs.h"
#include "platform/platform.h"

namespace mx {

namespace {
enum : int32_t { kIdOk = 1, kIdCancel = 2, kIdYes = 6, kIdNo = 7 };

DialogKind kindOf(uint32_t style) {
    switch (style & 0xF) {
        case 0x1: return DialogKind::kMessageOkCancel;
        case 0x3: return DialogKind::kMessageYesNoCancel;
        case 0x4: return DialogKind::kMessageYesNo;
        default: return DialogKind::kMessageOk;
    }
}
}  // namespace

int32_t dlgShowBox(const char16_t *title, const char16_t *text, uint32_t style) {
    mxp_MessageBox(nullptr, text, title, style);
    DialogAnswerSource source = dialogsAnswerSource();
    if (!source) return 0;
    DialogKind kind = kindOf(style);
    if (kind == DialogKind::kMessageOk) return kIdOk;
    switch (source(kind, title).action) {
        case AnswerAction::kOk: return kIdOk;
        case AnswerAction::kYes: return kIdYes;
        case AnswerAction::kNo: return kIdNo;
        default: return kIdCancel;
    }
}

}  // namespace mx
