#include "interface/attach.h"

#include "dde/dde_attach.h"
#include "engine/process_state.h"
#include "engine/value_spare.h"
#include "engine/variables.h"
#include "interface/families.h"
#include "odbc/odbc_attach.h"
#include "platform/platform.h"

namespace mx {

bool processAttach(ModuleHandle module) {
    gProcess.module = module;
    gProcess.tlxModuleName = u"MORVIXDLL";
    gProcess.morvixMessage = mxp_RegisterWindowMessage(u"KELVANE-MORVIX-MSG");
    installBuiltinFamilies();
    if (!ddeAttach(module)) return false;
    odbcAttach();
    return true;
}

void processDetach() {
    varReleaseList(gProcess.statics);
    gProcess.statics = nullptr;
    valReleaseSpare();
    ddeDetach(gProcess.module);
}

}  // namespace mx
