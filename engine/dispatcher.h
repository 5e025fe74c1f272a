// The dispatcher: from a built-in function number to its implementation.
// The engine owns it but knows no implementation: each family of built-ins
// lists its entries in a DispatchFamily, and the layer above installs the
// families once, at attach. A number that no installed family lists has no
// implementation and yields 0.
#pragma once
#include <cstdint>

#include "engine/run_context.h"
#include "engine/types.h"

namespace mx {

// Reads its arguments from the bound Values (see engine/args.h) and calls
// the plain implementation.
using BuiltinHandler = int32_t (*)(RunContext &ctx, Value **args, int32_t count);

// One implemented function: its number, the signature its handler reads its
// arguments by (the signature of the function's English table row), and the
// handler.
struct DispatchEntry {
    int32_t number;
    const char16_t *reads;
    BuiltinHandler handler;
};

struct DispatchFamily {
    const char *name;
    const DispatchEntry *entries;
    int32_t count;
};

// Makes the entries of the given families the implementations the dispatcher
// calls, replacing whatever was installed before.
void dispatchInstall(const DispatchFamily *const *families, int32_t count);

// Numbers 9000 and 9001 first, then 1 to 306. Returns the
// implementation's result, 0 for a number without one. Memory that runs out
// inside an implementation (std::bad_alloc) sets error 116 and returns 0:
// the caller sees the error code and fails the formula.
int32_t dispatchCall(RunContext &ctx, int32_t number, Value **args, int32_t count);

// The installed entry of number; absent when no family implements it.
const DispatchEntry *dispatchEntry(int32_t number);

// True when an installed family implements number.
bool dispatchImplemented(int32_t number);

}  // namespace mx
