// Nested macro runs: Call and CallWithParams, and the macro's parameters.
#pragma once
#include <cstdint>
#include <string>

#include "engine/run_context.h"

namespace mx {

constexpr int32_t kCallWithParamsCapacity = 2000;  // the command is cut at 1999

// Runs the macro command in a nested run with a copy of the caller's context.
// Returns 0 when it ran to its end; -1 after showing its error box.
int32_t lgCall(RunContext &ctx, const char16_t *command);

// The command "macro" "p1" ... "p5", cut at 1999 units. May throw
// std::bad_alloc.
std::u16string lgBuildCommand(const std::u16string parts[6]);

// Word n of the run's macro command into the text variable. Returns 0 when
// the word exists, 1 when it does not or the run has no macro command; a
// negative n answers 0 and leaves the variable unchanged.
int32_t lgGetMacroParameter(const RunContext &ctx, int32_t n, char16_t *text, int32_t capacity);

}  // namespace mx
