// Dispatch entries of the language's own built-ins: variables, nested runs,
// macro parameters, the string escape and tracing.
#include "engine/args.h"
#include "engine/function_numbers.h"
#include "builtins/families.h"
#include "builtins/language/nested_run.h"
#include "builtins/language/trace_switches.h"
#include "base/u16.h"
#include "engine/variables.h"
#include "engine/process_state.h"

namespace mx {

namespace {

// Dim(X): the highest valid index of the argument, 0 for a scalar.
int32_t biDim(RunContext &, Value **a, int32_t) { return a[0]->count > 0 ? a[0]->count - 1 : 0; }

// IsDeclared(C[]): 1 when a static variable of that name exists.
int32_t biIsDeclared(RunContext &, Value **a, int32_t) {
    return varFind(gProcess.statics, ArgTextZ(a[0]).get()) ? 1 : 0;
}

// Call(C[]).
int32_t biCall(RunContext &ctx, Value **a, int32_t) { return lgCall(ctx, ArgTextZ(a[0]).get()); }

// CallWithParams(C[] x 6). The command lives on the heap: a macro that calls
// itself this way must reach the nesting limit before the host's stack ends.
int32_t biCallWithParams(RunContext &ctx, Value **a, int32_t) {
    std::u16string parts[6];
    for (int32_t i = 0; i < 6; ++i) parts[i] = argString(a[i]);
    std::u16string command = lgBuildCommand(parts);
    return lgCall(ctx, command.c_str());
}

// GetMacroParameter(L, *C[]).
int32_t biGetMacroParameter(RunContext &ctx, Value **a, int32_t) {
    return lgGetMacroParameter(ctx, argLong(a[0]), argText(a[1]), argCapacity(a[1]));
}

// SetStringEscape(L): the previous escape character's code.
int32_t biSetStringEscape(RunContext &ctx, Value **a, int32_t) {
    char16_t previous = ctx.escape;
    ctx.escape = char16_t(uint32_t(argLong(a[0])) & 0xFFFF);
    return previous;
}

int32_t biTraceDialog(RunContext &ctx, Value **a, int32_t) {
    return lgTraceSwitch(ctx, kTraceCallsToBox | kTraceAssignToBox, argLong(a[0]));
}
int32_t biTraceFunction(RunContext &ctx, Value **a, int32_t) {
    return lgTraceSwitch(ctx, kTraceCallsToFile, argLong(a[0]));
}
int32_t biTraceAssign(RunContext &ctx, Value **a, int32_t) {
    return lgTraceSwitch(ctx, kTraceAssignToFile, argLong(a[0]));
}
int32_t biTraceFile(RunContext &ctx, Value **a, int32_t) { return lgTraceFile(ctx, ArgTextZ(a[0]).get()); }

const DispatchEntry kEntries[] = {
    {fnum::Dim, u"X", biDim},
    {fnum::IsDeclared, u"C[]", biIsDeclared},
    {fnum::Call, u"C[]", biCall},
    {fnum::GetMacroParameter, u"L*C[]", biGetMacroParameter},
    {fnum::SetStringEscape, u"L", biSetStringEscape},
    {fnum::TraceDialog, u"L", biTraceDialog},
    {fnum::TraceFunction, u"L", biTraceFunction},
    {fnum::TraceAssign, u"L", biTraceAssign},
    {fnum::TraceFile, u"C[]", biTraceFile},
    {fnum::CallWithParams, u"C[]C[]C[]C[]C[]C[]", biCallWithParams},
};

}  // namespace

const DispatchFamily kLanguageFamily = {"language", kEntries, sizeof(kEntries) / sizeof(kEntries[0])};

}  // namespace mx
