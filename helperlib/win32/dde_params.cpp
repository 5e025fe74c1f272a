// Helper library, Win32: DDE message parameters through the platform's own
// packing, so that whatever marshals a posted DDE message to another
// process finds the parameter in the form it expects.
#include <windows.h>
#include <dde.h>

#include "helperlib/kelvane_dde.h"

namespace mx {

intptr_t PackLparamForDDE(uint32_t message, uintptr_t low, uintptr_t high) {
    return PackDDElParam(message, low, high);
}

int32_t UnpackLparamForDDE(uint32_t message, intptr_t lparam, uintptr_t *low, uintptr_t *high) {
    UINT_PTR lo = 0, hi = 0;
    BOOL ok = UnpackDDElParam(message, lparam, &lo, &hi);
    if (!ok) lo = hi = 0;
    if (low) *low = lo;
    if (high) *high = hi;
    return ok ? 1 : 0;
}

int32_t FreeLparamForDDE(uint32_t message, intptr_t lparam) { return FreeDDElParam(message, lparam) ? 1 : 0; }

}  // namespace mx
