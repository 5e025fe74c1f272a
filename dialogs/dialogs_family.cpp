// Dispatch entries of the message, input, list, file and directory dialogs (42-45, 63, 69, 76, 78, 115, 119, 145, 189, 9000, 9001).
#include "dialogs/dialogs_family.h"

namespace mx {

// No entries yet: the numbers stay rows without handlers and answer 0.
const DispatchFamily kDialogsFamily = {"dialogs", nullptr, 0};

}  // namespace mx
