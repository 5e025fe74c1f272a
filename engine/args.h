// Reading bound arguments the way the signature descriptors hand them to an
// implementation: texts as their storage and capacity, scalars as plain
// values, by-reference scalars as pointers into the variable.
#pragma once
#include <cstdint>

#include "engine/types.h"
#include "engine/value.h"

namespace mx {

// C[] and *C[]: the characters of the argument's own storage.
inline char16_t *argText(Value *v) { return static_cast<char16_t *>(v->data); }
// Their capacity in UTF-16 units, terminator included.
inline int32_t argCapacity(const Value *v) { return v->count; }
// L, C and D (already converted by the binding).
inline int32_t argLong(const Value *v) { return valToLong(v); }
inline char16_t argChar(const Value *v) { return valToChar(v); }
inline double argDouble(const Value *v) { return valToDouble(v); }
// *L and *D: the variable's storage.
inline int32_t *argLongRef(Value *v) { return static_cast<int32_t *>(v->data); }
inline double *argDoubleRef(Value *v) { return static_cast<double *>(v->data); }

}  // namespace mx
