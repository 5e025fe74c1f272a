// The input dialog, native: without an answer source the dialog cannot be
// created (-1, which the caller takes as a non-zero end, leaving the buffer
// as it was); with one, the answer is typed or the dialog cancelled.
#include <string>

#include "base/u16.h"
#include "dialogs/dialog_answers.h"
#include "dialogs/dialogs.h"

namespace mx {

intptr_t dlgRunInputDialog(WindowHandle, InputDialogRecord &r) {
    DialogAnswerSource source = dialogsAnswerSource();
    if (!source) return -1;
    DialogAnswer a = source(DialogKind::kInput, r.title ? r.title : u"");
    switch (a.action) {
        case AnswerAction::kOk: {
            // OK stores the field, which shows the buffer up to its capacity.
            std::u16string shown;
            for (int32_t i = 0; r.buffer && i < r.capacity && r.buffer[i]; ++i) shown += r.buffer[i];
            u16Copy(r.buffer, r.capacity, shown.c_str());
            return 1;
        }
        case AnswerAction::kText: u16Copy(r.buffer, r.capacity, a.text.c_str()); return 1;
        default: return 0;
    }
}

}  // namespace mx
