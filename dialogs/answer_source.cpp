// The installed answer source of the native dialogs.
#include "dialogs/dialog_answers.h"

namespace mx {

namespace {
DialogAnswerSource installed = nullptr;
}

void dialogsSetAnswerSource(DialogAnswerSource source) { installed = source; }

DialogAnswerSource dialogsAnswerSource() { return installed; }

}  // namespace mx
