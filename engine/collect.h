// Collecting a statement's or condition's text into a formula: blanks and
// control characters outside text constants vanish, escapes inside them are
// resolved, and the formula ends before ';' or an unmatched ')'.
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

constexpr int32_t kFormulaCapacity = 1024;  // at most 1023 characters

// An escaped double quote stands as this code until the operand reader turns
// it back into '"'.
constexpr char16_t kEscapedQuote = 1;

// Collects the formula at the reader's position, starting with start (the
// word already read, or absent), into buf of kFormulaCapacity units, where it
// ends terminated. Returns its length, or -1 with the error set (118, 126,
// 130). The character that ended the formula is left unread.
int32_t fmCollect(RunContext &ctx, const char16_t *start, char16_t *buf);

}  // namespace mx
