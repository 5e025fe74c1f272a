// Reading bound arguments the way the signature descriptors hand them to an
// implementation: texts as their storage and capacity, scalars as plain
// values, by-reference scalars as pointers into the variable. In the native
// test build each read is checked against the handler's entry signature
// (engine/arg_reads.h).
//
// Text arguments (C[] and *C[]) are the caller's character vectors. A vector
// whose every element is filled holds no terminator, so a handler never reads
// one as a zero-terminated string: it reads it with argTextLength, argString
// or ArgTextZ below, which all stop at the vector's capacity.
#pragma once
#include <cstdint>
#include <string>

#include "engine/arg_reads.h"
#include "engine/types.h"
#include "engine/value.h"

namespace mx {

// Checks a read of v when the build checks reads; nothing otherwise.
inline void argRead(const Value *v, ArgRead what) {
    if constexpr (kCheckArgReads) argReadCheck(v, what);
}

// C[] and *C[]: the characters of the argument's own storage (for writing
// into it within argCapacity; for reading use the bounded readers below).
inline char16_t *argText(Value *v) {
    argRead(v, ArgRead::kText);
    return static_cast<char16_t *>(v->data);
}
// Their capacity in UTF-16 units, terminator included.
inline int32_t argCapacity(const Value *v) {
    argRead(v, ArgRead::kText);
    return v->count;
}

// Length of a text argument in units: up to its first zero unit, never more
// than its capacity (0 for an absent or empty vector).
inline int32_t argTextLength(const Value *v) {
    argRead(v, ArgRead::kText);
    const char16_t *s = static_cast<const char16_t *>(v->data);
    int32_t n = 0;
    if (s)
        while (n < v->count && s[n]) ++n;
    return n;
}

// The text of a text argument as a terminated string of its own, at most
// argCapacity units long. May throw std::bad_alloc; the dispatcher turns that
// into the run's out-of-memory error.
inline std::u16string argString(const Value *v) {
    const char16_t *s = static_cast<const char16_t *>(v->data);
    int32_t n = argTextLength(v);
    return std::u16string(s ? s : u"", size_t(n));
}

// A terminated view of a text argument without copying when the vector is
// terminated within its capacity (the usual case); otherwise a bounded copy.
// Valid while the argument and this object live. May throw std::bad_alloc.
class ArgTextZ {
public:
    explicit ArgTextZ(const Value *v) {
        const char16_t *s = static_cast<const char16_t *>(v->data);
        int32_t n = length_ = argTextLength(v);
        if (s && n < v->count) {
            text_ = s;
        } else if (s) {
            copy_.assign(s, size_t(n));
            text_ = copy_.c_str();
        }
    }
    ArgTextZ(const ArgTextZ &) = delete;
    ArgTextZ &operator=(const ArgTextZ &) = delete;
    const char16_t *get() const { return text_; }
    // Its length in units (argTextLength).
    int32_t length() const { return length_; }

private:
    const char16_t *text_ = u"";
    int32_t length_ = 0;
    std::u16string copy_;
};

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
