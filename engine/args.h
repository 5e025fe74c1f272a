// Reading bound arguments the way the signature descriptors hand them to an
// implementation: texts as their storage and capacity, scalars as plain
// values, by-reference scalars as pointers into the variable. In the native
// test build each read is checked against the handler's entry signature
// (engine/arg_reads.h).
#pragma once
#include <cstdint>

#include "engine/arg_reads.h"
#include "engine/types.h"
#include "engine/value.h"

namespace mx {

// Checks a read of v when the build checks reads; nothing otherwise.
inline void argRead(const Value *v, ArgRead what) {
    if constexpr (kCheckArgReads) argReadCheck(v, what);
}

// C[] and *C[]: the characters of the argument's own storage.
inline char16_t *argText(Value *v) {
    argRead(v, ArgRead::kText);
    return static_cast<char16_t *>(v->data);
}
// Their capacity in UTF-16 units, terminator included.
inline int32_t argCapacity(const Value *v) {
    argRead(v, ArgRead::kText);
    return v->count;
}
// L, C and D (already converted by the binding).
inline int32_t argLong(const Value *v) {
    argRead(v, ArgRead::kLong);
    return valToLong(v);
}
inline char16_t argChar(const Value *v) {
    argRead(v, ArgRead::kChar);
    return valToChar(v);
}
inline double argDouble(const Value *v) {
    argRead(v, ArgRead::kDouble);
    return valToDouble(v);
}
// *L and *D: the variable's storage.
inline int32_t *argLongRef(Value *v) {
    argRead(v, ArgRead::kLongRef);
    return static_cast<int32_t *>(v->data);
}
inline double *argDoubleRef(Value *v) {
    argRead(v, ArgRead::kDoubleRef);
    return static_cast<double *>(v->data);
}

}  // namespace mx
