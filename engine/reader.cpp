#include "engine/reader.h"

#include "engine/errors.h"
#include "base/u16.h"
#include "platform/platform.h"

namespace mx {

namespace {
struct KeywordRow {
    const char16_t *english;
    const char16_t *german;
};
// Looked up in this order; the row index + 1 is the keyword number.
constexpr KeywordRow kKeywords[] = {
    {u"begin", u"anfang"}, {u"end", u"ende"},     {u"if", u"wenn"},
    {u"while", u"solange"}, {u"break", u"abbruch"}, {u"exit", u"stop"},
    {u"char", u"text"},    {u"int", u"zahl"},     {u"float", u"gleitkomma"},
    {u"static", u"statisch"},
};
static_assert(sizeof(kKeywords) / sizeof(kKeywords[0]) == kKwStatic);
}  // namespace

void rdUnread(RunContext &ctx, int32_t c) {
    if (c == kEndOfText || ctx.pos == 0) return;
    --ctx.pos;
    if (c == u'\n') --ctx.line;
}

int32_t rdPeek(RunContext &ctx, uint32_t flags) {
    int32_t c = rdChar(ctx, flags);
    rdUnread(ctx, c);
    return c;
}

bool rdIsIdentChar(char16_t c) {
    if (c < 0x80)  // the common case, without asking the platform
        return c == u'_' || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
    return mxp_IsAlphaNumeric(c);
}

int32_t rdWord(RunContext &ctx, char16_t *buf, int32_t capacity) {
    rdPeek(ctx, kSkipWhite);
    int32_t n = 0;
    int32_t c;
    while ((c = rdChar(ctx, 0)) != kEndOfText && rdIsIdentChar(char16_t(c)))
        if (n < capacity - 1) buf[n++] = char16_t(c);
    buf[n] = 0;
    if (n == 0 && c == kEndOfText) {
        errSet(ctx, kErrUnexpectedEnd, ctx.macroCommand);
        return -1;
    }
    rdUnread(ctx, c);
    return c;
}

int32_t rdQuoted(RunContext &ctx, char16_t *buf, int32_t capacity) {
    if (rdChar(ctx, kSkipWhite) != u'"') return -1;
    int32_t n = 0;
    for (;;) {
        int32_t c = rdChar(ctx, 0);
        if (c == kEndOfText || c == u'\n') return -1;
        if (c == u'"') break;
        if (n < capacity - 1) buf[n++] = char16_t(c);
    }
    if (capacity > 0) buf[n] = 0;
    return n;
}

int32_t rdKeyword(const char16_t *word) {
    // Every keyword starts with a lower-case letter; most words are names.
    if (!word || word[0] < u'a' || word[0] > u'z') return kKwNone;
    // Only spellings that share the first character are compared in full.
    for (int32_t i = 0; i < kKwStatic; ++i) {
        const KeywordRow &k = kKeywords[i];
        if ((k.english[0] == word[0] && u16Eq(word, k.english)) || (k.german[0] == word[0] && u16Eq(word, k.german)))
            return i + 1;
    }
    return kKwNone;
}

int32_t rdDimension(RunContext &ctx) {
    if (rdChar(ctx, kSkipBlanks) != u'[') {
        errSet(ctx, kErrCharExpected, u"[");
        return -1;
    }
    char16_t word[kWordCapacity];
    if (rdWord(ctx, word, kWordCapacity) < 0) return -1;
    int32_t len = u16Len(word);
    int32_t n = 0;
    bool digits = len >= 1 && len <= 9;
    for (int32_t i = 0; digits && i < len; ++i) {
        if (word[i] < u'0' || word[i] > u'9') digits = false;
        else n = n * 10 + (word[i] - u'0');
    }
    if (!digits) {
        errSet(ctx, kErrBadNumber, word);
        return -1;
    }
    if (rdChar(ctx, kSkipBlanks) != u']') {
        errSet(ctx, kErrCharExpected, u"]");
        return -1;
    }
    return n;
}

}  // namespace mx
