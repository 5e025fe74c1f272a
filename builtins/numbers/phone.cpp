#include "builtins/numbers/phone.h"

#include "builtins/text/joining.h"

namespace mx {

namespace {
constexpr int32_t kNumberCapacity = 100;  // 99 units and the terminator
}

int32_t numPhoneToInternational(TextIn number, char16_t *dst, int32_t cap, TextIn prefix) {
    if (!dst || cap < 1) return 0;
    char16_t copy[kNumberCapacity];  // taken first: dst may be number itself
    txtCopy(copy, kNumberCapacity, number);
    int32_t start = 0, end = txtLen(copy, kNumberCapacity);
    while (start < end && copy[start] == u' ') ++start;
    while (end > start && copy[end - 1] == u' ') --end;
    copy[end] = 0;
    const char16_t *rest = copy + start;
    bool asItIs = end == start || rest[0] == u'+' || (rest[0] == u'0' && rest[1] == u'0');
    if (asItIs) {
        txtCopy(dst, cap, TextIn(rest, end - start + 1));
        return 0;
    }
    if (rest[0] == u'0') ++rest;
    txtCopy(dst, cap, prefix);
    txtStrCat(dst, cap, TextIn(rest, int32_t(copy + end - rest) + 1));
    return 0;
}

}  // namespace mx
