// The file and folder choosers, Win32: the helper library shows the
// platform's dialogs; this side packs the macro's arguments.
#include "dialogs/dialogs.h"
#include "engine/process_state.h"
#include "helperlib/kelvane_dialogs.h"

namespace mx {

namespace {
constexpr int32_t kModeWrite = 32;
}

int32_t dlgFilenameDialog(char16_t *buffer, int32_t capacity, int32_t mode, const char16_t *title,
                          const char16_t *filter) {
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
    return Kelvane_DirectoryDialogW(buffer, capacity, title, flags, 0) == 1 ? 1 : 2;
}

}  // namespace mx
