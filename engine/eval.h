// Formula evaluation: straight from the text with an operand stack and an
// operator stack of 19 entries each and operator precedence.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

constexpr int32_t kStackEntries = 19;

// Evaluates formula. Sub-texts (arguments, indexes) are terminated in place
// for their evaluation and restored, so the text is unchanged afterwards.
// Returns a new Value the caller releases: a reference when the whole formula
// is one variable or one vector element, else owning. Absent with the error
// set on failure.
Value *evEvaluate(RunContext &ctx, char16_t *formula);

// Evaluates the sub-text [begin, end) by terminating it at end for the time of
// the evaluation. The character at end is restored.
Value *evEvaluateRange(RunContext &ctx, char16_t *begin, char16_t *end);

// Finds the end of an argument or index text starting at p: a ',' or an
// unmatched ')' or ']' outside double quotes, or the end of the text.
char16_t *evScanArgument(char16_t *p);

// Counts one level of nesting; false (with error 131) when the nesting would
// pass kMaxDepth. Each successful enter is paired with a leave.
bool evEnter(RunContext &ctx);
inline void evLeave(RunContext &ctx) { --ctx.depth; }

}  // namespace mx
