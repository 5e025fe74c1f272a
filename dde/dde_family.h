// The dispatch family of the DDE client functions.
#pragma once

#include "engine/dispatcher.h"

namespace mx {

extern const DispatchFamily kDdeFamily;

}  // namespace mx
