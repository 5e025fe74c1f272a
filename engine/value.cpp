#include "engine/value.h"

#include "engine/text_end.h"
#include <cstdlib>
#include <cstring>

#include "engine/errors.h"
#include "engine/text_end.h"
#include "base/heap.h"
#include "engine/value_spare.h"

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
// Every record, whatever its kind, is a block of this size, so that released
// records can serve any later Value.
struct Scalar {
    Value value;
    alignas(8) unsigned char element[8];
};

bool hasInlineElement(const Value *v) {
    return v->data == reinterpret_cast<const Scalar *>(v)->element;
}

// Released records kept for reuse: every operand and every operator result of
// a formula is a record, and asking the heap for each one cost a third of an
// evaluation. Runs never overlap, so one list serves the process. Builds with
// AddressSanitizer keep none, so that a Value used after its release is still
// caught there.
#if defined(__SANITIZE_ADDRESS__)
constexpr int32_t kSpareRecords = 0;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr int32_t kSpareRecords = 0;
#else
constexpr int32_t kSpareRecords = 64;
#endif
#else
constexpr int32_t kSpareRecords = 64;
#endif

struct Spare {
    Spare *next;
};
Spare *gSpare = nullptr;
int32_t gSpareCount = 0;

// A zero-filled record, reused or new; absent when memory is missing.
Value *takeRecord() {
    Spare *s = gSpare;
    if (!s) return static_cast<Value *>(heapCalloc(1, sizeof(Scalar)));
    gSpare = s->next;
    --gSpareCount;
    std::memset(static_cast<void *>(s), 0, sizeof(Scalar));
    return reinterpret_cast<Value *>(s);
}

void giveRecord(Value *v) {
    if (gSpareCount >= kSpareRecords) {
        std::free(v);
        return;
    }
    Spare *s = reinterpret_cast<Spare *>(v);
    s->next = gSpare;
    gSpare = s;
    ++gSpareCount;
}
}  // namespace

Value *valCreate(RunContext &ctx, int32_t type, int32_t kind, int32_t count) {
    Value *v = takeRecord();
    if (!v) {
        errSet(ctx, kErrNoMemory);
        return nullptr;
    }
    v->kind = kind;
    v->type = type;
    v->count = count;
    if (kind == kOwning && count == 0) {
        v->data = reinterpret_cast<Scalar *>(v)->element;
    } else if (kind == kOwning) {
        size_t n = count > 1 ? size_t(count) : 1;
        v->data = heapCalloc(n, size_t(valElementSize(type) ? valElementSize(type) : 1));
        if (!v->data) {
            giveRecord(v);
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
    if (v->kind == kOwning && !hasInlineElement(v)) {
        textEndForget(v->data, size_t(v->count > 1 ? v->count : 1) * size_t(valElementSize(v->type)));
        std::free(v->data);
    }
    giveRecord(v);
}

void valReleaseSpare() {
    while (Spare *s = gSpare) {
        gSpare = s->next;
        std::free(s);
    }
    gSpareCount = 0;
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
