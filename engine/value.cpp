#include "engine/value.h"

#include <cstdlib>

#include "engine/errors.h"
#include "base/heap.h"

namespace mx {

int32_t valElementSize(int32_t type) {
    switch (type) {
        case kChar: return 2;
        case kLong: return 4;
        case kDouble: return 8;
        default: return 0;
    }
}

namespace {
// An owning scalar carries its one element in the same block as its record:
// formulas make and drop many of them, so this halves their allocations.
struct Scalar {
    Value value;
    alignas(8) unsigned char element[8];
};

bool hasInlineElement(const Value *v) {
    return v->data == reinterpret_cast<const Scalar *>(v)->element;
}
}  // namespace

Value *valCreate(RunContext &ctx, int32_t type, int32_t kind, int32_t count) {
    bool scalar = kind == kOwning && count == 0;
    Value *v = static_cast<Value *>(heapCalloc(1, scalar ? sizeof(Scalar) : sizeof(Value)));
    if (!v) {
        errSet(ctx, kErrNoMemory);
        return nullptr;
    }
    v->kind = kind;
    v->type = type;
    v->count = count;
    if (scalar) {
        v->data = reinterpret_cast<Scalar *>(v)->element;
    } else if (kind == kOwning) {
        size_t n = count > 1 ? size_t(count) : 1;
        v->data = heapCalloc(n, size_t(valElementSize(type) ? valElementSize(type) : 1));
        if (!v->data) {
            std::free(v);
            errSet(ctx, kErrNoMemory);
            return nullptr;
        }
    }
    return v;
}

Value *valNewLong(RunContext &ctx, int32_t x) {
    Value *v = valCreate(ctx, kLong, kOwning, 0);
    if (v) *static_cast<int32_t *>(v->data) = x;
    return v;
}

Value *valNewDouble(RunContext &ctx, double x) {
    Value *v = valCreate(ctx, kDouble, kOwning, 0);
    if (v) *static_cast<double *>(v->data) = x;
    return v;
}

Value *valNewChar(RunContext &ctx, char16_t x) {
    Value *v = valCreate(ctx, kChar, kOwning, 0);
    if (v) *static_cast<char16_t *>(v->data) = x;
    return v;
}

void valRelease(Value *v) {
    if (!v) return;
    if (v->kind == kOwning && !hasInlineElement(v)) std::free(v->data);
    std::free(v);
}

void valReleaseArray(Value **args, int32_t count) {
    for (int32_t i = count - 1; i >= 0; --i) {
        valRelease(args[i]);
        args[i] = nullptr;
    }
}

int32_t doubleToLong(double d) {
    if (!(d > -2147483649.0 && d < 2147483648.0)) return INT32_MIN;
    return static_cast<int32_t>(d);
}

int32_t valToLong(const Value *v) {
    if (!v || !v->data) return 0;
    switch (v->type) {
        case kChar: return *static_cast<const char16_t *>(v->data);
        case kLong: return *static_cast<const int32_t *>(v->data);
        case kDouble: return doubleToLong(*static_cast<const double *>(v->data));
        default: return 0;
    }
}

char16_t valToChar(const Value *v) { return char16_t(uint32_t(valToLong(v)) & 0xFFFF); }

double valToDouble(const Value *v) {
    if (!v || !v->data) return 0.0;
    switch (v->type) {
        case kChar: return *static_cast<const char16_t *>(v->data);
        case kLong: return *static_cast<const int32_t *>(v->data);
        case kDouble: return *static_cast<const double *>(v->data);
        default: return 0.0;
    }
}

}  // namespace mx
