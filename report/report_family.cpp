// Dispatch entries of the run-time modules: report engine and form dialog (127, 128, 131, 135).
#include "report/report_family.h"

namespace mx {

// No entries yet: the numbers stay rows without handlers and answer 0.
const DispatchFamily kReportFamily = {"report", nullptr, 0};

}  // namespace mx
