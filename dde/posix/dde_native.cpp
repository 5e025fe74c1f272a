// The DDE client, native: Linux has no DDE, so no server ever answers and no
// channel exists.
#include "dde/dde_class.h"
#include "dde/dde_functions.h"

namespace mx {

int32_t ddeRegisterClass(ModuleHandle) { return 0; }

void ddeUnregisterClass(ModuleHandle) {}

int32_t ddeInitiate(const char16_t *, const char16_t *, int32_t, int32_t) { return 0; }

int32_t ddeTerminate(int32_t) { return 0; }

int32_t ddeExecute(int32_t, const char16_t *, int32_t) { return -1; }

int32_t ddePoke(int32_t, const char16_t *, const char16_t *, int32_t) { return -1; }

int32_t ddeRequest(int32_t, const char16_t *, int32_t, char16_t *out, int32_t capacity, int32_t) {
    if (out && capacity > 0) out[0] = 0;
    return -1;
}

}  // namespace mx
