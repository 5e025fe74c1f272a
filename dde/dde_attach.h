// The DDE client's process-wide steps: the window class of the conversation
// windows is registered at attach and removed at detach.
#pragma once

#include "base/handles.h"

namespace mx {

// Registers the conversation window class. False refuses the attach.
bool ddeAttach(ModuleHandle module);
// Unregisters the class.
void ddeDetach(ModuleHandle module);

}  // namespace mx
