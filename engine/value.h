// Values: creation, release and the conversions between element types.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/run_context.h"

namespace mx {

// Bytes per element of a type (0 for an unknown type).
int32_t valElementSize(int32_t type);

// A new Value of type and kind with element count; an owning Value gets
// zero-filled storage for max(count, 1) elements. Absent with error 116 when
// memory is missing.
Value *valCreate(RunContext &ctx, int32_t type, int32_t kind, int32_t count);

// Owning scalars holding v.
Value *valNewLong(RunContext &ctx, int32_t v);
Value *valNewDouble(RunContext &ctx, double v);
Value *valNewChar(RunContext &ctx, char16_t v);

// Frees an owning Value's storage and the record; a reference frees only the
// record. Absent is harmless.
void valRelease(Value *v);

// Releases args[count-1] down to args[0] and clears the slots.
void valReleaseArray(Value **args, int32_t count);

// Conversions of the first element. To long: a character's code, a double
// truncated toward zero (outside the 32-bit range: -2147483648).
int32_t valToLong(const Value *v);
char16_t valToChar(const Value *v);
double valToDouble(const Value *v);

// The double to long rule on its own.
int32_t doubleToLong(double d);

// The text of a character vector (its storage); nullptr for anything else.
inline const char16_t *valText(const Value *v) {
    return v && v->type == kChar && v->count > 0 ? static_cast<const char16_t *>(v->data) : nullptr;
}

}  // namespace mx
