// The dispatch families of the general-purpose built-ins, one per folder;
// the interface installs them in the engine's dispatcher at attach.
#pragma once

#include "engine/dispatcher.h"

namespace mx {

extern const DispatchFamily kLanguageFamily;
extern const DispatchFamily kTextFamily;
extern const DispatchFamily kNumberFamily;
extern const DispatchFamily kFileFamily;

}  // namespace mx
