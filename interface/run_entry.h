// The run entry points' common work: filling a fresh Run context from what
// the host passed, driving the run and showing its error box.
#pragma once
#include <cstdint>

#include "engine/run_context.h"

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
void entryInit(RunContext &ctx, const RunRequest &request);

// A run entry point's whole work: the driver, then the error box unless the
// run was aborted. Returns 0, -1 (error shown) or -2 (aborted).
int32_t entryRun(RunContext &ctx);

}  // namespace mx
