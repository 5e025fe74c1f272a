// Dispatch entries of the DDE client functions (88-92).
#include "dde/dde_family.h"

namespace mx {

// No entries yet: the numbers stay rows without handlers and answer 0.
const DispatchFamily kDdeFamily = {"dde", nullptr, 0};

}  // namespace mx
