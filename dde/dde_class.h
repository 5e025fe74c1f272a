// The window class of the conversation windows, registered for the whole
// life of the library in a process.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// Registers the class "MorvixDdeCommunication" with module. 0 on success,
// -1 when the platform refuses it. The native build has no classes: 0.
int32_t ddeRegisterClass(ModuleHandle module);

// Unregisters the class of module. No effect natively.
void ddeUnregisterClass(ModuleHandle module);

}  // namespace mx
