// Helper library, native: a machine without a desktop shows no dialog, so
// there is nothing to translate, select or choose.
#include "helperlib/kelvane_dialogs.h"
#include "helperlib/kelvane_lists.h"

namespace mx {

int32_t TLX_TranslateDialogW(WindowHandle, const char16_t *, int32_t) { return 0; }

int32_t SendEmSetSel(WindowHandle, int32_t, int32_t, int32_t) { return 0; }

int32_t Kelvane_ExtendedFileNameDialogW(char16_t *, int32_t, const KelvaneFileRequest *) { return 0; }

int32_t Kelvane_DirectoryDialogW(char16_t *, int32_t, const char16_t *, int32_t, int32_t) { return 0; }

int32_t Kelvane_ListView_LoadFromFileExtendedW(WindowHandle, const char16_t *, int32_t) { return 0; }

int32_t Kelvane_ListView_CreateColumnsW(WindowHandle, int32_t, const char16_t *) { return 0; }

int32_t Kelvane_GetBoxEntryW(WindowHandle, int32_t, char16_t *buffer, int32_t capacity) {
    if (buffer && capacity > 0) buffer[0] = 0;
    return -1;
}

const char16_t *Kelvane_GetItemData(WindowHandle, int32_t) { return nullptr; }

}  // namespace mx
