#include "engine/trace.h"

#include <charconv>

#include "base/text_out.h"
#include "base/u16.h"
#include "platform/files.h"
#include "platform/platform.h"

namespace mx {

namespace {
constexpr int32_t kShownTextLimit = 197;
constexpr int32_t kTargetCapacity = 40;  // at most 39 characters

// The "%lf" form of a double: six decimals, independent of the locale.
void fixed(TextOut &o, double v) {
    char tmp[400];
    auto r = std::to_chars(tmp, tmp + sizeof tmp, v, std::chars_format::fixed, 6);
    if (r.ec == std::errc()) o.ascii(tmp, r.ptr);
}

// The text of a vector of capacity units: it ends at its first zero or at
// its capacity, whichever comes first.
void shownText(TextOut &o, const char16_t *s, int32_t capacity) {
    char16_t shown[kShownTextLimit + 1];
    TextOut t(shown, kShownTextLimit + 1);
    for (int32_t i = 0; s && i < capacity && s[i]; ++i) {
        switch (s[i]) {
            case u'\t': t.put(u'\\'); t.put(u't'); break;
            case u'\n': t.put(u'\\'); t.put(u'n'); break;
            case u'\r': t.put(u'\\'); t.put(u'r'); break;
            default: t.put(s[i]);
        }
    }
    o.put(u'"');
    o.text(shown);
    o.put(u'"');
}

void emit(RunContext &ctx, const char16_t *line, bool toFile, bool toBox) {
    if (toFile && ctx.traceFile) {
        mxp_FilePutText(ctx.traceFile, line);
        mxp_FilePutText(ctx.traceFile, u"\n");
    }
    if (toBox) mxp_MessageBox(mxp_ActiveWindow(), line, u"Morvix Macro Trace", kBoxOk | kBoxTaskModal);
}
}  // namespace

int32_t trFormatValue(const Value *v, char16_t *buf, int32_t capacity) {
    TextOut o(buf, capacity);
    if (!v || !v->data) return 0;
    switch (v->type) {
        case kChar:
            if (v->count) shownText(o, static_cast<const char16_t *>(v->data), v->count);
            else o.put(*static_cast<const char16_t *>(v->data));
            break;
        case kLong:
            if (v->count) o.text(u"Long ["), o.decimal(v->count), o.put(u']');
            else o.decimal(*static_cast<const int32_t *>(v->data));
            break;
        case kDouble:
            if (v->count) o.text(u"Double ["), o.decimal(v->count), o.put(u']');
            else fixed(o, *static_cast<const double *>(v->data));
            break;
        default: break;
    }
    return o.len;
}

int32_t trFormatCall(int32_t line, const char16_t *name, Value *const *args, int32_t count,
                     int32_t result, char16_t *buf, int32_t capacity) {
    TextOut o(buf, capacity);
    o.text(u"Zeile ");
    o.decimal(line);
    o.text(u"    Funktionsaufruf    ");
    o.text(name);
    o.text(u" (");
    char16_t value[kTraceValueCapacity];
    for (int32_t i = 0; i < count; ++i) {
        if (i) o.text(u", ");
        trFormatValue(args[i], value, kTraceValueCapacity);
        o.text(value);
    }
    o.text(u")    Funktionswert: ");
    o.decimal(result);
    return o.len;
}

int32_t trFormatAssignment(int32_t line, const Value *target, char16_t *buf, int32_t capacity) {
    TextOut o(buf, capacity);
    o.text(u"Zeile ");
    o.decimal(line);
    o.text(u"    Zuweisung    ");
    char16_t name[kTargetCapacity];
    TextOut t(name, kTargetCapacity);
    if (!target->varName) {
        t.text(u"???");
    } else {
        t.text(target->varName);
        if (target->varCount != 0 && target->count == 0) {
            t.put(u'[');
            t.decimal(target->index);
            t.put(u']');
        }
    }
    o.text(name);
    o.put(u'=');
    char16_t value[kTraceValueCapacity];
    trFormatValue(target, value, kTraceValueCapacity);
    o.text(value);
    return o.len;
}

void trFunctionCall(RunContext &ctx, const char16_t *name, Value *const *args, int32_t count,
                    int32_t result) {
    bool toFile = (ctx.traceSwitches & kTraceCallsToFile) && ctx.traceFile;
    bool toBox = ctx.traceSwitches & kTraceCallsToBox;
    if (!toFile && !toBox) return;
    char16_t line[kTraceLineCapacity];
    trFormatCall(ctx.line, name, args, count, result, line, kTraceLineCapacity);
    emit(ctx, line, toFile, toBox);
}

void trAssignment(RunContext &ctx, const Value *target) {
    bool toFile = (ctx.traceSwitches & kTraceAssignToFile) && ctx.traceFile;
    bool toBox = ctx.traceSwitches & kTraceAssignToBox;
    if (!toFile && !toBox) return;
    char16_t line[kTraceLineCapacity];
    trFormatAssignment(ctx.line, target, line, kTraceLineCapacity);
    emit(ctx, line, toFile, toBox);
}

void trCloseFile(RunContext &ctx) {
    mxp_FileClose(ctx.traceFile);
    ctx.traceFile = nullptr;
}

}  // namespace mx
