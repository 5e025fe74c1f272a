#include "engine/check_formula.h"

#include "engine/call.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "engine/function_numbers.h"
#include "engine/operand.h"
#include "engine/operators.h"
#include "base/u16.h"
#include "platform/platform.h"

namespace mx {

namespace {

// The evaluator's two stacks, with a count standing for the operand stack.
struct Shape {
    const OperatorRow *ops[kStackEntries];
    int32_t nOps = 0;
    int32_t nOperands = 0;

    bool pushOp(RunContext &ctx, const OperatorRow *row) {
        if (nOps == kStackEntries) return errSet(ctx, kErrStackOverflow), false;
        ops[nOps++] = row;
        return true;
    }
    bool pushOperand(RunContext &ctx) {
        if (nOperands == kStackEntries) return errSet(ctx, kErrStackOverflow), false;
        ++nOperands;
        return true;
    }
    // As the evaluator's reduction: operators from the top while their
    // precedence is at least minimum; a bracket marker ends it.
    bool reduce(RunContext &ctx, int32_t minimum) {
        while (nOps > 0 && ops[nOps - 1]->precedence >= minimum) {
            const OperatorRow *row = ops[--nOps];
            if (row->number == kOpBracket) return true;
            if (nOperands < row->arity) return errSet(ctx, kErrBadOperand), false;
            nOperands -= row->arity - 1;
        }
        return true;
    }
};

bool check(RunContext &ctx, const CheckNames &names, const char16_t *formula, const char16_t *end);

// An argument or index, one nesting level deeper.
bool checkRange(RunContext &ctx, const CheckNames &names, const char16_t *begin, const char16_t *end) {
    if (!evEnter(ctx)) return false;
    bool ok = check(ctx, names, begin, end);
    evLeave(ctx);
    return ok;
}

// The descriptors of a signature: the number of parameters, or -1 with
// error 148 when the call would reach a faulty descriptor within count.
int32_t checkArgumentCount(RunContext &ctx, const FunctionRow *row, int32_t count) {
    const char16_t *sig = row->signature ? row->signature : u"";
    for (int32_t i = 0;; ++i) {
        if (i == count) {
            if (*sig == 0) return 0;
            return errSet(ctx, kErrTooFewParams, row->name), -1;
        }
        if (*sig == 0) return errSet(ctx, kErrTooManyParams, row->name), -1;
        if (*sig == u'X') {
            ++sig;
            continue;
        }
        const char16_t *start = sig;
        if (*sig == u'*') ++sig;
        if (*sig != u'C' && *sig != u'D' && *sig != u'L') return errSet(ctx, kErrTableSyntax, start), -1;
        ++sig;
        if (sig[0] == u'[' && sig[1] == u']') sig += 2;
    }
}

// The value of an argument written as a constant: 1 to 9 digits or 'c'.
// -1 for anything else.
int32_t constantArgument(const char16_t *begin, const char16_t *end) {
    if (end - begin == 3 && begin[0] == u'\'' && begin[2] == u'\'') return begin[1];
    if (end - begin < 1 || end - begin > 9) return -1;
    int32_t n = 0;
    for (const char16_t *c = begin; c < end; ++c) {
        if (*c < u'0' || *c > u'9') return -1;
        n = n * 10 + (*c - u'0');
    }
    return n;
}

// name(arguments): as the call reads them, each argument checked as a formula.
// A new escape character set with a constant takes effect for the text read
// after it, as it does when the macro runs straight through.
bool checkCall(RunContext &ctx, const CheckNames &names, const FunctionRow *row, const char16_t *&p,
               const char16_t *formulaEnd) {
    if (p == formulaEnd || *p != u'(') return errSet(ctx, kErrCharExpected, u"("), false;
    int32_t count = 0;
    const char16_t *first = p + 1, *firstEnd = p + 1;
    ++p;
    while (p == formulaEnd || *p != u')') {
        if (count == kMaxArguments) return errSet(ctx, kErrTooManyParams, row->name), false;
        const char16_t *end = evScanArgument(p, formulaEnd);
        if (!checkRange(ctx, names, p, end)) return false;
        if (count++ == 0) firstEnd = end;
        p = end;
        if (p < formulaEnd && *p == u',') ++p;
    }
    ++p;
    if (checkArgumentCount(ctx, row, count) < 0) return false;
    int32_t escape = constantArgument(first, firstEnd);
    if ((row->identifier & kFunctionNumberMask) == fnum::SetStringEscape && escape >= 0)
        ctx.escape = char16_t(escape);
    return true;
}

// [index] after a variable.
bool checkIndex(RunContext &ctx, const CheckNames &names, const char16_t *&p, const char16_t *formulaEnd) {
    const char16_t *end = evScanArgument(p + 1, formulaEnd);
    if (!checkRange(ctx, names, p + 1, end)) return false;
    if (end == formulaEnd || *end != u']') return errSet(ctx, kErrCharExpected, u"]"), false;
    p = end + 1;
    return true;
}

bool isTokenChar(char16_t c) { return c == u'_' || c == u'.' || mxp_IsAlphaNumeric(c); }

// A token of digits with at most one '.', as the operand reader takes numbers.
bool isNumber(const char16_t *token, int32_t len) {
    int32_t dots = 0;
    for (int32_t i = 0; i < len; ++i) {
        if (token[i] == u'.') ++dots;
        else if (token[i] < u'0' || token[i] > u'9') return false;
    }
    return len >= 1 && len <= 16 && dots <= 1;
}

bool checkOperand(RunContext &ctx, const CheckNames &names, const char16_t *&p, const char16_t *end) {
    int32_t rest = int32_t(end - p);
    if (*p == u'"') {
        const char16_t *close = p + 1;
        while (close < end && *close != u'"') ++close;
        if (close == end) return errSetN(ctx, kErrStringEnd, p, rest), false;
        p = close + 1;
        return true;
    }
    if (*p == u'\'') {
        if (rest < 3 || p[2] != u'\'') return errSetN(ctx, kErrBadCharConstant, p, rest), false;
        p += 3;
        return true;
    }
    char16_t token[kNameCapacity];
    int32_t len = 0;
    for (; p < end && isTokenChar(*p); ++p)
        if (len < kNameCapacity - 1) token[len++] = *p;
    token[len] = 0;
    if (isNumber(token, len)) return true;
    if (len == 0 || (token[0] != u'_' && !mxp_IsAlpha(token[0])))
        return errSetN(ctx, kErrBadOperand, p, int32_t(end - p)), false;
    bool host = false;
    if (const FunctionRow *row = fnLookup(ctx, token, &host))
        return !row->signature || checkCall(ctx, names, row, p, end);
    if (!names.count(token)) return errSet(ctx, kErrVarUndeclared, token), false;
    return p == end || *p != u'[' || checkIndex(ctx, names, p, end);
}

bool check(RunContext &ctx, const CheckNames &names, const char16_t *formula, const char16_t *end) {
    Shape st;
    bool expectOperand = true;
    int32_t depth = 0;
    const char16_t *p = formula;
    int32_t n = int32_t(end - formula);
    for (;;) {
        if (p == end) {
            if (!st.reduce(ctx, 0)) return false;
            if (st.nOps) return errSetN(ctx, kErrBadOperand, formula, n), false;
            if (st.nOperands != 1) return errSetN(ctx, kErrOperatorMissing, formula, n), false;
            if (depth != 0) return errSetN(ctx, kErrBrackets, formula, n), false;
            return true;
        }
        if (*p == u'(') {
            if (!expectOperand) return errSet(ctx, kErrUnexpectedChar, u"("), false;
            if (!st.pushOp(ctx, oprBracket())) return false;
            ++depth, ++p;
        } else if (*p == u')') {
            if (!st.reduce(ctx, 1)) return false;
            expectOperand = false;
            --depth, ++p;
        } else if (!expectOperand) {
            const OperatorRow *row = oprMatch(p, end, 2);
            if (!row) return errSetN(ctx, kErrBadOperator, p, int32_t(end - p)), false;
            if (st.nOps && row->precedence <= st.ops[st.nOps - 1]->precedence &&
                !st.reduce(ctx, row->precedence))
                return false;
            if (!st.pushOp(ctx, row)) return false;
            p += row->length;
            expectOperand = true;
        } else if (const OperatorRow *unary = oprMatch(p, end, 1)) {
            if (!st.pushOp(ctx, unary)) return false;
            p += unary->length;
        } else {
            if (!checkOperand(ctx, names, p, end) || !st.pushOperand(ctx)) return false;
            expectOperand = false;
        }
    }
}

}  // namespace

bool ckFormula(RunContext &ctx, const CheckNames &names, const char16_t *formula) {
    return checkRange(ctx, names, formula, formula + u16Len(formula));
}

}  // namespace mx
