#include "report/module_binding.h"

#include "engine/errors.h"
#include "helperlib/kelvane_modules.h"
#include "helperlib/kelvane_text.h"

namespace mx {

namespace {
constexpr uint32_t kMsgCannotLoad = 2000;
constexpr uint32_t kMsgEntryMissing = 2001;
constexpr int32_t kEntryNameCapacity = 100;
}  // namespace

ModuleHandle bindLoadModule(const char16_t *path) {
    ModuleHandle module = LoadDynamicLibraryW(path);
    if (!module) errShowSystemError(kMsgCannotLoad, path);
    return module;
}

bool bindEntryPoints(ModuleHandle module, const char16_t *path, const char16_t *const *names,
                     void **entries, int32_t count) {
    for (int32_t i = 0; i < count; ++i) entries[i] = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        char16_t name[kEntryNameCapacity];
        KelvaneCopyStringW(name, names[i], kEntryNameCapacity);
        entries[i] = Kelvane_GetProcAddressW(module, name);
        if (!entries[i]) {
            errShowSystemError(kMsgEntryMissing, name, path);
            Kelvane_FreeDynamicLibrary(module);
            return false;
        }
    }
    return true;
}

}  // namespace mx
