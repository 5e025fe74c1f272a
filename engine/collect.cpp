#include "engine/collect.h"

#include "engine/errors.h"
#include "engine/reader.h"
#include "base/u16.h"

namespace mx {

namespace {
// The character an escape sequence stands for; 0 keeps the escape character
// itself and drops the one after it.
char16_t unescape(int32_t c) {
    switch (c) {
        case u'"': return kEscapedQuote;
        case u'n': return u'\n';
        case u'r': return u'\r';
        case u't': return u'\t';
        default: return 0;
    }
}

// Collects the formula into buf (kFormulaCapacity units). Returns its length,
// or -1 with the error set.
int32_t collectInto(RunContext &ctx, const char16_t *start, char16_t *buf) {
    int32_t n = u16Copy(buf, kFormulaCapacity, start);
    bool inText = false;
    int32_t brackets = 0;
    for (;;) {
        int32_t c = rdChar(ctx, 0);
        if (c == kEndOfText) {
            errSet(ctx, kErrUnexpectedEnd, ctx.macroCommand);
            return -1;
        }
        if (c == u'\n' && inText) {
            errSet(ctx, kErrStringEnd);
            return -1;
        }
        if (c < 32) continue;
        if (c == u'"') {
            inText = !inText;
        } else if (inText) {
            if (c == ctx.escape) {
                char16_t meant = unescape(rdChar(ctx, kSkipControl));
                c = meant ? meant : ctx.escape;
            }
        } else if (c == u';' || (c == u')' && brackets == 0)) {
            rdUnread(ctx, c);
            break;
        } else if (c == u' ') {
            continue;
        } else if (c == u'(') {
            ++brackets;
        } else if (c == u')') {
            --brackets;
        }
        if (n >= kFormulaCapacity - 1) {
            errSet(ctx, kErrFormulaTooLong, ctx.macroCommand);
            return -1;
        }
        buf[n++] = char16_t(c);
    }
    buf[n] = 0;
    return n;
}

}  // namespace

int32_t fmCollect(RunContext &ctx, const char16_t *start, char16_t *buf) { return collectInto(ctx, start, buf); }

}  // namespace mx
