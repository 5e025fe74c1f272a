// Variables and the two variable lists: the run's locals and the process's
// statics, both singly linked in declaration order. The first variable of a
// list carries the list's name index, so a lookup costs the same with a
// hundred thousand declarations as with ten.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

struct VariableIndex;

struct Variable {
    Variable *next;
    char16_t *name;  // own copy
    Value *value;    // owning, of the declared type and element count
    uint32_t hash;   // of the name
    VariableIndex *index;  // the list's name index and end, on its first variable only
};

// The first variable of list whose name equals name exactly, or absent.
Variable *varFind(Variable *list, const char16_t *name);

// Local list first, then the static list.
Variable *varLookup(RunContext &ctx, const char16_t *name);

// Creates a zero-filled variable and appends it to *list. Returns it, or
// absent with error 116 (the list is then unchanged).
Variable *varAppend(RunContext &ctx, Variable **list, const char16_t *name, int32_t type,
                    int32_t count);

// Releases every variable of the list with its name, Value and index.
void varReleaseList(Variable *first);

}  // namespace mx
