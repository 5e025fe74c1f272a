// The syntax check: reads a whole macro for form without running anything.
// Every statement, block and declaration is read as the run reads it, and
// every formula is taken apart as the evaluator would, with each function
// call checked against its row (known name, brackets, argument count). No
// variable is created, no function is called, nothing is evaluated.
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

// Receives each error found: the error code, argument and line are in ctx,
// as a run would have them when it stopped there. user is passed through.
using CheckSink = void (*)(const RunContext &ctx, void *user);

// Checks the macro that ctx names (macroCommand: a file, else macroText: a
// memory macro), with ctx's host table and built-in table as the names a
// run would know. Reports every error to sink, going on after each one
// where the text allows it (a statement that cannot be read is skipped up to
// its ';'; the end of the text ends the check). Returns the number of
// errors. The text is loaded and released again; ctx's error is left set
// to the last error found.
int32_t ckCheckMacro(RunContext &ctx, CheckSink sink, void *user);

}  // namespace mx
