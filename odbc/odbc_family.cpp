// Dispatch entries of the ODBC functions (200-208).
#include "odbc/odbc_family.h"

namespace mx {

// No entries yet: the numbers stay rows without handlers and answer 0.
const DispatchFamily kOdbcFamily = {"odbc", nullptr, 0};

}  // namespace mx
