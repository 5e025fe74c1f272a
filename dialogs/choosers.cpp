// The file and folder choosers: the helper library shows the platform's
// dialogs (natively it can show none, so both report a cancel). A host that
// installed an answer source gets the answer's path as the user's choice,
// as written in the script.
#include "base/u16.h"
#include "dialogs/dialog_answers.h"
#include "dialogs/dialogs.h"
#include "engine/process_state.h"
#include "helperlib/kelvane_dialogs.h"

namespace mx {

namespace {

constexpr int32_t kModeWrite = 32;

int32_t answered(DialogKind kind, const char16_t *title, char16_t *buffer, int32_t capacity) {
    DialogAnswer a = dialogsAnswerSource()(kind, title ? title : u"");
    if (a.action != AnswerAction::kPath) return 2;
    u16Copy(buffer, capacity, a.text.c_str());
    return 1;
}

}  // namespace

int32_t dlgFilenameDialog(char16_t *buffer, int32_t capacity, int32_t mode, const char16_t *title,
                          const char16_t *filter) {
    if (dialogsAnswerSource()) return answered(DialogKind::kFile, title, buffer, capacity);
    KelvaneFileRequest request{};
    request.size = sizeof request;
    request.instance = gProcess.module;
    request.filter = filter;
    request.title = title;
    request.mode = mode == kModeWrite ? kFileSave : kFileOpen;
    request.tlxModule = gProcess.tlxModuleName;
    return Kelvane_ExtendedFileNameDialogW(buffer, capacity, &request) ? 1 : 2;
}

int32_t dlgDirectoryDialog(char16_t *buffer, int32_t capacity, const char16_t *title, int32_t flags) {
    if (dialogsAnswerSource()) return answered(DialogKind::kDirectory, title, buffer, capacity);
    return Kelvane_DirectoryDialogW(buffer, capacity, title, flags, 0) == 1 ? 1 : 2;
}

}  // namespace mx
