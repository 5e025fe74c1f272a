// The run driver: takes a filled Run context through loading, header check,
// execution and clean-up. Used by the run entry points (interface/) and by
// nested runs (Call and CallWithParams).
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

// Resets the run state, checks the host table, loads the text, checks the
// header and executes the body; always cleans up (files, trace file, locals,
// text). Returns 0 on success (error code cleared), -1 with the error set.
int32_t runDriver(RunContext &ctx);

// Reads the macro name of a file macro's header (see Get_MacroHeader).
int32_t runReadHeader(const char16_t *macroCommand, char16_t *name, int32_t capacity);

}  // namespace mx
