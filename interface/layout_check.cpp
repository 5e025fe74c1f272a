// The core's Value and function row must be the public MX_VALUE and
// MX_FUNCTION_ROW bit for bit: hosts read them through the public header.
#include <cstddef>
#include <type_traits>

#include "desktop/host_requests.h"
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

// The host requests of the button bar and the command line are read by the
// host through the public header.

MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, mode);
MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, height);
MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, width);
MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, command);
MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, state);
MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, kind);
MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, text);
MX_SAME_FIELD(mx::ButtonRequest, MX_BUTTON_REQUEST, reserved);
static_assert(sizeof(mx::ButtonRequest) == sizeof(MX_BUTTON_REQUEST));
MX_SAME_FIELD(mx::CommandLineRequest, MX_COMMANDLINE_REQUEST, number);
MX_SAME_FIELD(mx::CommandLineRequest, MX_COMMANDLINE_REQUEST, capacity);
MX_SAME_FIELD(mx::CommandLineRequest, MX_COMMANDLINE_REQUEST, buffer);
static_assert(sizeof(mx::CommandLineRequest) == sizeof(MX_COMMANDLINE_REQUEST));

#if defined(_WIN32) && !defined(_WIN64)
// 32-bit: eight 32-bit fields, and three.
static_assert(sizeof(MX_BUTTON_REQUEST) == 32 && offsetof(MX_BUTTON_REQUEST, command) == 12 &&
              offsetof(MX_BUTTON_REQUEST, kind) == 20 && offsetof(MX_BUTTON_REQUEST, text) == 24 &&
              offsetof(MX_BUTTON_REQUEST, reserved) == 28);
static_assert(sizeof(MX_COMMANDLINE_REQUEST) == 12 && offsetof(MX_COMMANDLINE_REQUEST, buffer) == 8);
#elif defined(_WIN64)
// 64-bit: six 32-bit fields, the text pointer at 24, reserved at 32.
static_assert(offsetof(MX_BUTTON_REQUEST, kind) == 20 && offsetof(MX_BUTTON_REQUEST, text) == 24 &&
              offsetof(MX_BUTTON_REQUEST, reserved) == 32 && sizeof(MX_BUTTON_REQUEST) == 40);
static_assert(offsetof(MX_COMMANDLINE_REQUEST, capacity) == 4 &&
              offsetof(MX_COMMANDLINE_REQUEST, buffer) == 8 && sizeof(MX_COMMANDLINE_REQUEST) == 16);
#endif

#ifndef _WIN32
// The callbacks are called through the host's own function types: calling a
// function through another type is undefined behaviour, whatever the layout.
// (On Windows LONG is long and the types differ in name only.)
static_assert(std::is_same_v<mx::HostCallback, MX_HOST_CALLBACK>);
static_assert(std::is_same_v<mx::AbortCallback, MX_ABORT_CALLBACK>);
#endif
