// The operand reader: text and character constants, numbers, named
// constants, function calls, variables and vector elements.
#pragma once
#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

constexpr int32_t kNameCapacity = 32;  // names are significant to 31 characters

// Reads the operand at p (before end, the end of the formula or argument) and
// moves p past it. Returns a new Value (a reference for a variable or element,
// else owning), or absent with the error set.
Value *opReadOperand(RunContext &ctx, const char16_t *&p, const char16_t *end);

}  // namespace mx
