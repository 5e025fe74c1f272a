// Variables and the two variable lists: the run's locals and the process's
// statics, both singly linked in declaration order.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

struct Variable {
    Variable *next;
    char16_t *name;  // own copy
    Value *value;    // owning, of the declared type and element count
};

// The first variable of list whose name equals name exactly, or absent.
Variable *varFind(Variable *list, const char16_t *name);

// Local list first, then the static list.
Variable *varLookup(RunContext &ctx, const char16_t *name);

// Creates a zero-filled variable and appends it to *list. Returns it, or
// absent with error 116.
Variable *varAppend(RunContext &ctx, Variable **list, const char16_t *name, int32_t type,
                    int32_t count);

// Releases every variable of the list with its name and Value.
void varReleaseList(Variable *first);

}  // namespace mx
