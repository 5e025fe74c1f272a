// The dispatch family of the windows, processes, clipboard, environment and button-bar functions.
#pragma once

#include "engine/dispatcher.h"

namespace mx {

extern const DispatchFamily kDesktopFamily;

}  // namespace mx
