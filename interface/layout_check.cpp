// The core's Value and function row must be the public MX_VALUE and
// MX_FUNCTION_ROW bit for bit: hosts read them through the public header.
#include <cstddef>
#include <type_traits>

#include "engine/types.h"
#include "morvix.h"

#define MX_SAME_FIELD(core, pub, field) \
    static_assert(offsetof(core, field) == offsetof(pub, field), #field " differs")

MX_SAME_FIELD(mx::Value, MX_VALUE, kind);
MX_SAME_FIELD(mx::Value, MX_VALUE, type);
MX_SAME_FIELD(mx::Value, MX_VALUE, data);
MX_SAME_FIELD(mx::Value, MX_VALUE, count);
MX_SAME_FIELD(mx::Value, MX_VALUE, varName);
MX_SAME_FIELD(mx::Value, MX_VALUE, varCount);
MX_SAME_FIELD(mx::Value, MX_VALUE, index);
static_assert(sizeof(mx::Value) == sizeof(MX_VALUE));
MX_SAME_FIELD(mx::FunctionRow, MX_FUNCTION_ROW, name);
MX_SAME_FIELD(mx::FunctionRow, MX_FUNCTION_ROW, identifier);
MX_SAME_FIELD(mx::FunctionRow, MX_FUNCTION_ROW, signature);
MX_SAME_FIELD(mx::FunctionRow, MX_FUNCTION_ROW, paramNames);
static_assert(sizeof(mx::FunctionRow) == sizeof(MX_FUNCTION_ROW));
static_assert(sizeof(WCHAR) == sizeof(char16_t));

#if defined(_WIN32) && !defined(_WIN64)
// 32-bit Windows: the Value is seven 32-bit fields and a row four.
static_assert(sizeof(MX_VALUE) == 28);
static_assert(offsetof(MX_VALUE, kind) == 0 && offsetof(MX_VALUE, type) == 4 &&
              offsetof(MX_VALUE, data) == 8 && offsetof(MX_VALUE, count) == 12 &&
              offsetof(MX_VALUE, varName) == 16 && offsetof(MX_VALUE, varCount) == 20 &&
              offsetof(MX_VALUE, index) == 24);
static_assert(sizeof(MX_FUNCTION_ROW) == 16);
static_assert(offsetof(MX_FUNCTION_ROW, name) == 0 && offsetof(MX_FUNCTION_ROW, identifier) == 4 &&
              offsetof(MX_FUNCTION_ROW, signature) == 8 &&
              offsetof(MX_FUNCTION_ROW, paramNames) == 12);
static_assert(sizeof(LONG_PTR) == 4 && sizeof(LONG) == 4);
#endif

#ifndef _WIN32
// The callbacks are called through the host's own function types: calling a
// function through another type is undefined behaviour, whatever the layout.
// (On Windows LONG is long and the types differ in name only.)
static_assert(std::is_same_v<mx::HostCallback, MX_HOST_CALLBACK>);
static_assert(std::is_same_v<mx::AbortCallback, MX_ABORT_CALLBACK>);
#endif
