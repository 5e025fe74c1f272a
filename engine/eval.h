// Formula evaluation: straight from the text with an operand stack and an
// operator stack of 19 entries each and operator precedence.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

constexpr int32_t kStackEntries = 19;

// Evaluates the formula [begin, end), reading it only. Returns a new Value the
// caller releases: a reference when the whole formula is one variable or one
// vector element, else owning. Absent with the error set on failure.
Value *evEvaluate(RunContext &ctx, const char16_t *begin, const char16_t *end);

// Evaluates an argument or index [begin, end) inside a formula, one nesting
// level deeper, as evEvaluate does.
Value *evEvaluateRange(RunContext &ctx, const char16_t *begin, const char16_t *end);

// Finds the end of an argument or index text starting at p: a ',' or an
// unmatched ')' or ']' outside double quotes, or end.
const char16_t *evScanArgument(const char16_t *p, const char16_t *end);

// Sets error 131 (the nesting would pass kMaxDepth) and returns false.
bool evTooDeep(RunContext &ctx);

// Counts one level of nesting; false (with error 131) when the nesting would
// pass kMaxDepth. Each successful enter is paired with a leave.
inline bool evEnter(RunContext &ctx) {
    if (ctx.depth >= kMaxDepth) return evTooDeep(ctx);
    ++ctx.depth;
    return true;
}
inline void evLeave(RunContext &ctx) { --ctx.depth; }

}  // namespace mx
