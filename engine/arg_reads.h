// Checking that every handler reads its arguments the way its dispatch entry
// says (the signature of the function's English table row). Builds with
// MX_CHECK_ARG_READS (the native test build) check each read of
// engine/args.h against the descriptor at the argument's position and record
// the reads that do not fit; the other builds compile the checks away.
#pragma once
#include <cstdint>
#include <string>

#include "engine/types.h"

namespace mx {

#ifdef MX_CHECK_ARG_READS
constexpr bool kCheckArgReads = true;
#else
constexpr bool kCheckArgReads = false;
#endif

// What an accessor of engine/args.h hands over, by the descriptors it fits:
// kText C[] or *C[], kLong L, kChar C, kDouble D, kLongRef *L, kDoubleRef *D.
enum class ArgRead { kText, kLong, kChar, kDouble, kLongRef, kDoubleRef };

// While it lives, reads of args[0..count) are checked against reads, the
// signature of function number's entry. Scopes nest (a nested run calls
// handlers inside a handler); the outer one counts again afterwards.
class ArgReadScope {
public:
    ArgReadScope(int32_t number, const char16_t *reads, Value *const *args, int32_t count);
    ~ArgReadScope();
    ArgReadScope(const ArgReadScope &) = delete;
    ArgReadScope &operator=(const ArgReadScope &) = delete;

    int32_t number;
    const char16_t *reads;
    Value *const *args;
    int32_t count;

private:
    ArgReadScope *outer_;
};

// Checks one read of v inside the innermost scope (outside any scope there
// is nothing to check against). Records a fault when v is no argument of the
// call or the descriptor at its position does not fit what.
void argReadCheck(const Value *v, ArgRead what);

// The faults recorded on this thread since the last call, one line each
// ("function 104 reads argument 2 as L, its entry says *C[]"); clears them.
std::string argReadFaults();

}  // namespace mx
