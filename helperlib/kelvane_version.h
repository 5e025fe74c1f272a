// Helper library: version resources.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// Copies the file version of module's version resource (which must be
// resource 1) into buffer. Returns the text's length, 0 when there is none.
int32_t Kelvane_GetResourceFileVersionW(ModuleHandle module, int32_t resource, char16_t *buffer,
                                        int32_t capacity, int32_t reserved);

}  // namespace mx
