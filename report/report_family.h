// The dispatch family of the run-time modules: report engine and form dialog.
#pragma once

#include "engine/dispatcher.h"

namespace mx {

extern const DispatchFamily kReportFamily;

}  // namespace mx
