#include "builtins/text/format.h"

#include <charconv>
#include <cstdlib>

#include "builtins/numbers/conversions.h"
#include "base/heap.h"

namespace mx {

namespace {

constexpr int32_t kMaxFloatPrecision = 100;
constexpr int32_t kMaxFormatArgs = 5;
constexpr int32_t kSaturated = 1000000000;  // widths and precisions stop growing here

// The output: writes stop at cap - 1 units and note that something was lost.
struct Sink {
    char16_t *buf;
    int32_t cap;
    int32_t len = 0;
    bool full = false;

    void put(char16_t c) {
        if (len < cap - 1) buf[len++] = c;
        else full = true;
    }
    void repeat(char16_t c, int64_t n) {
        for (; n > 0 && !full; --n) put(c);
    }
    void units(const char16_t *s, int64_t n) {
        for (int64_t i = 0; i < n && !full; ++i) put(s[i]);
    }
    void ascii(const char *s, int64_t n) {
        for (int64_t i = 0; i < n && !full; ++i) put(char16_t(static_cast<unsigned char>(s[i])));
    }
};

struct FieldFormat {
    bool left = false, plus = false, space = false, alt = false, zero = false;
    int32_t width = 0;
    int32_t precision = -1;  // -1: none given
    int32_t bits = 32;       // integer size chosen by the length modifier
    char16_t conv = 0;
};

struct Args {
    const FormatArg *list;
    int32_t count;
    int32_t next = 0;
    const FormatArg *take() { return next < count ? &list[next++] : nullptr; }
};

int32_t argLong(const FormatArg &a) { return a.text.s ? numStringToInt(a.text) : a.value; }

// A field: blanks or zeros up to the width around prefix, zeros and body.
void emitField(Sink &out, const FieldFormat &sp, const char *prefix, int32_t zeros, const char16_t *body,
               int32_t bodyLen, bool zeroPad) {
    int32_t prefixLen = 0;
    while (prefix[prefixLen]) ++prefixLen;
    int64_t pad = int64_t(sp.width) - prefixLen - zeros - bodyLen;
    if (!sp.left && !zeroPad) out.repeat(u' ', pad);
    out.ascii(prefix, prefixLen);
    if (!sp.left && zeroPad) out.repeat(u'0', pad);
    out.repeat(u'0', zeros);
    out.units(body, bodyLen);
    if (sp.left) out.repeat(u' ', pad);
}

void emitAsciiField(Sink &out, const FieldFormat &sp, const char *prefix, int32_t zeros, const char *body,
                    int32_t bodyLen, bool zeroPad) {
    char16_t wide[512];
    for (int32_t i = 0; i < bodyLen; ++i) wide[i] = char16_t(static_cast<unsigned char>(body[i]));
    emitField(out, sp, prefix, zeros, wide, bodyLen, zeroPad);
}

void emitInteger(Sink &out, const FieldFormat &sp, int32_t raw) {
    bool isSigned = sp.conv == u'd' || sp.conv == u'i';
    int64_t sv = sp.bits == 8 ? int8_t(raw) : sp.bits == 16 ? int16_t(raw) : int64_t(raw);
    uint64_t uv = sp.bits == 8    ? uint8_t(raw)
                  : sp.bits == 16 ? uint16_t(raw)
                  : sp.bits == 32 ? uint32_t(raw)
                                  : uint64_t(int64_t(raw));
    bool negative = isSigned && sv < 0;
    if (isSigned) uv = negative ? uint64_t(0) - uint64_t(sv) : uint64_t(sv);
    int base = sp.conv == u'o' ? 8 : (sp.conv == u'x' || sp.conv == u'X') ? 16 : 10;
    char digits[32];
    int32_t n = 0;
    if (!(uv == 0 && sp.precision == 0)) {
        char rev[32];
        const char *set = sp.conv == u'X' ? "0123456789ABCDEF" : "0123456789abcdef";
        do {
            rev[n++] = set[uv % uint64_t(base)];
            uv /= uint64_t(base);
        } while (uv);
        for (int32_t i = 0; i < n; ++i) digits[i] = rev[n - 1 - i];
    }
    int32_t zeros = sp.precision > n ? sp.precision - n : 0;
    if (sp.alt && base == 8 && zeros == 0 && (n == 0 || digits[0] != '0')) zeros = 1;
    const char *prefix = negative ? "-" : (isSigned && sp.plus) ? "+" : (isSigned && sp.space) ? " " : "";
    bool hasValue = n > 0 && !(n == 1 && digits[0] == '0');
    if (sp.alt && base == 16 && hasValue) prefix = sp.conv == u'X' ? "0X" : "0x";
    emitAsciiField(out, sp, prefix, zeros, digits, n, sp.zero && !sp.left && sp.precision < 0);
}

void emitFloat(Sink &out, const FieldFormat &sp, double v) {
    char16_t c = sp.conv;
    bool upper = c == u'E' || c == u'F' || c == u'G' || c == u'A';
    int32_t p = sp.precision < 0 ? 6 : sp.precision;
    if (p > kMaxFloatPrecision) p = kMaxFloatPrecision;
    char body[400];
    double mag = v < 0 ? -v : v;
    std::to_chars_result r;
    if (c == u'f' || c == u'F') r = std::to_chars(body, body + sizeof body, mag, std::chars_format::fixed, p);
    else if (c == u'e' || c == u'E') r = std::to_chars(body, body + sizeof body, mag, std::chars_format::scientific, p);
    else if (c == u'g' || c == u'G') r = std::to_chars(body, body + sizeof body, mag, std::chars_format::general, p ? p : 1);
    else if (sp.precision < 0) r = std::to_chars(body, body + sizeof body, mag, std::chars_format::hex);
    else r = std::to_chars(body, body + sizeof body, mag, std::chars_format::hex, p);
    int32_t n = r.ec == std::errc() ? int32_t(r.ptr - body) : 0;
    if (upper)
        for (int32_t i = 0; i < n; ++i)
            if (body[i] >= 'a' && body[i] <= 'z') body[i] = char(body[i] - 32);
    bool hex = c == u'a' || c == u'A';
    const char *prefix = v < 0 ? (hex ? (upper ? "-0X" : "-0x") : "-")
                         : sp.plus ? (hex ? (upper ? "+0X" : "+0x") : "+")
                         : sp.space ? (hex ? (upper ? " 0X" : " 0x") : " ")
                                    : (hex ? (upper ? "0X" : "0x") : "");
    emitAsciiField(out, sp, prefix, 0, body, n, sp.zero && !sp.left);
}

void emitText(Sink &out, const FieldFormat &sp, const FormatArg &a) {
    char16_t number[12];
    TextIn t = a.text;
    if (!t.s) {
        int32_t n = 0;
        char16_t rev[11];
        uint32_t mag = a.value < 0 ? 0u - uint32_t(a.value) : uint32_t(a.value);
        do {
            rev[n++] = char16_t(u'0' + mag % 10);
            mag /= 10;
        } while (mag);
        int32_t k = 0;
        if (a.value < 0) number[k++] = u'-';
        while (n > 0) number[k++] = rev[--n];
        t = TextIn(number, k);
    }
    int32_t len = txtLen(t);
    if (sp.precision >= 0 && sp.precision < len) len = sp.precision;
    emitField(out, sp, "", 0, t.s, len, false);
}

void emitChar(Sink &out, const FieldFormat &sp, const FormatArg &a) {
    char16_t c = a.text.s ? (txtLen(a.text) > 0 ? a.text.s[0] : 0) : char16_t(a.value & 0xFFFF);
    emitField(out, sp, "", 0, &c, 1, false);
}

// Reads digits at p (saturating); returns the value.
int32_t readNumber(const char16_t *s, int32_t len, int32_t *p) {
    int64_t v = 0;
    while (*p < len && s[*p] >= u'0' && s[*p] <= u'9') {
        v = v * 10 + (s[*p] - u'0');
        if (v > kSaturated) v = kSaturated;
        ++*p;
    }
    return int32_t(v);
}

// Reads the length modifier at p into sp.bits.
void readLength(const char16_t *s, int32_t len, int32_t *p, FieldFormat &sp) {
    auto at = [&](int32_t k) { return *p + k < len ? s[*p + k] : char16_t(0); };
    char16_t c = at(0);
    if (c == u'h') {
        sp.bits = at(1) == u'h' ? 8 : 16;
        *p += sp.bits == 8 ? 2 : 1;
    } else if (c == u'l') {
        sp.bits = at(1) == u'l' ? 64 : 32;
        *p += sp.bits == 64 ? 2 : 1;
    } else if (c == u'I' && ((at(1) == u'6' && at(2) == u'4') || (at(1) == u'3' && at(2) == u'2'))) {
        sp.bits = at(1) == u'6' ? 64 : 32;  // I64, I32
        *p += 3;
    } else if (c == u'L' || c == u'j' || c == u'z' || c == u't' || c == u'I') {
        sp.bits = 64;
        ++*p;
    } else if (c == u'w') {
        ++*p;
    }
}

// Reads "*" or digits for a width or precision. A "*" with no parameter left
// fails (false); its value comes from the next parameter.
bool readCount(const char16_t *s, int32_t len, int32_t *p, Args &args, int32_t *value) {
    if (*p < len && s[*p] == u'*') {
        ++*p;
        const FormatArg *a = args.take();
        if (!a) return false;
        *value = argLong(*a);
        return true;
    }
    *value = readNumber(s, len, p);
    return true;
}

// Reads flags, width, precision and length after the "%" at index p. Returns
// false when the directive is cut off or a "*" finds no parameter.
bool readDirective(const char16_t *s, int32_t len, int32_t *p, Args &args, FieldFormat &sp) {
    for (; *p < len; ++*p) {
        char16_t c = s[*p];
        if (c == u'-') sp.left = true;
        else if (c == u'+') sp.plus = true;
        else if (c == u' ') sp.space = true;
        else if (c == u'#') sp.alt = true;
        else if (c == u'0') sp.zero = true;
        else break;
    }
    int32_t width = 0;
    if (!readCount(s, len, p, args, &width)) return false;
    if (width < 0) {
        sp.left = true;
        width = width == INT32_MIN ? kSaturated : -width;
    }
    sp.width = width > kSaturated ? kSaturated : width;
    if (*p < len && s[*p] == u'.') {
        ++*p;
        int32_t precision = 0;
        if (!readCount(s, len, p, args, &precision)) return false;
        sp.precision = precision < 0 ? -1 : (precision > kSaturated ? kSaturated : precision);
    }
    readLength(s, len, p, sp);
    if (*p >= len) return false;
    sp.conv = s[(*p)++];
    return true;
}

bool isOneOf(char16_t c, const char16_t *set) {
    for (; *set; ++set)
        if (*set == c) return true;
    return false;
}

// Formats one conversion with its parameter; false when the conversion is
// unknown or no parameter is left.
bool emitConversion(Sink &out, const FieldFormat &sp, Args &args) {
    char16_t c = sp.conv;
    if (c == u'%') {
        out.put(u'%');
        return true;
    }
    if (c == u'n') return true;
    if (!isOneOf(c, u"diuoxXcCsSeEfFgGaA")) return false;
    const FormatArg *a = args.take();
    if (!a) return false;
    if (isOneOf(c, u"diuoxX")) emitInteger(out, sp, argLong(*a));
    else if (c == u'c' || c == u'C') emitChar(out, sp, *a);
    else if (c == u's' || c == u'S') emitText(out, sp, *a);
    else emitFloat(out, sp, double(argLong(*a)));
    return true;
}

void formatInto(Sink &out, TextIn pattern, Args &args) {
    const char16_t *s = pattern.s;
    int32_t len = txtLen(pattern);
    for (int32_t p = 0; p < len && !out.full;) {
        if (s[p] != u'%') {
            out.put(s[p++]);
            continue;
        }
        int32_t start = p++;
        FieldFormat sp;
        if (!readDirective(s, len, &p, args, sp) || !emitConversion(out, sp, args))
            out.units(s + start, p - start);  // written as it stands
    }
}

bool overlaps(TextIn t, const char16_t *dst, int32_t cap) {
    return t.s && t.s < dst + cap && dst < t.s + t.cap;
}

// Private copies of the inputs that share storage with the destination, so
// that writing the result cannot change what is still to be read.
struct Snapshot {
    char16_t *block = nullptr;
    bool ok = true;
    ~Snapshot() { std::free(block); }

    void take(TextIn *inputs, int32_t n, char16_t *dst, int32_t cap) {
        int64_t total = 0;
        bool any = false;
        for (int32_t i = 0; i < n; ++i) {
            total += txtLen(inputs[i]) + 1;
            any = any || overlaps(inputs[i], dst, cap);
        }
        if (!any) return;
        block = static_cast<char16_t *>(heapMalloc(sizeof(char16_t) * size_t(total)));
        if (!block) return void(ok = false);
        char16_t *at = block;
        for (int32_t i = 0; i < n; ++i) {
            int32_t len = txtLen(inputs[i]);
            txtMove(at, inputs[i].s, len);
            at[len] = 0;
            if (inputs[i].s) inputs[i] = TextIn(at, len + 1);
            at += len + 1;
        }
    }
};

}  // namespace

int32_t txtFormat(char16_t *dst, int32_t cap, TextIn pattern, const FormatArg *args, int32_t count) {
    if (!dst || cap < 1) return -1;
    if (count < 0) count = 0;
    if (count > kMaxFormatArgs) count = kMaxFormatArgs;
    TextIn inputs[kMaxFormatArgs + 1] = {pattern};
    FormatArg copies[kMaxFormatArgs];
    for (int32_t i = 0; i < count; ++i) inputs[i + 1] = args[i].text;
    Snapshot snap;
    snap.take(inputs, count + 1, dst, cap);
    if (!snap.ok) {
        dst[0] = 0;
        return -1;
    }
    for (int32_t i = 0; i < count; ++i) copies[i] = {inputs[i + 1], args[i].value};
    Sink out{dst, cap};
    Args list{copies, count};
    formatInto(out, inputs[0], list);
    dst[out.len] = 0;
    return out.full ? -1 : out.len;
}

int32_t txtMakeText(char16_t *dst, int32_t cap, TextIn pattern, const TextIn *params, int32_t count) {
    FormatArg args[kMaxFormatArgs];
    if (count > kMaxFormatArgs) count = kMaxFormatArgs;
    for (int32_t i = 0; i < count; ++i) args[i].text = params[i];
    return txtFormat(dst, cap, pattern, args, count);
}

int32_t txtMakeTextInt(char16_t *dst, int32_t cap, TextIn pattern, int32_t value) {
    FormatArg arg;
    arg.value = value;
    return txtFormat(dst, cap, pattern, &arg, 1);
}

}  // namespace mx
