// The engine's process-wide state: filled when the library is attached to a
// process (interface/attach.cpp) and kept until it is detached. Subsystems
// with process-wide state of their own (DDE, ODBC) keep it themselves.
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

}  // namespace mx
