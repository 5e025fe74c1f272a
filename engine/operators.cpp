#include "engine/operators.h"

#include <cstring>

#include "engine/errors.h"
#include "engine/trace.h"
#include "engine/text_end.h"
#include "engine/value.h"

namespace mx {

namespace {

// Tried in this order, so "<=" wins over "<".
constexpr OperatorRow kOperators[] = {
    {u"<=", 2, kOpLessEqual, 7, 2},  {u">=", 2, kOpGreaterEqual, 7, 2},
    {u"!=", 2, kOpNotEqual, 7, 2},   {u"==", 2, kOpEqual, 7, 2},
    {u"<", 1, kOpLess, 7, 2},        {u">", 1, kOpGreater, 7, 2},
    {u"=", 1, kOpAssign, 5, 2},      {u"+", 1, kOpAdd, 11, 2},
    {u"-", 1, kOpSubtract, 11, 2},   {u"*", 1, kOpMultiply, 12, 2},
    {u"/", 1, kOpDivide, 12, 2},     {u"&&", 2, kOpAnd, 6, 2},
    {u"||", 2, kOpOr, 6, 2},         {u"-", 1, kOpNegate, 20, 1},
    {u"!", 1, kOpNot, 20, 1},
};
constexpr OperatorRow kBracketRow = {u"(", 1, kOpBracket, 2, 3};

// Both operands stay with the caller; the result is written into result.
bool applyLong(RunContext &ctx, int8_t op, int32_t x, int32_t y, OperatorResult *result) {
    uint32_t ux = uint32_t(x), uy = uint32_t(y);
    int32_t r = 0;
    switch (op) {
        case kOpLessEqual: r = x <= y; break;
        case kOpGreaterEqual: r = x >= y; break;
        case kOpNotEqual: r = x != y; break;
        case kOpEqual: r = x == y; break;
        case kOpLess: r = x < y; break;
        case kOpGreater: r = x > y; break;
        case kOpAdd: r = int32_t(ux + uy); break;
        case kOpSubtract: r = int32_t(ux - uy); break;
        case kOpMultiply: r = int32_t(ux * uy); break;
        case kOpDivide:
            if (y == 0) {
                errSet(ctx, kErrDivisionByZero);
                return false;
            }
            r = (x == INT32_MIN && y == -1) ? INT32_MIN : x / y;
            break;
        case kOpAnd: r = x != 0 && y != 0; break;
        case kOpOr: r = x != 0 || y != 0; break;
        case kOpNot: r = x == 0; break;
        case kOpNegate: r = int32_t(0u - ux); break;
        default: break;
    }
    result->setLong(r);
    return true;
}

bool applyDouble(RunContext &ctx, int8_t op, double x, double y, OperatorResult *result) {
    switch (op) {
        case kOpLessEqual: result->setLong(x <= y); return true;
        case kOpGreaterEqual: result->setLong(x >= y); return true;
        case kOpNotEqual: result->setLong(x != y); return true;
        case kOpEqual: result->setLong(x == y); return true;
        case kOpLess: result->setLong(x < y); return true;
        case kOpGreater: result->setLong(x > y); return true;
        case kOpAdd: result->setDouble(x + y); return true;
        case kOpSubtract: result->setDouble(x - y); return true;
        case kOpMultiply: result->setDouble(x * y); return true;
        case kOpDivide:
            if (y == 0.0) {
                errSet(ctx, kErrDivisionByZero);
                return false;
            }
            result->setDouble(x / y);
            return true;
        case kOpNegate: result->setDouble(-x); return true;
        default:  // logical operators take no doubles
            errSet(ctx, kErrBadOperator);
            return false;
    }
}

// Stores right's value into the scalar left refers to, converted to left's type.
void storeScalar(const Value *left, const Value *right) {
    switch (left->type) {
        case kChar: *static_cast<char16_t *>(left->data) = valToChar(right); break;
        case kLong: *static_cast<int32_t *>(left->data) = valToLong(right); break;
        case kDouble: *static_cast<double *>(left->data) = valToDouble(right); break;
        default: break;
    }
}

bool assign(RunContext &ctx, const Value *left, const Value *right, OperatorResult *result) {
    if (left->kind != kReference) return errSet(ctx, kErrAssignConstant), false;
    bool leftVector = left->count != 0, rightVector = right->count != 0;
    if (leftVector != rightVector) return errSet(ctx, kErrVectorNotAllowed), false;
    textEndForget(left->data, size_t(leftVector ? left->count : 1) * size_t(valElementSize(left->type)));
    if (!leftVector) {
        storeScalar(left, right);
    } else {
        if (left->type != right->type) return errSet(ctx, kErrTypeMismatch), false;
        int32_t n = left->count < right->count ? left->count : right->count;
        int32_t size = valElementSize(left->type);
        std::memmove(left->data, right->data, size_t(n) * size_t(size));
        if (left->type == kChar) static_cast<char16_t *>(left->data)[left->count - 1] = 0;
    }
    trAssignment(ctx, left);
    // The assignment's value is the target's (first) element.
    result->type = left->type;
    std::memcpy(&result->number, left->data, size_t(valElementSize(left->type)));
    return true;
}

}  // namespace

bool oprCompute(RunContext &ctx, const OperatorRow *row, const Value *left, const Value *right,
                OperatorResult *result) {
    if (row->number == kOpAssign) return assign(ctx, left, right, result);
    if (left->count != 0 || (right && right->count != 0)) return errSet(ctx, kErrVectorNotAllowed), false;
    bool isDouble = left->type == kDouble || (right && right->type == kDouble);
    return isDouble ? applyDouble(ctx, row->number, valToDouble(left), right ? valToDouble(right) : 0.0, result)
                    : applyLong(ctx, row->number, valToLong(left), right ? valToLong(right) : 0, result);
}

const OperatorRow *oprMatch(const char16_t *text, const char16_t *end, int32_t arity) {
    for (const OperatorRow &row : kOperators) {
        if (row.arity != arity) continue;
        if (text[0] == row.symbol[0] && (row.length == 1 || (end - text > 1 && text[1] == row.symbol[1])))
            return &row;
    }
    return nullptr;
}

const OperatorRow *oprBracket() { return &kBracketRow; }

Value *oprApply(RunContext &ctx, const OperatorRow *row, Value *left, Value *right) {
    OperatorResult r;
    Value *result = nullptr;
    if (oprCompute(ctx, row, left, right, &r)) {
        result = valCreate(ctx, r.type, kOwning, 0);
        if (result) std::memcpy(result->data, &r.number, size_t(valElementSize(r.type)));
    }
    valRelease(left);
    valRelease(right);
    return result;
}

}  // namespace mx
