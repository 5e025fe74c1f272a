#include "engine/formula_program.h"

#include <cstring>

#include "engine/call.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "engine/operators.h"
#include "engine/trace.h"
#include "engine/value.h"
#include "engine/variables.h"

namespace mx {

namespace {

void record(RunContext &ctx, const Step &step, int32_t heightChange) {
    FormulaRecorder *r = ctx.recorder;
    if (!r || r->spoiled) return;
    try {
        r->program.steps.push_back(step);
    } catch (...) {  // no memory for the program: the formula is read from its text next time
        r->spoiled = true;
        return;
    }
    r->height += heightChange;
    if (r->height > r->program.height) r->program.height = r->height;
}

Step make(StepKind kind) {
    Step s;
    s.kind = kind;
    return s;
}

// An operand of a running program. Its Value is what the evaluator would
// have made on the heap; a scalar result keeps its element beside it.
struct Slot {
    Value v;
    alignas(8) unsigned char element[8];

    void scalar(int32_t type, const void *bytes) {
        v = Value{kOwning, type, element, 0, nullptr, 0, 0};
        std::memcpy(element, bytes, size_t(valElementSize(type)));
    }
    void setChar(char16_t x) {
        v = Value{kOwning, kChar, element, 0, nullptr, 0, 0};
        std::memcpy(element, &x, sizeof x);
    }
    void setLong(int32_t x) {
        v = Value{kOwning, kLong, element, 0, nullptr, 0, 0};
        std::memcpy(element, &x, sizeof x);
    }
    void setDouble(double x) {
        v = Value{kOwning, kDouble, element, 0, nullptr, 0, 0};
        std::memcpy(element, &x, sizeof x);
    }
};

// A long or double scalar read straight from where it lives.
struct Number {
    bool isDouble = false;
    int32_t asLong = 0;
    double asDouble = 0.0;
};

// A folded operand's or a stack slot's number; false for texts, characters
// and vectors, which take the general path. Inline: two per operator.
[[gnu::always_inline]] inline bool numberOf(const Operand &o, const Value *stacked, Number *x) {
    if (o.kind == StepKind::kLong) {
        x->isDouble = false, x->asLong = o.n;
        return true;
    }
    if (o.kind == StepKind::kDouble) {
        x->isDouble = true, x->asDouble = o.number;
        return true;
    }
    const Value &v = o.kind == StepKind::kVariable ? *o.variable->value : *stacked;
    if (v.count != 0 || v.type == kChar) return false;
    x->isDouble = v.type == kDouble;
    if (x->isDouble) x->asDouble = *static_cast<const double *>(v.data);
    else x->asLong = *static_cast<const int32_t *>(v.data);
    return true;
}

double toDouble(const Number &x) { return x.isDouble ? x.asDouble : double(x.asLong); }

// Arithmetic and comparisons on two numbers, as the operators compute them;
// false leaves the operation (division, logic) to the general path.
bool quickCompute(int8_t op, const Number &x, const Number &y, Slot &out) {
    if (!x.isDouble && !y.isDouble) {
        uint32_t ux = uint32_t(x.asLong), uy = uint32_t(y.asLong);
        switch (op) {
            case kOpAdd: out.setLong(int32_t(ux + uy)); return true;
            case kOpSubtract: out.setLong(int32_t(ux - uy)); return true;
            case kOpMultiply: out.setLong(int32_t(ux * uy)); return true;
            case kOpLess: out.setLong(x.asLong < y.asLong); return true;
            case kOpLessEqual: out.setLong(x.asLong <= y.asLong); return true;
            case kOpGreater: out.setLong(x.asLong > y.asLong); return true;
            case kOpGreaterEqual: out.setLong(x.asLong >= y.asLong); return true;
            case kOpEqual: out.setLong(x.asLong == y.asLong); return true;
            case kOpNotEqual: out.setLong(x.asLong != y.asLong); return true;
            default: return false;
        }
    }
    double a = toDouble(x), b = toDouble(y);
    switch (op) {
        case kOpAdd: out.setDouble(a + b); return true;
        case kOpSubtract: out.setDouble(a - b); return true;
        case kOpMultiply: out.setDouble(a * b); return true;
        case kOpLess: out.setLong(a < b); return true;
        case kOpLessEqual: out.setLong(a <= b); return true;
        case kOpGreater: out.setLong(a > b); return true;
        case kOpGreaterEqual: out.setLong(a >= b); return true;
        case kOpEqual: out.setLong(a == b); return true;
        case kOpNotEqual: out.setLong(a != b); return true;
        default: return false;
    }
}

// An untraced assignment of a number to a long or double scalar variable;
// false leaves it to the general path (constants, conversions, vectors).
bool quickAssign(RunContext &ctx, const Operand &o, const Value *stacked, const Number &y, Slot &out) {
    if (ctx.traceSwitches) return false;
    const Value *target = o.kind == StepKind::kVariable ? o.variable->value : stacked;
    if (o.kind != StepKind::kVariable && (o.kind != StepKind::kApply || stacked->kind != kReference)) return false;
    if (target->count != 0) return false;
    if (target->type == kLong && !y.isDouble) {
        *static_cast<int32_t *>(target->data) = y.asLong;
        out.setLong(y.asLong);
        return true;
    }
    if (target->type == kDouble) {
        double d = toDouble(y);
        *static_cast<double *>(target->data) = d;
        out.setDouble(d);
        return true;
    }
    return false;
}

// A reference to the whole variable, as reading its name gives.
void variableRef(Variable *var, Slot &slot) {
    const Value *storage = var->value;
    slot.v = Value{kReference, storage->type, storage->data, storage->count, var->name, storage->count, 0};
}

// Operands held on the machine's stack for all but unusually deep formulas.
constexpr int32_t kLocalSlots = 24;

// A heap Value equal to the slot's, as the function-call path expects its
// arguments (a text constant is copied, as reading it from the text does).
Value *toHeap(RunContext &ctx, const Value &v) {
    if (v.kind == kReference) {
        Value *r = valCreate(ctx, v.type, kReference, v.count);
        if (r) r->data = v.data, r->varName = v.varName, r->varCount = v.varCount, r->index = v.index;
        return r;
    }
    Value *r = valCreate(ctx, v.type, kOwning, v.count);
    if (r) std::memcpy(r->data, v.data, size_t(v.count ? v.count : 1) * size_t(valElementSize(v.type)));
    return r;
}

bool element(RunContext &ctx, Variable *var, Slot &top) {
    if (top.v.count != 0) return errSet(ctx, kErrVectorNotAllowed), false;
    int32_t index = valToLong(&top.v);
    const Value *storage = var->value;
    if (storage->count == 0) return errSet(ctx, kErrNotIndexable, var->name), false;
    if (index < 0 || index >= storage->count) return errSet(ctx, kErrIndexRange, var->name), false;
    char *data = static_cast<char *>(storage->data) + size_t(index) * size_t(valElementSize(storage->type));
    top.v = Value{kReference, storage->type, data, 0, var->name, storage->count, index};
    return true;
}

// The Value the evaluator would hold for a folded operand, made in tmp.
const Value *materialise(const Operand &o, Slot &tmp) {
    switch (o.kind) {
        case StepKind::kLong: tmp.setLong(o.n); break;
        case StepKind::kDouble: tmp.setDouble(o.number); break;
        default: variableRef(o.variable, tmp); break;
    }
    return &tmp.v;
}

// Applies the operator of step to its operands (folded or on the stack) and
// leaves the result on top of the stack.
bool apply(RunContext &ctx, const Step &step, Slot *s, int32_t &n) {
    const OperatorRow *row = step.row;
    bool binary = row->arity == 2;
    // Operands on the stack: the right one on top, the left one below it.
    int32_t fromStack = (step.left.kind == StepKind::kApply) + (binary && step.right.kind == StepKind::kApply);
    const Value *stackLeft = step.left.kind == StepKind::kApply ? &s[n - fromStack].v : nullptr;
    const Value *stackRight = binary && step.right.kind == StepKind::kApply ? &s[n - 1].v : nullptr;
    // The result goes where the lowest stacked operand was. The quick paths
    // have read their operands before they write it; the general path may
    // still read them while computing, so its result is copied at the end.
    Slot &result = s[n - fromStack];
    Number x, y;
    bool done = false;
    if (binary && numberOf(step.right, stackRight, &y)) {
        if (row->number == kOpAssign) done = quickAssign(ctx, step.left, stackLeft, y, result);
        else done = numberOf(step.left, stackLeft, &x) && quickCompute(row->number, x, y, result);
    }
    if (!done) {
        Slot tmpLeft, tmpRight;
        const Value *left = stackLeft ? stackLeft : materialise(step.left, tmpLeft);
        const Value *right = !binary ? nullptr : stackRight ? stackRight : materialise(step.right, tmpRight);
        OperatorResult r;
        if (!oprCompute(ctx, row, left, right, &r)) return false;
        result.scalar(r.type, r.number);
    }
    n += 1 - fromStack;
    return true;
}

bool call(RunContext &ctx, const Step &step, Slot *s, int32_t &n) {
    Value *args[kMaxArguments] = {};
    int32_t count = step.n, first = n - count;
    for (int32_t i = 0; i < count; ++i) {
        args[i] = toHeap(ctx, s[first + i].v);
        if (!args[i]) {
            valReleaseArray(args, i);
            return false;
        }
    }
    int32_t result = 0;
    if (!fnInvoke(ctx, step.function, step.host, args, count, &result)) return false;
    n = first + 1;
    s[n - 1].setLong(result);
    return true;
}

bool runSteps(RunContext &ctx, const FormulaProgram &program, Slot *s, int32_t &n) {
    const char16_t *texts = program.texts.data();
    for (const Step &step : program.steps) {
        switch (step.kind) {
            case StepKind::kLong: s[n++].setLong(step.n); break;
            case StepKind::kDouble: s[n++].setDouble(step.number); break;
            case StepKind::kChar: s[n++].setChar(char16_t(step.n)); break;
            case StepKind::kText:
                s[n++].v = Value{kOwning, kChar, const_cast<char16_t *>(texts + step.n), step.length, nullptr, 0, 0};
                break;
            case StepKind::kVariable: variableRef(step.variable, s[n++]); break;
            case StepKind::kElement:
                if (!element(ctx, step.variable, s[n - 1])) return false;
                break;
            case StepKind::kApply:
                if (!apply(ctx, step, s, n)) return false;
                break;
            case StepKind::kCall:
                if (!call(ctx, step, s, n)) return false;
                break;
            case StepKind::kEnter:
                if (!evEnter(ctx)) return false;
                break;
            case StepKind::kLeave: evLeave(ctx); break;
        }
    }
    return true;
}

}  // namespace

void fpRecordLong(RunContext &ctx, int32_t v) {
    Step s = make(StepKind::kLong);
    s.n = v;
    record(ctx, s, 1);
}

void fpRecordDouble(RunContext &ctx, double v) {
    Step s = make(StepKind::kDouble);
    s.number = v;
    record(ctx, s, 1);
}

void fpRecordChar(RunContext &ctx, char16_t c) {
    Step s = make(StepKind::kChar);
    s.n = c;
    record(ctx, s, 1);
}

void fpRecordText(RunContext &ctx, const char16_t *units, int32_t count) {
    FormulaRecorder *r = ctx.recorder;
    if (!r || r->spoiled) return;
    Step s = make(StepKind::kText);
    s.n = int32_t(r->program.texts.size());
    s.length = count;
    try {
        r->program.texts.append(units, size_t(count));
    } catch (...) {
        r->spoiled = true;
        return;
    }
    record(ctx, s, 1);
}

void fpRecordVariable(RunContext &ctx, Variable *var, bool element) {
    if (!ctx.recorder) return;
    ctx.recorder->program.names = true;
    Step s = make(element ? StepKind::kElement : StepKind::kVariable);
    s.variable = var;
    record(ctx, s, element ? 0 : 1);
}

void fpRecordApply(RunContext &ctx, const OperatorRow *row) {
    Step s = make(StepKind::kApply);
    s.row = row;
    record(ctx, s, row->arity == 2 ? -1 : 0);
}

void fpRecordCall(RunContext &ctx, const FunctionRow *row, bool host, int32_t count) {
    Step s = make(StepKind::kCall);
    s.function = row;
    s.host = host;
    s.n = count;
    record(ctx, s, 1 - count);
}

void fpRecordNesting(RunContext &ctx, bool enter) { record(ctx, make(enter ? StepKind::kEnter : StepKind::kLeave), 0); }

bool fpRun(RunContext &ctx, const FormulaProgram &program, FormulaResult *result) {
    int32_t depth = ctx.depth;
    if (!evEnter(ctx)) return false;
    Slot local[kLocalSlots];
    std::vector<Slot> deep;
    Slot *s = local;
    if (program.height > kLocalSlots) {
        deep.resize(size_t(program.height));
        s = deep.data();
    }
    int32_t n = 0;
    bool ok = runSteps(ctx, program, s, n);
    ctx.depth = depth;  // also where an error left an argument's level open
    if (!ok) return false;
    result->vector = s[0].v.count != 0;
    result->asLong = valToLong(&s[0].v);
    return true;
}

namespace {
bool foldable(const Step &s) {
    return s.kind == StepKind::kLong || s.kind == StepKind::kDouble || s.kind == StepKind::kVariable;
}

Operand operandOf(const Step &s) {
    Operand o;
    o.kind = s.kind;
    o.n = s.n;
    if (s.kind == StepKind::kVariable) o.variable = s.variable;
    else o.number = s.number;
    return o;
}
}  // namespace

void fpFold(FormulaProgram &program) {
    std::vector<Step> &steps = program.steps;
    size_t out = 0;
    for (size_t i = 0; i < steps.size(); ++i) {
        Step step = steps[i];
        if (step.kind == StepKind::kApply) {
            // The step just before pushed the top operand: the right one of a
            // binary operator, the only one of a unary one.
            Operand &top = step.row->arity == 2 ? step.right : step.left;
            if (out > 0 && foldable(steps[out - 1])) {
                top = operandOf(steps[--out]);
                if (step.row->arity == 2 && out > 0 && foldable(steps[out - 1])) step.left = operandOf(steps[--out]);
            }
        }
        steps[out++] = step;
    }
    steps.resize(out);
    steps.shrink_to_fit();  // a long macro keeps one program per formula
    program.texts.shrink_to_fit();
}

size_t fpMemory(const FormulaProgram &program) {
    return sizeof(FormulaProgram) + program.steps.capacity() * sizeof(Step) +
           program.texts.capacity() * sizeof(char16_t);
}

}  // namespace mx
