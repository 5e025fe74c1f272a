// Process attach and detach: the steps the library takes when it is loaded
// into a process and when it is unloaded, in order.
#pragma once

#include "base/handles.h"

namespace mx {

// Keeps the module, names the translation module, registers the window
// message, installs the built-in families in the engine's dispatcher,
// registers the DDE window class and creates the ODBC connection table.
// Returns false when the attach must be refused (the DDE class failed).
bool processAttach(ModuleHandle module);

// Releases the static variables and unregisters the DDE window class.
void processDetach();

}  // namespace mx
