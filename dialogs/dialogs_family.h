// The dispatch family of the message, input, list, file and directory dialogs.
#pragma once

#include "engine/dispatcher.h"

namespace mx {

extern const DispatchFamily kDialogsFamily;

}  // namespace mx
