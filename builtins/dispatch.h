// The dispatcher: from a built-in function number to its implementation.
// Each family of built-ins lists its entries in a DispatchFamily; a number
// that no family lists has no implementation and yields 0.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "interface/run_context.h"

namespace mx {

// Reads its arguments from the bound Values (see builtins/args.h) and calls
// the plain implementation.
using BuiltinHandler = int32_t (*)(RunContext &ctx, Value **args, int32_t count);

struct DispatchEntry {
    int32_t number;
    BuiltinHandler handler;
};

struct DispatchFamily {
    const char *name;
    const DispatchEntry *entries;
    int32_t count;
};

// The families, one per folder of built-ins; defined in their own files.
extern const DispatchFamily kLanguageFamily;
extern const DispatchFamily kTextFamily;
extern const DispatchFamily kNumberFamily;
extern const DispatchFamily kFileFamily;
extern const DispatchFamily kXmlFamily;

// Numbers 9000 and 9001 first, then 1 to 306 through the number table.
int32_t biDispatch(RunContext &ctx, int32_t number, Value **args, int32_t count);

// True when number has an implementation.
bool biImplemented(int32_t number);

}  // namespace mx
