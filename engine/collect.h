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
// word already read, or absent). Returns a newly allocated, terminated text
// the caller frees with std::free, or absent with the error set (118, 126, 130,
// 116). The character that ended the formula is left unread.
char16_t *fmCollect(RunContext &ctx, const char16_t *start);

// Collects as fmCollect does, into a formula buffer of kFormulaCapacity
// units that is reused from one statement to the next instead of a new copy
// of each formula. Returns the buffer, which the caller hands back with
// fmReleaseBuffer, or absent with the error set.
char16_t *fmCollectInBuffer(RunContext &ctx, const char16_t *start);

// Takes a buffer of fmCollectInBuffer back for reuse. Absent is harmless.
void fmReleaseBuffer(char16_t *formula);

// Frees the buffers kept for reuse; called when the library is detached.
void fmReleaseSpareBuffers();

}  // namespace mx
