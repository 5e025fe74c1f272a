// Formula programs: the operations one evaluation of a formula performed, in
// the order it performed them (operands, operators, calls, the nesting of
// arguments and indexes), kept so that the next evaluation of the same text
// runs them without reading the text again. What a formula does depends only
// on its text and on which variables its names resolve to; the values are
// read afresh on every run of the program.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "engine/run_context.h"
#include "engine/types.h"

namespace mx {

struct OperatorRow;
struct Variable;

enum class StepKind : uint8_t {
    kLong,      // a long constant (a number, a named constant)
    kDouble,    // a double constant
    kChar,      // a character constant
    kText,      // a text constant, kept in the program's texts
    kVariable,  // the whole variable
    kElement,   // pops an index, pushes that element of the variable
    kApply,     // an operator on the top one or two operands
    kCall,      // a function on the top count operands
    kEnter,     // an argument or index begins: one nesting level more
    kLeave,     // it ended
};

// An operand that a kApply step reads where it is (a constant or a whole
// variable) instead of from the operand stack: the step that would have
// pushed it just before the operator is folded into the operator.
struct Operand {
    StepKind kind = StepKind::kApply;  // kLong, kDouble, kVariable; kApply: from the stack
    int32_t n = 0;                     // kLong: the value
    union {
        double number;
        Variable *variable;
    };
    Operand() : number(0.0) {}
};

struct Step {
    StepKind kind;
    bool host = false;  // kCall: a function of the host's table
    int32_t n = 0;      // kLong and kChar: the value; kText: offset in texts; kCall: argument count
    int32_t length = 0; // kText: units with the terminator
    union {
        double number;
        const OperatorRow *row;
        const FunctionRow *function;
        Variable *variable;
    };
    Operand left, right;  // kApply: folded operands (right stays on the stack for unary rows)
    Step() : kind(StepKind::kLong), number(0.0) {}
};

struct FormulaProgram {
    std::vector<Step> steps;
    std::u16string texts;  // the text constants, each followed by its terminator
    int32_t height = 0;    // the most operands held at once
    bool names = false;    // some step resolved a variable name
};

// What a formula gave, as far as statements ask: whether it is a vector and
// its (first element's) value as a long.
struct FormulaResult {
    bool vector = false;
    int32_t asLong = 0;
};

// Records the operations of the evaluation under way into a program. A run
// context records while ctx.recorder is set; an error spoils the recording.
struct FormulaRecorder {
    FormulaProgram program;
    int32_t height = 0;
    bool spoiled = false;
};

// The recording points, called by the evaluator after each operation has
// succeeded. Each does nothing unless the context is recording.
void fpRecordLong(RunContext &ctx, int32_t v);
void fpRecordDouble(RunContext &ctx, double v);
void fpRecordChar(RunContext &ctx, char16_t c);
void fpRecordText(RunContext &ctx, const char16_t *units, int32_t count);
void fpRecordVariable(RunContext &ctx, Variable *var, bool element);
void fpRecordApply(RunContext &ctx, const OperatorRow *row);
void fpRecordCall(RunContext &ctx, const FunctionRow *row, bool host, int32_t count);
void fpRecordNesting(RunContext &ctx, bool enter);

// Folds each constant or whole variable pushed just before an operator into
// the operator (see Operand). Call once, when the recording is complete.
void fpFold(FormulaProgram &program);

// Runs program as one evaluation of its formula: one nesting level, the same
// operations, errors, trace lines and calls in the same order as reading its
// text would give. Returns true and fills result, or false with the error set.
bool fpRun(RunContext &ctx, const FormulaProgram &program, FormulaResult *result);

// Bytes program holds (for the cache's memory report).
size_t fpMemory(const FormulaProgram &program);

}  // namespace mx
