// The statement executor: blocks, if, while, break, exit, declarations and
// formula statements, in run mode (taking effect) or skip mode (read and
// checked for form only).
#pragma once
#include <cstdint>

#include "engine/declare.h"
#include "engine/run_context.h"

namespace mx {

enum StatementResult : int32_t {
    kStError = -1,
    kStNormal = 0,
    kStBreak = 1,
    kStExit = 2,
    kStEnd = 3,  // the statement was end, ende or }
};

// Reads and executes one statement. Returns a StatementResult.
int32_t stExecute(RunContext &ctx, Mode mode);

// Executes statements up to the block's end. Returns normal, break, exit or error.
int32_t stBlock(RunContext &ctx, Mode mode);

#ifdef MX_FUZZ
// Fuzzing builds only: loop turns left before a run fails with error 131,
// so that endless loops, which are valid macros, do not stall the fuzzer.
extern int64_t stFuzzTurnsLeft;
// Fuzzing builds only (0: no limit): a loop ends after this many turns as
// if its condition had become false, so the statements after a long loop
// are still reached within the budget above.
extern int32_t stFuzzTurnsPerLoop;
#endif

}  // namespace mx
