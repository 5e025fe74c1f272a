// One line on what each built-in does, for the generated function reference
// (docs/functions.md). Kept apart from the table, which hosts read and which
// carries no prose.
#pragma once
#include <cstdint>

namespace mxdoc {

// What built-in function number does, in one line; nullptr for a number
// that has no description.
const char *docFunctionDescription(uint32_t number);

// What the named constant stands for, in one line; nullptr for an unknown name.
const char *docConstantDescription(const char16_t *name);

// How many function numbers and constant names have a description; with the
// lookups above this keeps the descriptions and the table in step.
int32_t docFunctionDescriptionCount();
int32_t docConstantDescriptionCount();

}  // namespace mxdoc
