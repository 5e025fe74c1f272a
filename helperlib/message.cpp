#include "base/u16.h"
#include "helperlib/kelvane_message.h"
#include "platform/platform.h"

namespace mx {

namespace {
constexpr int32_t kTitleCapacity = 256;
constexpr int32_t kTextCapacity = 2048;

// Replaces each "%s" of pattern by the next argument, within capacity.
void fillIn(char16_t *out, int32_t capacity, const char16_t *pattern, const char16_t *const *args) {
    int32_t next = 0;
    out[0] = 0;
    int32_t len = 0;
    for (const char16_t *p = pattern; *p && len < capacity - 1; ++p) {
        if (p[0] == u'%' && p[1] == u's') {
            const char16_t *arg = next < 3 ? args[next] : nullptr;
            ++next;
            len = u16Append(out, capacity, arg);
            ++p;
            continue;
        }
        out[len++] = *p;
        out[len] = 0;
    }
}
}  // namespace

int32_t Kelvane_Message_BoxW(const KelvaneMessage *m) {
    if (!m) return 0;
    char16_t title[kTitleCapacity];
    char16_t pattern[kTextCapacity];
    char16_t text[kTextCapacity];
    mxp_LoadString(m->module, m->titleId, title, kTitleCapacity);
    TLX_TranslateStringW(m->tlxModule, 0, title, kTitleCapacity);
    mxp_LoadString(m->module, m->textId, pattern, kTextCapacity);
    TLX_TranslateStringW(m->tlxModule, 0, pattern, kTextCapacity);
    fillIn(text, kTextCapacity, pattern, m->args);
    uint32_t style = m->style == 1 ? (kBoxOk | kBoxIconError) : kBoxOk;
    return mxp_MessageBox(m->owner, text, title, style);
}

uint32_t Kelvane_Translate(uint32_t number, const KelvaneTranslatePair *table, int32_t,
                           uint32_t fallback, int32_t) {
    for (const KelvaneTranslatePair *p = table; p && p->stringNumber; ++p)
        if (p->stringNumber == number) return p->messageNumber;
    return fallback;
}

int32_t TLX_TranslateStringW(const char16_t *, int32_t, char16_t *text, int32_t capacity) {
    // No translation catalogues are installed: every text stays German.
    if (!text || capacity < 1) return 0;
    text[capacity - 1] = 0;
    return u16Len(text);
}

}  // namespace mx
