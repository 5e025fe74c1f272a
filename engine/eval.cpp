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

Value *finish(RunContext &ctx, Stacks &st, const char16_t *formula, int32_t depth) {
    if (!reduce(ctx, st, 0)) return nullptr;
    if (st.nOps) errSet(ctx, kErrBadOperand, formula);
    else if (st.nOperands != 1) errSet(ctx, kErrOperatorMissing, formula);
    else if (depth != 0) errSet(ctx, kErrBrackets, formula);
    else return st.popOperand();
    return nullptr;
}

Value *evaluate(RunContext &ctx, char16_t *formula) {
    Stacks st;
    bool expectOperand = true;
    int32_t depth = 0;
    char16_t *p = formula;
    for (;;) {
        if (*p == 0) return finish(ctx, st, formula, depth);
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
            const OperatorRow *row = oprMatch(p, 2);
            if (!row) {
                errSet(ctx, kErrBadOperator, p);
                return nullptr;
            }
            if (st.nOps && row->precedence <= st.ops[st.nOps - 1]->precedence &&
                !reduce(ctx, st, row->precedence))
                return nullptr;
            if (!st.pushOp(ctx, row)) return nullptr;
            p += row->length;
            expectOperand = true;
        } else if (const OperatorRow *unary = oprMatch(p, 1)) {
            if (!st.pushOp(ctx, unary)) return nullptr;
            p += unary->length;
        } else {
            Value *v = opReadOperand(ctx, p);
            if (!v || !st.pushOperand(ctx, v)) return nullptr;
            expectOperand = false;
        }
    }
}

}  // namespace

bool evEnter(RunContext &ctx) {
    if (ctx.depth >= kMaxDepth) {
        errSet(ctx, kErrStackOverflow);
        return false;
    }
    ++ctx.depth;
    return true;
}

Value *evEvaluate(RunContext &ctx, char16_t *formula) {
    if (!evEnter(ctx)) return nullptr;
    Value *v = evaluate(ctx, formula);
    evLeave(ctx);
    return v;
}

Value *evEvaluateRange(RunContext &ctx, char16_t *begin, char16_t *end) {
    char16_t saved = *end;
    *end = 0;
    fpRecordNesting(ctx, true);
    Value *v = evEvaluate(ctx, begin);
    if (v) fpRecordNesting(ctx, false);
    *end = saved;
    return v;
}

char16_t *evScanArgument(char16_t *p) {
    bool quoted = false;
    int32_t depth = 0;
    for (; *p; ++p) {
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
