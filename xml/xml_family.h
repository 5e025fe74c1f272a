// The dispatch family of the XML functions (301 to 306).
#pragma once

#include "engine/dispatcher.h"

namespace mx {

extern const DispatchFamily kXmlFamily;

}  // namespace mx
