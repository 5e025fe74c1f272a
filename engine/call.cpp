#include "engine/call.h"

#include "engine/dispatcher.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "engine/formula_program.h"
#include "engine/text_end.h"
#include "engine/trace.h"
#include "base/u16.h"
#include "engine/value.h"

namespace mx {

namespace {

// One parsed signature descriptor: [*] C|D|L [[]], or X.
struct Descriptor {
    bool any = false;        // X: anything, unchecked
    bool byRef = false;      // *
    bool vector = false;     // []
    int32_t type = 0;        // kChar, kLong, kDouble
};

// Parses the descriptor at sig and moves sig past it. False (error 148 with
// the rest of the signature) for a letter other than C, D, L or X.
bool nextDescriptor(RunContext &ctx, const char16_t *&sig, Descriptor *d) {
    *d = Descriptor{};
    if (*sig == u'X') {
        d->any = true;
        ++sig;
        return true;
    }
    const char16_t *start = sig;
    if (*sig == u'*') d->byRef = true, ++sig;
    switch (*sig) {
        case u'C': d->type = kChar; break;
        case u'D': d->type = kDouble; break;
        case u'L': d->type = kLong; break;
        default: errSet(ctx, kErrTableSyntax, start); return false;
    }
    ++sig;
    if (sig[0] == u'[' && sig[1] == u']') d->vector = true, sig += 2;
    return true;
}

// Checks one argument against its descriptor and converts scalar by-value
// arguments. Returns false with the error set.
bool bindOne(RunContext &ctx, const Descriptor &d, Value **slot) {
    Value *arg = *slot;
    if (d.any) return true;
    if (!d.vector && arg->count != 0) return errSet(ctx, kErrNeedScalar, u""), false;
    if (d.vector && arg->count == 0) return errSet(ctx, kErrNeedVector, u""), false;
    if (d.byRef && arg->kind != kReference) return errSet(ctx, kErrNeedVariable, u""), false;
    if (d.vector || d.byRef) {
        if (arg->type != d.type) return errSet(ctx, kErrWrongType, u""), false;
        return true;
    }
    if (arg->kind == kOwning && arg->type == d.type) return true;
    Value *converted = nullptr;
    switch (d.type) {
        case kChar: converted = valNewChar(ctx, valToChar(arg)); break;
        case kLong: converted = valNewLong(ctx, valToLong(arg)); break;
        default: converted = valNewDouble(ctx, valToDouble(arg)); break;
    }
    if (!converted) return false;
    valRelease(arg);
    *slot = converted;
    return true;
}

// Reads the arguments between the brackets into args. Returns their count,
// or -1 with the error set (the arguments read so far are released).
int32_t readArguments(RunContext &ctx, const FunctionRow *row, const char16_t *&p, const char16_t *formulaEnd,
                      Value **args) {
    int32_t count = 0;
    ++p;  // '('
    while (p == formulaEnd || *p != u')') {
        if (count == kMaxArguments) {
            errSet(ctx, kErrTooManyParams, row->name);
            valReleaseArray(args, count);
            return -1;
        }
        const char16_t *end = evScanArgument(p, formulaEnd);
        Value *v = evEvaluateRange(ctx, p, end);
        if (!v) {
            valReleaseArray(args, count);
            return -1;
        }
        args[count++] = v;
        p = end;
        if (p < formulaEnd && *p == u',') ++p;
    }
    ++p;  // ')'
    return count;
}

// Sets the bit of each name's first character (codes below 128) in bits.
void collectInitials(const FunctionRow *rows, int32_t count, uint64_t bits[2]) {
    bits[0] = bits[1] = 0;
    for (int32_t i = 0; i < count; ++i) {
        char16_t c = rows[i].name[0];
        if (c < 128) bits[c >> 6] |= uint64_t(1) << (c & 63);
    }
}

// False when no row of the table whose initials are bits can be called name:
// most names in formulas are variables, and this spares them two searches.
bool mayBeRow(const uint64_t bits[2], const char16_t *name) {
    char16_t c = name[0];
    return c >= 128 || (bits[c >> 6] >> (c & 63)) & 1;
}

// Initials of one table, counted once for each table they are asked for.
struct TableInitials {
    const FunctionRow *rows = nullptr;
    int32_t count = -1;
    uint64_t bits[2] = {};

    const uint64_t *of(const FunctionRow *r, int32_t n) {
        if (r != rows || n != count) refresh(r, n);
        return bits;
    }
    void refresh(const FunctionRow *r, int32_t n) {
        collectInitials(r, n, bits);
        rows = r, count = n;
    }
};
TableInitials gBuiltinInitials;
// The host table's, counted again at every run start: a host may change its
// table between runs, never during one.
TableInitials gHostInitials;

int32_t callee(RunContext &ctx, const FunctionRow *row, bool host, Value **args, int32_t count) {
    int32_t number = int32_t(row->identifier & kFunctionNumberMask);
    if (!host) return dispatchCall(ctx, number, args, count);
    // Without a host callback a host function answers 0.
    if (!ctx.hostCallback) return 0;
    return ctx.hostCallback(number, reinterpret_cast<::MX_VALUE **>(args), count, ctx.callbackValue);
}

// The call; whatever storage it was handed may have changed.
int32_t invoke(RunContext &ctx, const FunctionRow *row, bool host, Value **args, int32_t count) {
    uint64_t stamp = textEndStamp();
    int32_t result = callee(ctx, row, host, args, count);
    textEndAfterCall(args, count, stamp);
    return result;
}

}  // namespace

const FunctionRow *fnSearch(const FunctionRow *rows, int32_t count, const char16_t *name) {
    while (count >= 1) {
        const FunctionRow *middle = rows + count / 2;
        int c = u16Cmp(name, middle->name);
        if (c == 0) return middle;
        if (c < 0) {
            count = count / 2;
        } else {
            rows = middle + 1;
            count = (count - 1) / 2;
        }
    }
    return nullptr;
}

const FunctionRow *fnLookup(RunContext &ctx, const char16_t *name, bool *host) {
    if (ctx.hostCount && mayBeRow(gHostInitials.of(ctx.hostTable, ctx.hostCount), name)) {
        if (const FunctionRow *row = fnSearch(ctx.hostTable, ctx.hostCount, name)) {
            *host = true;
            return row;
        }
    }
    *host = false;
    if (!mayBeRow(gBuiltinInitials.of(ctx.builtinTable, ctx.builtinCount), name)) return nullptr;
    return fnSearch(ctx.builtinTable, ctx.builtinCount, name);
}

int32_t fnBind(RunContext &ctx, const FunctionRow *row, Value **args, int32_t count) {
    const char16_t *sig = row->signature ? row->signature : u"";
    for (int32_t i = 0;; ++i) {
        if (i == count) {
            if (*sig == 0) return 0;
            errSet(ctx, kErrTooFewParams, row->name);
            return -1;
        }
        if (*sig == 0) {
            errSet(ctx, kErrTooManyParams, row->name);
            return -1;
        }
        Descriptor d;
        if (!nextDescriptor(ctx, sig, &d) || !bindOne(ctx, d, &args[i])) return -1;
    }
}

bool fnInvoke(RunContext &ctx, const FunctionRow *row, bool host, Value **args, int32_t count, int32_t *result) {
    if (fnBind(ctx, row, args, count) < 0) {
        valReleaseArray(args, count);
        return false;
    }
    *result = invoke(ctx, row, host, args, count);
    if (ctx.errorCode == kErrNoMemory) {
        valReleaseArray(args, count);
        return false;
    }
    trFunctionCall(ctx, row->name, args, count, *result);
    valReleaseArray(args, count);
    if (ctx.abortCallback && ctx.abortCallback() != 0) {
        errSet(ctx, kErrAborted);
        return false;
    }
    return true;
}

Value *fnCall(RunContext &ctx, const FunctionRow *row, bool host, const char16_t *&p, const char16_t *end) {
    if (p == end || *p != u'(') {
        errSet(ctx, kErrCharExpected, u"(");
        return nullptr;
    }
    Value *args[kMaxArguments] = {};
    int32_t count = readArguments(ctx, row, p, end, args);
    int32_t result = 0;
    if (count < 0 || !fnInvoke(ctx, row, host, args, count, &result)) return nullptr;
    Value *v = valNewLong(ctx, result);
    if (v) fpRecordCall(ctx, row, host, count);
    return v;
}

int32_t fnCheckHostTable(RunContext &ctx) {
    ctx.hostCount = 0;
    if (!ctx.hostTable) return 0;
    const char16_t *previous = u"";
    for (const FunctionRow *row = ctx.hostTable; row->name; ++row) {
        if (u16Cmp(row->name, previous) <= 0) {
            errSet(ctx, kErrTableUnsorted, row->name);
            return -1;
        }
        previous = row->name;
        ++ctx.hostCount;
    }
    gHostInitials.refresh(ctx.hostTable, ctx.hostCount);
    return 0;
}

}  // namespace mx
