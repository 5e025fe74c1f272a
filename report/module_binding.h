// Binding a run-time module for one call: load it, look its entry points up
// in a fixed order, and tell the user (system error boxes 2000 and 2001)
// when either fails. Used by the report engine and the form dialog.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// Loads the module path. Returns its handle; on failure shows message 2000
// naming path and returns absent.
ModuleHandle bindLoadModule(const char16_t *path);

// Looks up the count entry points names[i] of module into entries[i], in
// order. True when all were found. At the first missing one shows message
// 2001 naming the entry point and path, unloads module and returns false
// (entries from that one on stay absent).
bool bindEntryPoints(ModuleHandle module, const char16_t *path, const char16_t *const *names,
                     void **entries, int32_t count);

}  // namespace mx
