#include "interface/process.h"

#include "engine/variables.h"
#include "platform/platform.h"

namespace mx {

ProcessState gProcess;

bool processAttach(ModuleHandle module) {
    gProcess.module = module;
    gProcess.tlxModuleName = u"MORVIXDLL";
    gProcess.morvixMessage = mxp_RegisterWindowMessage(u"KELVANE-MORVIX-MSG");
    // Later subsystems: register the DDE window class (refuse the attach when
    // that fails) and create the ODBC connection table here.
    return true;
}

void processDetach() {
    varReleaseList(gProcess.statics);
    gProcess.statics = nullptr;
    // Later subsystems: unregister the DDE window class here.
}

}  // namespace mx
