// The Run context: the record of one run, handed to every engine function and
// every built-in. Created by a run entry point (or by Call for a nested run)
// and living for the duration of that call.
#pragma once
#include <cstdint>

#include "engine/types.h"

namespace mx {

struct MxpFile;
struct Variable;
class StatementCache;
struct FormulaRecorder;

constexpr int32_t kMacroNameCapacity = 50;
constexpr int32_t kErrorArgCapacity = 128;  // at most 127 characters are kept
constexpr int32_t kFileSlots = 5;
constexpr int32_t kBuiltinRowCount = 318;

// Trace switches.
enum : uint32_t {
    kTraceCallsToFile = 1,
    kTraceAssignToFile = 2,
    kTraceCallsToBox = 256,
    kTraceAssignToBox = 512,
};

struct RunContext {
    ModuleHandle hostInstance = nullptr;
    WindowHandle hostWindow = nullptr;     // top-level ancestor of the host's window
    const char16_t *macroCommand = nullptr;  // file macros: path and parameters
    const char16_t *macroText = nullptr;     // memory macros: the statements
    const char16_t *macroTitle = nullptr;    // name shown in the error box
    const FunctionRow *hostTable = nullptr;
    HostCallback hostCallback = nullptr;
    AbortCallback abortCallback = nullptr;
    intptr_t callbackValue = 0;
    char16_t decimalSeparator = u'.';
    const FunctionRow *builtinTable = nullptr;
    int32_t builtinCount = 0;
    char16_t macroName[kMacroNameCapacity] = {};
    int32_t line = 0;
    int32_t errorCode = 0;
    char16_t errorArg[kErrorArgCapacity] = {};
    // The loaded text and the reader's place in it.
    char16_t *text = nullptr;
    int32_t capacity = 0;
    int32_t pos = 0;
    int32_t length = 0;
    Variable *locals = nullptr;
    int32_t hostCount = 0;
    MxpFile *files[kFileSlots] = {};
    MxpFile *traceFile = nullptr;
    uint32_t traceSwitches = 0;
    int32_t dialogX = 0, dialogY = 0;
    int32_t dialogWidth = 0, dialogHeight = 0;
    char16_t escape = u'\\';
    // Nesting depth of statements, formulas and nested runs (see kMaxDepth).
    int32_t depth = 0;
    // What this run has read of its text (see engine/statement_cache.h), the
    // recording of the formula being evaluated for the first time, and the
    // count of local declarations so far.
    StatementCache *cache = nullptr;
    FormulaRecorder *recorder = nullptr;
    int32_t localGeneration = 0;
};

// Blocks, conditions, loops, function arguments and nested runs together may
// nest this deep; one level more fails the run with error 131 instead of
// exhausting the host's stack.
constexpr int32_t kMaxDepth = 2000;

}  // namespace mx
