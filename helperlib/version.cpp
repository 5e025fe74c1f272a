#include "helperlib/kelvane_version.h"

#include "base/u16.h"
#include "platform/platform.h"

namespace mx {

int32_t Kelvane_GetResourceFileVersionW(ModuleHandle module, int32_t resource, char16_t *buffer,
                                        int32_t capacity, int32_t) {
    if (resource != 1) return u16Copy(buffer, capacity, u"");
    return mxp_ModuleFileVersion(module, buffer, capacity);
}

}  // namespace mx
