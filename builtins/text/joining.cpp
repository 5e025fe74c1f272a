#include "builtins/text/joining.h"

namespace mx {

int32_t txtStrCat(char16_t *s, int32_t cap, TextIn add) {
    int32_t end;
    return txtStrCatAt(s, cap, txtLen(s, cap), add, &end);
}

int32_t txtStrCatAt(char16_t *s, int32_t cap, int32_t len, TextIn add, int32_t *end) {
    *end = len;
    if (!s || cap < 1) return 0;
    int32_t room = cap - (len + 1);
    if (room < 1) return 0;
    int32_t n = txtLen(add);  // taken before s grows: add may be s itself
    if (n > room) n = room;
    txtMove(s + len, add.s, n);
    s[len + n] = 0;
    *end = len + n;
    return 1;
}

int32_t txtCopyText(TextIn src, char16_t *dst, int32_t cap) {
    txtCopy(dst, cap, src);
    return 1;
}

int32_t txtEncloseString(char16_t *s, int32_t cap, char16_t c) {
    if (!s || cap < 3) return 0;
    int32_t k = c ? 1 : 0;
    int32_t n = txtLen(s, cap);
    if (n > cap - 1 - k) n = cap - 1 - k;
    txtMove(s + k, s, n);
    if (k) s[0] = c;
    int32_t end = k + n;
    if (k && end < cap - 1) s[end++] = c;
    s[end] = 0;
    return 0;
}

}  // namespace mx
