#include "base/u16.h"
#include "helperlib/kelvane_strings.h"

namespace mx {

namespace {
constexpr uint32_t kFnvOffset = 2166136261u;
constexpr uint32_t kFnvPrime = 16777619u;

void fnvFeed(void *context, const unsigned char *bytes, int32_t count) {
    uint32_t &h = *static_cast<uint32_t *>(context);
    for (int32_t i = 0; i < count; ++i) h = (h ^ bytes[i]) * kFnvPrime;
}
}  // namespace

int32_t Kelvane_CreateHashW(const char16_t *text, int32_t upperBound) {
    if (upperBound < 1) return 0;
    uint32_t h = kFnvOffset;
    kstrUtf8Bytes(text, u16Len(text), fnvFeed, &h);
    return int32_t(h % uint32_t(upperBound));
}

}  // namespace mx
