#include "builtins/text/cutting.h"

namespace mx {

int32_t txtMidString(TextIn src, int32_t pos, int32_t chars, char16_t *dst, int32_t cap) {
    if (!dst || cap < 1) return 0;
    int64_t len = txtLen(src);
    int64_t p = pos < 1 ? 1 : pos;
    int64_t n = chars;
    if (n > len - p + 1) n = len - p + 1;
    if (n > cap - 1) n = cap - 1;
    if (n < 1) {
        dst[0] = 0;
        return 0;
    }
    txtMove(dst, src.s + (p - 1), int32_t(n));
    dst[n] = 0;
    return 0;
}

int32_t txtLeftString(TextIn src, int32_t chars, char16_t *dst, int32_t cap) {
    return txtMidString(src, 1, chars, dst, cap);
}

int32_t txtRightString(TextIn src, int32_t chars, char16_t *dst, int32_t cap) {
    if (!dst || cap < 1) return 0;
    int32_t len = txtLen(src);
    int32_t n = chars;
    if (n > len) n = len;
    if (n > cap - 1) n = cap - 1;
    if (n < 1) {
        dst[0] = 0;
        return 0;
    }
    txtMove(dst, src.s + (len - n), n);
    dst[n] = 0;
    return 0;
}

int32_t txtStripMid(char16_t *s, int32_t cap, int32_t pos, int32_t chars) {
    if (!s || cap < 1 || chars < 1) return 0;
    int64_t len = txtLen(s, cap);
    int64_t p = pos < 1 ? 1 : pos;
    if (p > len) return 0;
    int64_t last = p + chars - 1;  // last position removed
    if (last <= len) {
        // The rest after the stretch moves up; the terminator follows it.
        int64_t rest = len - last;
        txtMove(s + (p - 1), s + last, int32_t(rest));
        s[p - 1 + rest] = 0;
    } else {
        s[p - 1] = 0;
    }
    return 0;
}

int32_t txtStripLeft(char16_t *s, int32_t cap, int32_t chars) { return txtStripMid(s, cap, 1, chars); }

int32_t txtStripRight(char16_t *s, int32_t cap, int32_t chars) {
    if (!s || cap < 1 || chars < 0) return 0;
    int32_t len = txtLen(s, cap);
    int32_t end = len - (chars < len ? chars : len);
    if (end < cap) s[end] = 0;
    return 0;
}

int32_t txtStripControl(char16_t *s, int32_t cap) {
    if (!s || cap < 1) return 0;
    int32_t len = txtLen(s, cap);
    for (int32_t i = len < cap - 1 ? len : cap - 1; i >= 0 && s[i] < 32; --i) s[i] = 0;
    return 0;
}

int32_t txtStripNonDigits(char16_t *s, int32_t cap) {
    if (!s || cap < 1) return 0;
    int32_t len = txtLen(s, cap);
    int32_t kept = 0;
    for (int32_t i = 0; i < len; ++i)
        if (s[i] >= u'0' && s[i] <= u'9') s[kept++] = s[i];
    if (kept < cap) s[kept] = 0;
    return 0;
}

}  // namespace mx
