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

int32_t longOf(const Value &v) { return *static_cast<const int32_t *>(v.data); }
double doubleOf(const Value &v) {
    return v.type == kDouble ? *static_cast<const double *>(v.data) : double(*static_cast<const int32_t *>(v.data));
}

// Binary operators on long scalars, computed inline; false leaves the
// operation (division, logic, a traced assignment) to oprCompute.
bool quickLong(RunContext &ctx, int8_t op, Value &left, const Value &right, Slot &out) {
    int32_t x = longOf(left), y = longOf(right);
    uint32_t ux = uint32_t(x), uy = uint32_t(y);
    switch (op) {
        case kOpAssign:
            if (left.kind != kReference || ctx.traceSwitches) return false;
            *static_cast<int32_t *>(left.data) = y;
            out.setLong(y);
            return true;
        case kOpAdd: out.setLong(int32_t(ux + uy)); return true;
        case kOpSubtract: out.setLong(int32_t(ux - uy)); return true;
        case kOpMultiply: out.setLong(int32_t(ux * uy)); return true;
        case kOpLess: out.setLong(x < y); return true;
        case kOpLessEqual: out.setLong(x <= y); return true;
        case kOpGreater: out.setLong(x > y); return true;
        case kOpGreaterEqual: out.setLong(x >= y); return true;
        case kOpEqual: out.setLong(x == y); return true;
        case kOpNotEqual: out.setLong(x != y); return true;
        default: return false;
    }
}

// The same for scalars of which one at least is a double.
bool quickDouble(RunContext &ctx, int8_t op, Value &left, const Value &right, Slot &out) {
    double x = doubleOf(left), y = doubleOf(right);
    switch (op) {
        case kOpAssign:
            if (left.kind != kReference || left.type != kDouble || ctx.traceSwitches) return false;
            *static_cast<double *>(left.data) = y;
            out.setDouble(y);
            return true;
        case kOpAdd: out.setDouble(x + y); return true;
        case kOpSubtract: out.setDouble(x - y); return true;
        case kOpMultiply: out.setDouble(x * y); return true;
        case kOpLess: out.setLong(x < y); return true;
        case kOpLessEqual: out.setLong(x <= y); return true;
        case kOpGreater: out.setLong(x > y); return true;
        case kOpGreaterEqual: out.setLong(x >= y); return true;
        case kOpEqual: out.setLong(x == y); return true;
        case kOpNotEqual: out.setLong(x != y); return true;
        default: return false;
    }
}

// A binary operator on two long or double scalars, the common case, without
// the general path; false when the operation is not one of those.
bool quickApply(RunContext &ctx, const OperatorRow *row, Slot *s, int32_t &n) {
    if (row->arity != 2) return false;
    Value &left = s[n - 2].v;
    const Value &right = s[n - 1].v;
    if ((left.count | right.count) != 0 || left.type == kChar || right.type == kChar) return false;
    Slot out;
    bool done = left.type == kLong && right.type == kLong ? quickLong(ctx, row->number, left, right, out)
                                                           : quickDouble(ctx, row->number, left, right, out);
    if (!done) return false;
    --n;
    s[n - 1].v = out.v;
    s[n - 1].v.data = s[n - 1].element;
    std::memcpy(s[n - 1].element, out.element, 8);
    return true;
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

bool apply(RunContext &ctx, const OperatorRow *row, Slot *s, int32_t &n) {
    OperatorResult r;
    bool binary = row->arity == 2;
    if (!oprCompute(ctx, row, &s[n - 1 - binary].v, binary ? &s[n - 1].v : nullptr, &r)) return false;
    n -= binary;
    s[n - 1].scalar(r.type, r.number);
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
            case StepKind::kVariable: {
                const Value *storage = step.variable->value;
                s[n++].v = Value{kReference, storage->type, storage->data, storage->count, step.variable->name,
                                 storage->count, 0};
                break;
            }
            case StepKind::kElement:
                if (!element(ctx, step.variable, s[n - 1])) return false;
                break;
            case StepKind::kApply:
                if (!quickApply(ctx, step.row, s, n) && !apply(ctx, step.row, s, n)) return false;
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
    result->asLong = s[0].v.type == kLong ? longOf(s[0].v) : valToLong(&s[0].v);
    return true;
}

size_t fpMemory(const FormulaProgram &program) {
    return sizeof(FormulaProgram) + program.steps.capacity() * sizeof(Step) +
           program.texts.capacity() * sizeof(char16_t);
}

}  // namespace mx
