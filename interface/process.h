// Process-wide state: created when the library is attached to a process and
// kept until it is detached.
#pragma once
#include <cstdint>

#include "engine/types.h"

namespace mx {

struct Variable;

struct ProcessState {
    ModuleHandle module = nullptr;          // the library's own module
    const char16_t *tlxModuleName = u"";    // "MORVIXDLL" after attach
    uint32_t morvixMessage = 0;             // "KELVANE-MORVIX-MSG"
    Variable *statics = nullptr;            // static variables of all runs
};

extern ProcessState gProcess;

// Attach and detach steps, in order. Returns false when the attach must be
// refused. Subsystems that keep process-wide state add their steps here.
bool processAttach(ModuleHandle module);
void processDetach();

}  // namespace mx
