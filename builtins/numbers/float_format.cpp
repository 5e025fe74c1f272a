#include "builtins/numbers/float_format.h"

#include <charconv>
#include <cmath>

#include "base/text_out.h"
#include "base/u16.h"
#include "engine/value.h"
#include "engine/process_state.h"
#include "platform/platform.h"

namespace mx {

namespace {

constexpr int32_t kTooLong = 50;          // n + n/3 + 6 must stay below this
constexpr int32_t kMaxUsefulFract = 400;  // beyond, any non-zero double has too many digits
constexpr uint32_t kGermanDigitNames = 20000;
constexpr uint32_t kEnglishDigitNames = 20001;
constexpr int32_t kEnglishLanguage = 44;

// The digits of round(|value| * 10^fract) without leading zeros ("0" for
// zero) into digits; returns their count, or -1 when there are too many.
int32_t roundedDigits(double mag, int32_t fract, char *digits, int32_t capacity) {
    if (mag == 0) {
        digits[0] = '0';
        return 1;
    }
    if (fract > kMaxUsefulFract) return -1;
    char fixed[320 + kMaxUsefulFract];
    auto r = std::to_chars(fixed, fixed + sizeof fixed, mag, std::chars_format::fixed, fract);
    if (r.ec != std::errc()) return -1;
    int32_t n = 0;
    for (const char *p = fixed; p < r.ptr; ++p) {
        if (*p == '.' || (n == 0 && *p == '0')) continue;
        if (n >= capacity) return -1;
        digits[n++] = *p;
    }
    if (n == 0) digits[n++] = '0';
    return n;
}

struct Writer {
    char16_t *dst;
    int32_t cap;
    int32_t len = 0;
    void put(char16_t c) {
        if (len < cap - 1) dst[len++] = c;
    }
    void repeat(char16_t c, int64_t n) {
        for (; n > 0 && len < cap - 1; --n) put(c);
    }
};

}  // namespace

int32_t numFloatToString(double value, char16_t *dst, int32_t cap, char16_t fract, char16_t thousand,
                         char16_t sep) {
    char digits[kTooLong];
    int32_t n = std::isfinite(value) ? roundedDigits(std::fabs(value), fract, digits, kTooLong) : -1;
    if (n < 0 || n + n / 3 + 6 >= kTooLong) {
        u16Copy(dst, cap, u"");
        return -1;
    }
    if (!dst || cap < 1) return 0;
    Writer out{dst, cap};
    if (value < 0) out.put(u'-');
    int32_t intLen = n - fract;  // digits left of the fraction
    if (intLen <= 0) out.put(u'0');
    for (int32_t i = 0; i < intLen; ++i) {
        out.put(char16_t(digits[i]));
        int32_t remaining = intLen - i - 1;
        if (thousand && remaining > 0 && remaining % 3 == 0) out.put(thousand);
    }
    if (fract) {
        out.put(sep);
        out.repeat(u'0', intLen < 0 ? -int64_t(intLen) : 0);
        for (int32_t i = intLen < 0 ? 0 : intLen; i < n; ++i) out.put(char16_t(digits[i]));
    }
    dst[out.len] = 0;
    return 0;
}

int32_t numFloatToDigitNames(double value, char16_t *dst, int32_t cap, TextIn separator, int32_t language) {
    if (!dst || cap < 1) return 0;
    dst[0] = 0;  // first: the separator may be this very variable
    char16_t names[256];
    uint32_t id = language == kEnglishLanguage ? kEnglishDigitNames : kGermanDigitNames;
    mxp_LoadString(gProcess.module, id, names, 256);
    const char16_t *item[10] = {};
    int32_t itemLen[10] = {};
    const char16_t *p = names;
    for (int32_t k = 0; k < 10 && *p; ++k) {
        item[k] = p;
        while (*p && *p != u'|') ++p;
        itemLen[k] = int32_t(p - item[k]);
        if (*p) ++p;
    }
    int32_t whole = doubleToLong(std::fabs(value));
    uint32_t mag = whole < 0 ? 0u - uint32_t(whole) : uint32_t(whole);
    char16_t number[12];
    TextOut(number, 12).decimal(int64_t(mag));
    TextZ sep(separator);
    int32_t sepLen = u16Len(sep.get());
    int32_t len = 0;
    bool any = false;
    for (const char16_t *d = number; *d && cap - len > sepLen + 20; ++d) {
        int32_t k = *d - u'0';
        for (int32_t i = 0; i < itemLen[k] && len < cap - 1; ++i) dst[len++] = item[k][i];
        for (int32_t i = 0; i < sepLen && len < cap - 1; ++i) dst[len++] = sep.get()[i];
        any = true;
    }
    if (any) len = len >= sepLen ? len - sepLen : 0;
    dst[len] = 0;
    return 0;
}

}  // namespace mx
