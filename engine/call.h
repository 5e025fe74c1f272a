// Function calls in formulas: name lookup in the host and built-in tables,
// reading the arguments, checking and binding them against the row's
// signature, and calling the host callback or the dispatcher.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

constexpr int32_t kMaxArguments = 10;

// Binary search over rows[0..count) by ordinal comparison; absent when not found.
const FunctionRow *fnSearch(const FunctionRow *rows, int32_t count, const char16_t *name);

// Looks name up in the host table, then in the built-in table. *host tells
// which table the row came from.
const FunctionRow *fnLookup(RunContext &ctx, const char16_t *name, bool *host);

// Reads "(arguments)" at p (before end, the end of the formula or argument),
// binds them, calls the function and asks the abort callback. Returns a new
// owning long Value with the result, or absent with the error set. p moves
// past the closing bracket.
Value *fnCall(RunContext &ctx, const FunctionRow *row, bool host, const char16_t *&p, const char16_t *end);

// Binds args (count of them, read already) against row's signature, calls the
// function, writes the trace line and asks the abort callback. The arguments
// are released in every case. Returns true with the function's result in
// *result, or false with the error set.
bool fnInvoke(RunContext &ctx, const FunctionRow *row, bool host, Value **args, int32_t count, int32_t *result);

// Checks args against signature; converts scalar by-value arguments in place
// (the replaced Values are released). Returns 0, or -1 with the error set.
int32_t fnBind(RunContext &ctx, const FunctionRow *row, Value **args, int32_t count);

// Counts the host table's rows into ctx.hostCount and checks that their names
// ascend strictly. Returns 0, or -1 with error 149 naming the first name out
// of order. An absent table is an empty one.
int32_t fnCheckHostTable(RunContext &ctx);

}  // namespace mx
