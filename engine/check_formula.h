// The formula part of the syntax check: a formula taken apart with the
// evaluator's rules (operands, operators, brackets, the 19-entry stacks),
// counting operands instead of computing them.
#pragma once
#include <cstdint>
#include <set>
#include <string>

#include "engine/run_context.h"

namespace mx {

// The names the check has seen declared so far, in text order.
using CheckNames = std::set<std::u16string>;

// Checks formula as the evaluator would read it: operands (text and character
// constants, numbers, named constants, function calls with their argument
// count, variables declared in names and their indexes), operators and
// brackets. Returns true, or false with the error the run would report set
// in ctx.
bool ckFormula(RunContext &ctx, const CheckNames &names, const char16_t *formula);

}  // namespace mx
