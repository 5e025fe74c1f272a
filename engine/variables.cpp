#include "engine/variables.h"

#include <cstdlib>

#include "engine/errors.h"
#include "base/u16.h"
#include "engine/value.h"
#include "engine/process_state.h"
#include "base/heap.h"

namespace mx {

Variable *varFind(Variable *list, const char16_t *name) {
    for (Variable *v = list; v; v = v->next)
        if (u16Eq(v->name, name)) return v;
    return nullptr;
}

Variable *varLookup(RunContext &ctx, const char16_t *name) {
    Variable *v = varFind(ctx.locals, name);
    return v ? v : varFind(gProcess.statics, name);
}

Variable *varAppend(RunContext &ctx, Variable **list, const char16_t *name, int32_t type,
                    int32_t count) {
    int32_t len = u16Len(name);
    Variable *var = static_cast<Variable *>(heapCalloc(1, sizeof(Variable)));
    char16_t *copy = static_cast<char16_t *>(heapMalloc(sizeof(char16_t) * size_t(len + 1)));
    Value *value = nullptr;
    if (var && copy) value = valCreate(ctx, type, kOwning, count);
    if (!value) {
        std::free(var);
        std::free(copy);
        errSet(ctx, kErrNoMemory);
        return nullptr;
    }
    u16Copy(copy, len + 1, name);
    var->name = copy;
    var->value = value;
    while (*list) list = &(*list)->next;
    *list = var;
    return var;
}

void varReleaseList(Variable *first) {
    while (first) {
        Variable *next = first->next;
        valRelease(first->value);
        std::free(first->name);
        std::free(first);
        first = next;
    }
}

}  // namespace mx
