#include "engine/dispatcher.h"

#include <new>

#include "engine/arg_reads.h"
#include "engine/errors.h"
#include "engine/function_numbers.h"

namespace mx {

namespace {

// Numbers run from 1 to the last XML function; the two list-dialog numbers
// stand apart.
constexpr int32_t kHighestNumber = fnum::XMLWriteFile;

// Plain arrays, zero before the first install whatever the order of static
// initialisation.
const DispatchEntry *gByNumber[kHighestNumber + 1];
const DispatchEntry *gListDialog;
const DispatchEntry *gListDialogAnsi;

const DispatchEntry **slot(int32_t number) {
    if (number == fnum::ListDialog) return &gListDialog;
    if (number == fnum::ListDialogAnsi) return &gListDialogAnsi;
    if (number >= 1 && number <= kHighestNumber) return &gByNumber[number];
    return nullptr;
}

}  // namespace

void dispatchInstall(const DispatchFamily *const *families, int32_t count) {
    for (const DispatchEntry *&e : gByNumber) e = nullptr;
    gListDialog = gListDialogAnsi = nullptr;
    for (int32_t f = 0; f < count; ++f)
        for (int32_t i = 0; i < families[f]->count; ++i) {
            const DispatchEntry &e = families[f]->entries[i];
            if (const DispatchEntry **s = slot(e.number)) *s = &e;
        }
}

int32_t dispatchCall(RunContext &ctx, int32_t number, Value **args, int32_t count) {
    const DispatchEntry *e = dispatchEntry(number);
    if (!e) return 0;
    // An exception must never unwind into the host's frames.
    try {
        if constexpr (kCheckArgReads) {
            ArgReadScope scope(number, e->reads, args, count);
            return e->handler(ctx, args, count);
        }
        return e->handler(ctx, args, count);
    } catch (const std::bad_alloc &) {
        errSet(ctx, kErrNoMemory);
        return 0;
    }
}

const DispatchEntry *dispatchEntry(int32_t number) {
    const DispatchEntry **s = slot(number);
    return s ? *s : nullptr;
}

bool dispatchImplemented(int32_t number) { return dispatchEntry(number) != nullptr; }

}  // namespace mx
