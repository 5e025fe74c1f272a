// Dispatch entries of the windows, processes, clipboard, environment and button-bar functions (8, 50-56, 64-68, 71-81, 113-114, 138-140, 153-173, 188, 191).
#include "desktop/desktop_family.h"

namespace mx {

// No entries yet: the numbers stay rows without handlers and answer 0.
const DispatchFamily kDesktopFamily = {"desktop", nullptr, 0};

}  // namespace mx
