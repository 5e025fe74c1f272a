// The operator table and the application of operators to Values, including
// the assignment.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

enum OperatorNumber : int8_t {
    kOpLessEqual = 1, kOpGreaterEqual, kOpNotEqual, kOpEqual, kOpLess, kOpGreater,
    kOpAssign, kOpAdd, kOpSubtract, kOpMultiply, kOpDivide, kOpAnd, kOpOr,
    kOpNot, kOpNegate,
    kOpBracket = 99,  // the marker an opening bracket pushes; never matched
};

struct OperatorRow {
    const char16_t *symbol;
    int8_t length;
    int8_t number;
    int8_t precedence;
    int8_t arity;
};

// The row whose symbol is a prefix of the text [text, end) (not empty) among
// the rows of the given arity (1 or 2), tried in table order; absent when none
// matches.
const OperatorRow *oprMatch(const char16_t *text, const char16_t *end, int32_t arity);

// The bracket marker row.
const OperatorRow *oprBracket();

// A scalar an operator computed: its type and its value, stored as the
// element of that type would be (so its bytes can be copied into a Value).
struct OperatorResult {
    int32_t type = kLong;
    union {
        int32_t asLong;
        double asDouble;
        char16_t asChar;
        unsigned char number[8];
    };
    OperatorResult() : asDouble(0.0) {}
    void setLong(int32_t v) { type = kLong, asLong = v; }
    void setDouble(double v) { type = kDouble, asDouble = v; }
};

// Applies row to left (and right for binary rows; absent for unary ones),
// leaving both operands as they are: an assignment stores into the variable
// left refers to and writes the trace line. Fills result, or returns false
// with the error set.
bool oprCompute(RunContext &ctx, const OperatorRow *row, const Value *left, const Value *right,
                OperatorResult *result);

// Applies row to left (and right for binary rows). Consumes both operands.
// Returns a new owning Value, or absent with the error set.
Value *oprApply(RunContext &ctx, const OperatorRow *row, Value *left, Value *right);

}  // namespace mx
