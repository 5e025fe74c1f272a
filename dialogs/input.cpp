// The input dialog as TextDialog and IntDialog use it.
#include <climits>

#include "base/u16.h"
#include "dialogs/dialogs.h"

namespace mx {

int32_t dlgInputText(RunContext &ctx, const char16_t *title, const char16_t *prompt, char16_t *buffer,
                     int32_t capacity) {
    InputDialogRecord record{title, prompt, ctx.dialogX, ctx.dialogY, buffer, capacity,
                              ctx.dialogWidth, ctx.dialogHeight};
    return dlgRunInputDialog(ctx.hostWindow, record) != 0 ? 1 : 2;
}

int32_t dlgLeadingNumber(const char16_t *text) {
    if (!text) return 0;
    const char16_t *p = text;
    while (*p == u' ' || (*p >= u'\t' && *p <= u'\r')) ++p;
    bool negative = *p == u'-';
    if (*p == u'-' || *p == u'+') ++p;
    int64_t v = 0;
    for (; *p >= u'0' && *p <= u'9'; ++p)
        if (v <= int64_t(INT_MAX) + 1) v = v * 10 + (*p - u'0');
    if (negative) v = -v;
    if (v > INT_MAX) return INT_MAX;
    if (v < INT_MIN) return INT_MIN;
    return int32_t(v);
}

int32_t dlgIntDialog(RunContext &ctx, const char16_t *title, const char16_t *prompt, int32_t *value) {
    constexpr int32_t kCapacity = 100;
    char16_t buffer[kCapacity];
    u16FromLong(buffer, kCapacity, *value);
    int32_t result = dlgInputText(ctx, title, prompt, buffer, kCapacity);
    *value = dlgLeadingNumber(buffer);
    return result;
}

}  // namespace mx
