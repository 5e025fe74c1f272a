// The built-ins that switch tracing on and off and name the trace file.
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

// Mode 1 sets the given switches, any other mode clears them. Result 0.
int32_t lgTraceSwitch(RunContext &ctx, uint32_t switches, int32_t mode);

// Closes the trace file, then creates name anew for writing in text mode with
// no other access allowed. Returns 1 when it is open, else 0.
int32_t lgTraceFile(RunContext &ctx, const char16_t *name);

}  // namespace mx
