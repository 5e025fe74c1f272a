#include "engine/operand.h"

#include <charconv>
#include <cstddef>

#include "engine/call.h"
#include "engine/collect.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "engine/formula_program.h"
#include "engine/reader.h"
#include "base/u16.h"
#include "engine/value.h"
#include "engine/variables.h"
#include "platform/platform.h"

namespace mx {

namespace {

// "..." : an owning character vector; escaped quotes become '"' again.
Value *readText(RunContext &ctx, const char16_t *&p, const char16_t *end) {
    const char16_t *close = p + 1;
    while (close < end && *close != u'"') ++close;
    if (close == end) {
        errSetN(ctx, kErrStringEnd, p, int32_t(end - p));
        return nullptr;
    }
    int32_t n = int32_t(close - (p + 1));
    Value *v = valCreate(ctx, kChar, kOwning, n + 1);
    if (!v) return nullptr;
    auto *s = static_cast<char16_t *>(v->data);
    for (int32_t i = 0; i < n; ++i) s[i] = p[1 + i] == kEscapedQuote ? u'"' : p[1 + i];
    p = close + 1;
    fpRecordText(ctx, s, n + 1);
    return v;
}

// 'x' : an owning character scalar.
Value *readCharConstant(RunContext &ctx, const char16_t *&p, const char16_t *end) {
    if (end - p < 3 || p[2] != u'\'') {
        errSetN(ctx, kErrBadCharConstant, p, int32_t(end - p));
        return nullptr;
    }
    Value *v = valNewChar(ctx, p[1]);
    if (v) p += 3, fpRecordChar(ctx, v->data ? *static_cast<char16_t *>(v->data) : 0);
    return v;
}

// 1 to 9 digits: a long; 1 to 16 digits with at most one '.': a double.
// Returns the Value, or absent without error when the token is no number.
Value *readNumber(RunContext &ctx, const char16_t *token, int32_t len, bool *isNumber) {
    int32_t dots = 0;
    char ascii[kNameCapacity];
    for (int32_t i = 0; i < len; ++i) {
        if (token[i] == u'.') ++dots;
        else if (token[i] < u'0' || token[i] > u'9') return nullptr;
        ascii[i] = char(token[i]);
    }
    if (len < 1 || dots > 1 || len > 16) return nullptr;
    *isNumber = true;
    if (dots == 0 && len <= 9) {
        int32_t n = 0;
        for (int32_t i = 0; i < len; ++i) n = n * 10 + (ascii[i] - '0');
        fpRecordLong(ctx, n);
        return valNewLong(ctx, n);
    }
    double d = 0.0;
    if (len > 1) std::from_chars(ascii, ascii + len, d);
    fpRecordDouble(ctx, d);
    return valNewDouble(ctx, d);
}

// Reads "[index]" at p for variable var. Returns the index, or -1 with the
// error set.
bool readIndex(RunContext &ctx, const char16_t *&p, const char16_t *formulaEnd, int32_t *index) {
    const char16_t *begin = p + 1;
    const char16_t *end = evScanArgument(begin, formulaEnd);
    Value *v = evEvaluateRange(ctx, begin, end);
    if (!v) return false;
    bool ok = false;
    if (end == formulaEnd || *end != u']') errSet(ctx, kErrCharExpected, u"]");
    else if (v->count != 0) errSet(ctx, kErrVectorNotAllowed);
    else ok = true;
    if (ok) *index = valToLong(v), p = end + 1;
    valRelease(v);
    return ok;
}

Value *readVariable(RunContext &ctx, const char16_t *&p, const char16_t *end, const char16_t *name) {
    Variable *var = varLookup(ctx, name);
    if (!var) {
        errSet(ctx, kErrVarUndeclared, name);
        return nullptr;
    }
    const Value *storage = var->value;
    int32_t index = 0;
    bool element = p < end && *p == u'[';
    if (element) {
        if (!readIndex(ctx, p, end, &index)) return nullptr;
        if (storage->count == 0) {
            errSet(ctx, kErrNotIndexable, var->name);
            return nullptr;
        }
        if (index < 0 || index >= storage->count) {
            errSet(ctx, kErrIndexRange, var->name);
            return nullptr;
        }
    }
    Value *ref = valCreate(ctx, storage->type, kReference, element ? 0 : storage->count);
    if (!ref) return nullptr;
    ref->data = static_cast<char *>(storage->data) + size_t(index) * size_t(valElementSize(storage->type));
    ref->varName = var->name;
    ref->varCount = storage->count;
    ref->index = index;
    fpRecordVariable(ctx, var, element);
    return ref;
}

// Letters, digits, '_' and '.'; codes below 128 are told without asking the
// platform, whose letter test agrees with the ASCII letters there.
bool isTokenChar(char16_t c) { return c == u'.' || rdIsIdentChar(c); }

bool isNameStart(char16_t c) {
    if (c < 0x80) return c == u'_' || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    return mxp_IsAlpha(c);
}

}  // namespace

Value *opReadOperand(RunContext &ctx, const char16_t *&p, const char16_t *end) {
    if (*p == u'"') return readText(ctx, p, end);
    if (*p == u'\'') return readCharConstant(ctx, p, end);
    char16_t token[kNameCapacity];
    int32_t len = 0;
    for (; p < end && isTokenChar(*p); ++p)
        if (len < kNameCapacity - 1) token[len++] = *p;
    token[len] = 0;
    bool isNumber = false;
    Value *number = readNumber(ctx, token, len, &isNumber);
    if (isNumber) return number;
    if (len == 0 || !isNameStart(token[0])) {
        errSetN(ctx, kErrBadOperand, p, int32_t(end - p));
        return nullptr;
    }
    bool host = false;
    if (const FunctionRow *row = fnLookup(ctx, token, &host)) {
        if (!row->signature) {
            fpRecordLong(ctx, int32_t(row->identifier));
            return valNewLong(ctx, int32_t(row->identifier));
        }
        return fnCall(ctx, row, host, p, end);
    }
    return readVariable(ctx, p, end, token);
}

}  // namespace mx
