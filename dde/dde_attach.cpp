#include "dde/dde_attach.h"

#include "dde/dde_class.h"

namespace mx {

bool ddeAttach(ModuleHandle module) { return ddeRegisterClass(module) == 0; }

void ddeDetach(ModuleHandle module) { ddeUnregisterClass(module); }

}  // namespace mx
