// The run driver: takes a filled Run context through loading, header check,
// execution and clean-up. Used by the run entry points and by nested runs.
#pragma once
#include <cstdint>

#include "interface/run_context.h"

namespace mx {

// Host-facing settings of a new run.
struct RunRequest {
    ModuleHandle hostInstance;
    WindowHandle window;
    const char16_t *macroCommand;  // file macros
    const char16_t *macroText;     // memory macros
    const char16_t *macroTitle;
    const FunctionRow *hostTable;
    HostCallback hostCallback;
    AbortCallback abortCallback;
    intptr_t callbackValue;
    int32_t countryCode;
};

// Fills a fresh context for a run entry point.
void runInit(RunContext &ctx, const RunRequest &request);

// Resets the run state, checks the host table, loads the text, checks the
// header and executes the body; always cleans up (files, trace file, locals,
// text). Returns 0 on success (error code cleared), -1 with the error set.
int32_t runDriver(RunContext &ctx);

// A run entry point's whole work: the driver, then the error box unless the
// run was aborted. Returns 0, -1 (error shown) or -2 (aborted).
int32_t runEntry(RunContext &ctx);

// Reads the macro name of a file macro's header (see Get_MacroHeader).
int32_t runReadHeader(const char16_t *macroCommand, char16_t *name, int32_t capacity);

}  // namespace mx
