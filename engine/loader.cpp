#include "engine/loader.h"

#include <cstdlib>

#include "engine/command_words.h"
#include "engine/errors.h"
#include "base/u16.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "base/heap.h"

namespace mx {

namespace {

constexpr int32_t kPathCapacity = 512;  // at most 511 characters of the path
constexpr char16_t kMemPrefix[] = u"Macro \"Mem\" begin ";
constexpr char16_t kMemSuffix[] = u"end\n";

// The normalising state machine: states normal, quote (with its quote
// character), comment, and "slash seen" waiting for the character after a '/'.
struct Normaliser {
    enum State { kNormal, kQuote, kComment, kSlash } state = kNormal;
    char16_t quote = 0;
    bool oem = false;  // memory macros: DOS letters outside quotes and comments
    char16_t *out;
    int32_t &len;

    void store(char16_t c) { out[len++] = c; }
    char16_t plain(char16_t c) const { return oem ? ldOemToAnsi(c) : c; }

    void feed(char16_t c) {
        switch (state) {
            case kSlash:
                state = kNormal;
                if (c == u'/') {
                    state = kComment;
                    return;
                }
                store(u'/');
                store(plain(c));
                return;
            case kNormal:
                if (c == u'"' || c == u'\'') {
                    store(c);
                    state = kQuote;
                    quote = c;
                } else if (c == u'/') {
                    state = kSlash;
                } else {
                    store(plain(c));
                }
                return;
            case kQuote:
                if (c == quote) {
                    store(c);
                    state = kNormal;
                } else if (c == u'\n') {
                    store(quote);
                    store(c);
                    state = kNormal;
                } else {
                    store(c);
                }
                return;
            case kComment:
                if (c == u'\n') {
                    store(c);
                    state = kNormal;
                }
                return;
        }
    }

    // The end of the input: a pending '/' is dropped, an open quote closed.
    void finish() {
        if (state == kQuote) store(quote);
        store(u'\n');
    }
};

bool allocate(RunContext &ctx, int32_t capacity) {
    ctx.text = static_cast<char16_t *>(heapCalloc(size_t(capacity), sizeof(char16_t)));
    if (!ctx.text) {
        errSet(ctx, kErrNoMemory);
        return false;
    }
    ctx.capacity = capacity;
    ctx.length = 0;
    ctx.pos = 0;
    return true;
}

int32_t loadFile(RunContext &ctx) {
    char16_t path[kPathCapacity];
    commandWord(ctx.macroCommand, 0, path, kPathCapacity);
    OpenError why = OpenError::kNone;
    MxpFile *f = mxp_FileOpen(path, u"rt", Share::kDenyWrite, &why);
    if (!f) {
        errSet(ctx, errOpenFailure(why), path);
        return -1;
    }
    int64_t size = mxp_FileLength(f);
    if (size == 0) {
        mxp_FileClose(f);
        errSet(ctx, kErrUnexpectedEnd, path);
        return -1;
    }
    if (size < 0 || size > INT32_MAX - 20 || !allocate(ctx, int32_t(size) + 20)) {
        mxp_FileClose(f);
        if (!ctx.text) errSet(ctx, kErrNoMemory);
        return -1;
    }
    Normaliser n{.out = ctx.text, .len = ctx.length};
    // The limit is checked before each byte, so a text that reaches it with
    // its last byte still loads (the end needs at most two more units).
    for (int32_t c; (c = mxp_FileGetChar(f)) >= 0;) {
        if (ctx.length >= ctx.capacity - 10) {
            mxp_FileClose(f);
            ldRelease(ctx);
            errSet(ctx, kErrTooLarge, path);
            return -1;
        }
        n.feed(char16_t(c));
    }
    n.finish();
    mxp_FileClose(f);
    return 0;
}

int32_t loadMemory(RunContext &ctx) {
    int32_t textLen = u16Len(ctx.macroText);
    int32_t fixed = u16Len(kMemPrefix) + u16Len(kMemSuffix) + 20;
    if (textLen > INT32_MAX - fixed || !allocate(ctx, textLen + fixed)) {
        if (!ctx.text) errSet(ctx, kErrNoMemory);
        return -1;
    }
    ctx.length = u16Copy(ctx.text, ctx.capacity, kMemPrefix);
    Normaliser n{.oem = true, .out = ctx.text, .len = ctx.length};
    for (int32_t i = 0; i < textLen; ++i) {
        if (ctx.length >= ctx.capacity - 20) {
            ldRelease(ctx);
            errSet(ctx, kErrTooLarge);
            return -1;
        }
        n.feed(ctx.macroText[i]);
    }
    n.finish();
    ctx.length += u16Copy(ctx.text + ctx.length, ctx.capacity - ctx.length, kMemSuffix);
    return 0;
}

}  // namespace

char16_t ldOemToAnsi(char16_t c) {
    switch (c) {
        case 0x81: return 0xFC;  // ü
        case 0x84: return 0xE4;  // ä
        case 0x8E: return 0xC4;  // Ä
        case 0x94: return 0xF6;  // ö
        case 0x99: return 0xD6;  // Ö
        case 0x9A: return 0xDC;  // Ü
        case 0xE1: return 0xDF;  // ß
        default: return c;
    }
}

int32_t ldLoad(RunContext &ctx) {
    if (ctx.macroCommand) return loadFile(ctx);
    if (ctx.macroText) return loadMemory(ctx);
    return 0;
}

void ldRelease(RunContext &ctx) {
    std::free(ctx.text);
    ctx.text = nullptr;
    ctx.capacity = 0;
    ctx.pos = 0;
    ctx.length = 0;
}

}  // namespace mx
