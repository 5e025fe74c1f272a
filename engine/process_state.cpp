#include "engine/process_state.h"

namespace mx {

ProcessState gProcess;

}  // namespace mx
