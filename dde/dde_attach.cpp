#include "dde/dde_attach.h"

namespace mx {

bool ddeAttach(ModuleHandle) { return true; }

void ddeDetach(ModuleHandle) {}

}  // namespace mx
