#include "builtins/numbers/conversions.h"

#include <charconv>

#include "base/text_out.h"
#include "base/u16.h"

namespace mx {

namespace {
constexpr int32_t kMaxDigits = 20;
constexpr int32_t kFloatWork = 99;

bool isCSpace(char16_t c) { return c == u' ' || (c >= 9 && c <= 13); }
}  // namespace

int32_t numIntToString(int32_t value, char16_t *result, int32_t cap, char16_t digits, char16_t lead) {
    if (!result || cap < 1) return 0;
    char16_t text[kMaxDigits + 12];
    int32_t n = 0;
    int32_t d = digits > kMaxDigits ? kMaxDigits : digits;
    if (value < 0) {
        text[n++] = u'-';
        if (d > 0) --d;
    }
    // The magnitude as unsigned: -2147483648 has no positive long.
    uint32_t mag = value < 0 ? 0u - uint32_t(value) : uint32_t(value);
    char16_t magnitude[12];
    TextOut(magnitude, 12).decimal(int64_t(mag));
    int32_t m = u16Len(magnitude);
    for (int32_t i = m; i < d; ++i) text[n++] = lead;
    for (int32_t i = 0; i < m; ++i) text[n++] = magnitude[i];
    text[n] = 0;
    // A zero lead ends the text at the first fill position, as a text does.
    txtCopy(result, cap, TextIn(text, n + 1));
    return 0;
}

int32_t numStringToInt(TextIn s) {
    int32_t len = txtLen(s), i = 0;
    while (i < len && isCSpace(s.s[i])) ++i;
    bool negative = false;
    if (i < len && (s.s[i] == u'+' || s.s[i] == u'-')) negative = s.s[i++] == u'-';
    int64_t v = 0;
    for (; i < len && s.s[i] >= u'0' && s.s[i] <= u'9'; ++i) {
        v = v * 10 + (s.s[i] - u'0');
        if (v > int64_t(INT32_MAX) + 1) v = int64_t(INT32_MAX) + 1;  // saturated
    }
    if (negative) v = -v;
    if (v > INT32_MAX) return INT32_MAX;
    if (v < INT32_MIN) return INT32_MIN;
    return int32_t(v);
}

int32_t numStringToFloat(TextIn s, double *value, char16_t sep) {
    char work[kFloatWork + 1];
    int32_t n = 0, len = txtLen(s);
    for (int32_t i = 0; i < len && n < kFloatWork; ++i) {
        char16_t c = s.s[i];
        if (c == sep) work[n++] = '.';
        else if ((c >= u'0' && c <= u'9') || c == u'+' || c == u'-') work[n++] = char(c);
    }
    // Read as far as it forms a number: a sign, then digits with one point.
    int32_t start = (n > 0 && (work[0] == '+' || work[0] == '-')) ? 1 : 0;
    double v = 0;
    bool secondSign = start < n && (work[start] == '+' || work[start] == '-');
    auto r = std::from_chars(work + start, work + n, v, std::chars_format::fixed);
    bool read = !secondSign && r.ec == std::errc();  // 99 digits never leave the range
    if (!read) v = 0;  // nothing read is a plain 0, whatever sign stood before it
    if (value) *value = (read && start && work[0] == '-') ? -v : v;
    return 0;
}

int32_t numModulo(int32_t base, int32_t divideBy) {
    if (divideBy == 0) return base;
    if (divideBy == -1) return 0;  // also for the smallest long, whose quotient overflows
    return base % divideBy;
}

int32_t numDmToEuro(double dm, double *euro) {
    if (euro) *euro = dm / kEuroRate;
    return 0;
}

int32_t numEuroToDm(double euro, double *dm) {
    if (dm) *dm = euro * kEuroRate;
    return 0;
}

}  // namespace mx
