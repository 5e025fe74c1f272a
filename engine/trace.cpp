#include "engine/trace.h"

#include <charconv>

#include "engine/u16.h"
#include "platform/files.h"
#include "platform/platform.h"

namespace mx {

namespace {
constexpr int32_t kShownTextLimit = 197;
constexpr int32_t kTargetCapacity = 40;  // at most 39 characters

// Bounded writer into a UTF-16 buffer; everything past the capacity is cut.
struct Out {
    char16_t *buf;
    int32_t capacity;
    int32_t len = 0;
    void put(char16_t c) {
        if (len < capacity - 1) buf[len++] = c;
        buf[len] = 0;
    }
    void text(const char16_t *s) {
        for (; s && *s; ++s) put(*s);
    }
    void ascii(const char *s, const char *end) {
        for (; s < end; ++s) put(char16_t(static_cast<unsigned char>(*s)));
    }
    void number(int64_t v) {
        char tmp[24];
        auto r = std::to_chars(tmp, tmp + sizeof tmp, v);
        ascii(tmp, r.ptr);
    }
    void fixed(double v) {  // "%lf": six decimals, independent of the locale
        char tmp[400];
        auto r = std::to_chars(tmp, tmp + sizeof tmp, v, std::chars_format::fixed, 6);
        if (r.ec == std::errc()) ascii(tmp, r.ptr);
    }
};

void shownText(Out &o, const char16_t *s) {
    char16_t shown[kShownTextLimit + 1];
    Out t{shown, kShownTextLimit + 1};
    shown[0] = 0;
    for (; s && *s; ++s) {
        switch (*s) {
            case u'\t': t.put(u'\\'); t.put(u't'); break;
            case u'\n': t.put(u'\\'); t.put(u'n'); break;
            case u'\r': t.put(u'\\'); t.put(u'r'); break;
            default: t.put(*s);
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
    Out o{buf, capacity};
    if (capacity > 0) buf[0] = 0;
    if (!v || !v->data) return 0;
    switch (v->type) {
        case kChar:
            if (v->count) shownText(o, static_cast<const char16_t *>(v->data));
            else o.put(*static_cast<const char16_t *>(v->data));
            break;
        case kLong:
            if (v->count) o.text(u"Long ["), o.number(v->count), o.put(u']');
            else o.number(*static_cast<const int32_t *>(v->data));
            break;
        case kDouble:
            if (v->count) o.text(u"Double ["), o.number(v->count), o.put(u']');
            else o.fixed(*static_cast<const double *>(v->data));
            break;
        default: break;
    }
    return o.len;
}

int32_t trFormatCall(int32_t line, const char16_t *name, Value *const *args, int32_t count,
                     int32_t result, char16_t *buf, int32_t capacity) {
    Out o{buf, capacity};
    o.text(u"Zeile ");
    o.number(line);
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
    o.number(result);
    return o.len;
}

int32_t trFormatAssignment(int32_t line, const Value *target, char16_t *buf, int32_t capacity) {
    Out o{buf, capacity};
    o.text(u"Zeile ");
    o.number(line);
    o.text(u"    Zuweisung    ");
    char16_t name[kTargetCapacity];
    Out t{name, kTargetCapacity};
    name[0] = 0;
    if (!target->varName) {
        t.text(u"???");
    } else {
        t.text(target->varName);
        if (target->varCount != 0 && target->count == 0) {
            t.put(u'[');
            t.number(target->index);
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
