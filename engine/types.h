// Core types of the interpreter: the Value, a function table row and the host
// callbacks. Their layouts are the ones of the public header (include/morvix.h);
// interface/layout_check.cpp proves that, so the core needs no Windows headers.
#pragma once
#include <cstddef>
#include <cstdint>

#include "base/handles.h"

// The public Value record of include/morvix.h, only named here.
struct MX_VALUE;

namespace mx {

// The public header's LONG: long on Windows, a 32-bit int elsewhere.
#ifdef _WIN32
using HostLong = long;
#else
using HostLong = int32_t;
#endif

enum ValueKind : int32_t { kReference = 1, kOwning = 2 };
enum ValueType : int32_t { kChar = 1, kLong = 2, kDouble = 3 };

// The typed value of the language; see the public MX_VALUE.
struct Value {
    int32_t kind;
    int32_t type;
    void *data;
    int32_t count;  // 0 scalar, n vector
    const char16_t *varName;
    int32_t varCount;
    int32_t index;
};

// One row of a function table; see the public MX_FUNCTION_ROW.
struct FunctionRow {
    const char16_t *name;
    uint32_t identifier;
    const char16_t *signature;   // absent: a named constant
    const char16_t *paramNames;  // for hosts only; never read by the interpreter
};

// The host's callback exactly as the public header declares it: it receives
// the public MX_VALUE records (the layout of Value) and is called through
// this type only, never through one naming Value, which would be undefined
// behaviour.
using HostCallback = HostLong(MX_CALLCONV *)(HostLong number, ::MX_VALUE **args, HostLong count,
                                             intptr_t callbackValue);
using AbortCallback = HostLong(MX_CALLCONV *)();

// Identifier bits: the function number and the German-spelling flag.
constexpr uint32_t kFunctionNumberMask = 0xFFFF;
constexpr uint32_t kSpellingFlag = 0x10000;

}  // namespace mx
