// The dispatch family of the ODBC functions.
#pragma once

#include "engine/dispatcher.h"

namespace mx {

extern const DispatchFamily kOdbcFamily;

}  // namespace mx
