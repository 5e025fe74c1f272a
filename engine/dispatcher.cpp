#include "engine/dispatcher.h"

#include <new>

#include "engine/errors.h"
#include "engine/function_numbers.h"

namespace mx {

namespace {

// Numbers run from 1 to the last XML function; the two list-dialog numbers
// stand apart.
constexpr int32_t kHighestNumber = fnum::XMLWriteFile;

// Plain arrays, zero before the first install whatever the order of static
// initialisation.
BuiltinHandler gByNumber[kHighestNumber + 1];
BuiltinHandler gListDialog;
BuiltinHandler gListDialogAnsi;

BuiltinHandler *slot(int32_t number) {
    if (number == fnum::ListDialog) return &gListDialog;
    if (number == fnum::ListDialogAnsi) return &gListDialogAnsi;
    if (number >= 1 && number <= kHighestNumber) return &gByNumber[number];
    return nullptr;
}

}  // namespace

void dispatchInstall(const DispatchFamily *const *families, int32_t count) {
    for (BuiltinHandler &h : gByNumber) h = nullptr;
    gListDialog = gListDialogAnsi = nullptr;
    for (int32_t f = 0; f < count; ++f)
        for (int32_t i = 0; i < families[f]->count; ++i) {
            const DispatchEntry &e = families[f]->entries[i];
            if (BuiltinHandler *s = slot(e.number)) *s = e.handler;
        }
}

int32_t dispatchCall(RunContext &ctx, int32_t number, Value **args, int32_t count) {
    BuiltinHandler *s = slot(number);
    if (!s || !*s) return 0;
    // An exception must never unwind into the host's frames.
    try {
        return (*s)(ctx, args, count);
    } catch (const std::bad_alloc &) {
        errSet(ctx, kErrNoMemory);
        return 0;
    }
}

bool dispatchImplemented(int32_t number) {
    BuiltinHandler *s = slot(number);
    return s && *s;
}

}  // namespace mx
