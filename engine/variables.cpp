#include "engine/variables.h"

#include <cstdlib>

#include "engine/errors.h"
#include "base/u16.h"
#include "engine/value.h"
#include "engine/process_state.h"
#include "base/heap.h"

namespace mx {

// An open-addressed table of the list's variables by name, at most half
// full, and the list's last variable (appending needs no walk).
struct VariableIndex {
    Variable **slots;
    uint32_t capacity;  // a power of two
    uint32_t count;
    Variable *last;
};

namespace {

constexpr uint32_t kFirstCapacity = 16;

uint32_t nameHash(const char16_t *name) {
    uint32_t h = 2166136261u;
    for (; *name; ++name) h = (h ^ uint32_t(*name)) * 16777619u;
    return h;
}

// The slot holding name, or the empty slot where it would go.
Variable **slotFor(const VariableIndex &ix, const char16_t *name, uint32_t hash) {
    uint32_t mask = ix.capacity - 1;
    for (uint32_t i = hash & mask;; i = (i + 1) & mask) {
        Variable *v = ix.slots[i];
        if (!v || (v->hash == hash && u16Eq(v->name, name))) return &ix.slots[i];
    }
}

// Doubles the table when one more entry would fill it past half. False when
// memory is missing (the table is then unchanged).
bool makeRoom(VariableIndex &ix) {
    if ((ix.count + 1) * 2 <= ix.capacity) return true;
    uint32_t capacity = ix.capacity * 2;
    auto slots = static_cast<Variable **>(heapCalloc(capacity, sizeof(Variable *)));
    if (!slots) return false;
    VariableIndex grown{slots, capacity, ix.count, ix.last};
    for (uint32_t i = 0; i < ix.capacity; ++i)
        if (Variable *v = ix.slots[i]) *slotFor(grown, v->name, v->hash) = v;
    std::free(ix.slots);
    ix = grown;
    return true;
}

VariableIndex *newIndex() {
    auto ix = static_cast<VariableIndex *>(heapCalloc(1, sizeof(VariableIndex)));
    auto slots = static_cast<Variable **>(heapCalloc(kFirstCapacity, sizeof(Variable *)));
    if (!ix || !slots) {
        std::free(ix);
        std::free(slots);
        return nullptr;
    }
    *ix = VariableIndex{slots, kFirstCapacity, 0, nullptr};
    return ix;
}

void releaseIndex(VariableIndex *ix) {
    if (ix) std::free(ix->slots);
    std::free(ix);
}

// A new variable named name (its Value zero-filled), not yet in a list.
Variable *newVariable(RunContext &ctx, const char16_t *name, int32_t type, int32_t count) {
    int32_t len = u16Len(name);
    auto var = static_cast<Variable *>(heapCalloc(1, sizeof(Variable)));
    auto copy = static_cast<char16_t *>(heapMalloc(sizeof(char16_t) * size_t(len + 1)));
    Value *value = nullptr;
    if (var && copy) value = valCreate(ctx, type, kOwning, count);
    if (!value) {
        std::free(var);
        std::free(copy);
        return nullptr;
    }
    u16Copy(copy, len + 1, name);
    var->name = copy;
    var->value = value;
    var->hash = nameHash(copy);
    return var;
}

void releaseVariable(Variable *var) {
    valRelease(var->value);
    std::free(var->name);
    std::free(var);
}

}  // namespace

Variable *varFind(Variable *list, const char16_t *name) {
    if (!list) return nullptr;
    return *slotFor(*list->index, name, nameHash(name));
}

Variable *varLookup(RunContext &ctx, const char16_t *name) {
    Variable *v = varFind(ctx.locals, name);
    return v ? v : varFind(gProcess.statics, name);
}

Variable *varAppend(RunContext &ctx, Variable **list, const char16_t *name, int32_t type,
                    int32_t count) {
    Variable *var = newVariable(ctx, name, type, count);
    VariableIndex *ix = *list ? (*list)->index : (var ? newIndex() : nullptr);
    if (!var || !ix || !makeRoom(*ix)) {
        if (ix && !*list) releaseIndex(ix);
        if (var) releaseVariable(var);
        errSet(ctx, kErrNoMemory);
        return nullptr;
    }
    // A second variable of the same name stays out of the index: the first
    // one is the one a lookup finds.
    Variable **slot = slotFor(*ix, var->name, var->hash);
    if (!*slot) *slot = var, ++ix->count;
    if (*list) {
        ix->last->next = var;
    } else {
        var->index = ix;
        *list = var;
    }
    ix->last = var;
    return var;
}

void varReleaseList(Variable *first) {
    if (first) releaseIndex(first->index);
    while (first) {
        Variable *next = first->next;
        releaseVariable(first);
        first = next;
    }
}

}  // namespace mx
