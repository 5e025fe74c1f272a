#include "builtins/text/padding.h"

#include "builtins/text/text_in.h"

namespace mx {

namespace {
void reverse(char16_t *s, int32_t n) {
    for (int32_t i = 0, j = n - 1; i < j; ++i, --j) {
        char16_t t = s[i];
        s[i] = s[j];
        s[j] = t;
    }
}
}  // namespace

int32_t txtFillStringRight(char16_t *s, int32_t cap, int32_t lng, char16_t fill) {
    if (!s || cap < 1) return 0;
    s[cap - 1] = 0;
    int32_t target = lng < 0 ? 0 : lng;
    if (target > cap - 1) target = cap - 1;
    for (int32_t i = txtLen(s, cap); i < target; ++i) s[i] = fill;
    s[target] = 0;
    return 0;
}

int32_t txtFillStringLeft(char16_t *s, int32_t cap, int32_t lng, char16_t fill) {
    if (!s || cap < 1) return 0;
    s[cap - 1] = 0;
    reverse(s, txtLen(s, cap));
    txtFillStringRight(s, cap, lng, fill);
    reverse(s, txtLen(s, cap));
    return 0;
}

int32_t txtTrimRight(char16_t *s, int32_t cap, char16_t c) {
    if (!s || cap < 1) return 0;
    s[cap - 1] = 0;
    for (int32_t i = txtLen(s, cap) - 1; i >= 0 && s[i] == c; --i) s[i] = 0;
    return 0;
}

int32_t txtTrimLeft(char16_t *s, int32_t cap, char16_t c) {
    if (!s || cap < 1 || c == 0) return 0;
    int32_t len = txtLen(s, cap);
    int32_t skip = 0;
    while (skip < len && s[skip] == c) ++skip;
    int32_t n = len - skip;
    if (n > cap - 1) n = cap - 1;
    txtMove(s, s + skip, n);
    s[n] = 0;
    return 0;
}

}  // namespace mx
