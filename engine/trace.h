// Tracing of function calls and assignments to the run's trace file or to
// message boxes, as the run's trace switches select.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

constexpr int32_t kTraceLineCapacity = 1000;  // at most 999 characters
constexpr int32_t kTraceValueCapacity = 400;  // at most 399 characters

// Formats a Value for a trace line into buf. Returns the length.
int32_t trFormatValue(const Value *v, char16_t *buf, int32_t capacity);

// "Zeile %d    Funktionsaufruf    NAME (ARGS)    Funktionswert: %ld"
int32_t trFormatCall(int32_t line, const char16_t *name, Value *const *args, int32_t count,
                     int32_t result, char16_t *buf, int32_t capacity);

// "Zeile %d    Zuweisung    TARGET=VALUE"
int32_t trFormatAssignment(int32_t line, const Value *target, char16_t *buf, int32_t capacity);

// Trace points: write or show the line when the switches ask for it.
void trFunctionCall(RunContext &ctx, const char16_t *name, Value *const *args, int32_t count,
                    int32_t result);
void trAssignment(RunContext &ctx, const Value *target);

// Closes the run's trace file, if one is open.
void trCloseFile(RunContext &ctx);

}  // namespace mx
