#include "engine/eval.h"

#include "engine/errors.h"
#include "engine/formula_program.h"
#include "engine/operand.h"
#include "engine/operators.h"
#include "engine/value.h"

namespace mx {

namespace {

struct Stacks {
    Value *operands[kStackEntries];
    const OperatorRow *ops[kStackEntries];
    int32_t nOperands = 0;
    int32_t nOps = 0;

    ~Stacks() { valReleaseArray(operands, nOperands); }

    bool pushOperand(RunContext &ctx, Value *v) {
        if (nOperands == kStackEntries) {
            valRelease(v);
            errSet(ctx, kErrStackOverflow);
            return false;
        }
        operands[nOperands++] = v;
        return true;
    }
    bool pushOp(RunContext &ctx, const OperatorRow *row) {
        if (nOps == kStackEntries) {
            errSet(ctx, kErrStackOverflow);
            return false;
        }
        ops[nOps++] = row;
        return true;
    }
    Value *popOperand() { return operands[--nOperands]; }
};

// Applies operators from the top while their precedence is at least minimum;
// a bracket marker is removed and ends the reduction.
bool reduce(RunContext &ctx, Stacks &st, int32_t minimum) {
    while (st.nOps > 0 && st.ops[st.nOps - 1]->precedence >= minimum) {
        const OperatorRow *row = st.ops[--st.nOps];
        if (row->number == kOpBracket) return true;
        if (st.nOperands < row->arity) {
            errSet(ctx, kErrBadOperand);
            return false;
        }
        Value *right = row->arity == 2 ? st.popOperand() : nullptr;
        Value *left = st.popOperand();
        Value *result = oprApply(ctx, row, left, right);
        if (!result || !st.pushOperand(ctx, result)) return false;
        fpRecordApply(ctx, row);
    }
    return true;
}

Value *finish(RunContext &ctx, Stacks &st, const char16_t *formula, const char16_t *end, int32_t depth) {
    if (!reduce(ctx, st, 0)) return nullptr;
    int32_t n = int32_t(end - formula);
    if (st.nOps) errSetN(ctx, kErrBadOperand, formula, n);
    else if (st.nOperands != 1) errSetN(ctx, kErrOperatorMissing, formula, n);
    else if (depth != 0) errSetN(ctx, kErrBrackets, formula, n);
    else return st.popOperand();
    return nullptr;
}

Value *evaluate(RunContext &ctx, const char16_t *formula, const char16_t *end) {
    Stacks st;
    bool expectOperand = true;
    int32_t depth = 0;
    const char16_t *p = formula;
    for (;;) {
        if (p == end) return finish(ctx, st, formula, end, depth);
        if (*p == u'(') {
            if (!expectOperand) {
                errSet(ctx, kErrUnexpectedChar, u"(");
                return nullptr;
            }
            if (!st.pushOp(ctx, oprBracket())) return nullptr;
            ++depth, ++p;
        } else if (*p == u')') {
            if (!reduce(ctx, st, 1)) return nullptr;
            expectOperand = false;
            --depth, ++p;
        } else if (!expectOperand) {
            const OperatorRow *row = oprMatch(p, end, 2);
            if (!row) {
                errSetN(ctx, kErrBadOperator, p, int32_t(end - p));
                return nullptr;
            }
            if (st.nOps && row->precedence <= st.ops[st.nOps - 1]->precedence &&
                !reduce(ctx, st, row->precedence))
                return nullptr;
            if (!st.pushOp(ctx, row)) return nullptr;
            p += row->length;
            expectOperand = true;
        } else if (const OperatorRow *unary = oprMatch(p, end, 1)) {
            if (!st.pushOp(ctx, unary)) return nullptr;
            p += unary->length;
        } else {
            Value *v = opReadOperand(ctx, p, end);
            if (!v || !st.pushOperand(ctx, v)) return nullptr;
            expectOperand = false;
        }
    }
}

}  // namespace

bool evTooDeep(RunContext &ctx) {
    errSet(ctx, kErrStackOverflow);
    return false;
}

Value *evEvaluate(RunContext &ctx, const char16_t *begin, const char16_t *end) {
    if (!evEnter(ctx)) return nullptr;
    Value *v = evaluate(ctx, begin, end);
    evLeave(ctx);
    return v;
}

Value *evEvaluateRange(RunContext &ctx, const char16_t *begin, const char16_t *end) {
    fpRecordNesting(ctx, true);
    Value *v = evEvaluate(ctx, begin, end);
    if (v) fpRecordNesting(ctx, false);
    return v;
}

const char16_t *evScanArgument(const char16_t *p, const char16_t *end) {
    bool quoted = false;
    int32_t depth = 0;
    for (; p < end; ++p) {
        if (*p == u'"') quoted = !quoted;
        if (quoted) continue;
        if (*p == u'(' || *p == u'[') {
            ++depth;
        } else if (*p == u')' || *p == u']') {
            if (depth == 0) break;
            --depth;
        } else if (*p == u',' && depth == 0) {
            break;
        }
    }
    return p;
}

}  // namespace mx
