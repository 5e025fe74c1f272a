#include "base/number_format.h"

#include <charconv>
#include <cmath>

#include "base/text_out.h"
#include "base/u16.h"

namespace mx {

namespace {

constexpr int32_t kTooLong = 50;          // n + n/3 + 6 must stay below this
constexpr int32_t kMaxUsefulFract = 400;  // beyond, any non-zero double has too many digits

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

}  // namespace

int32_t fmtFixed(double value, int32_t fract, char16_t thousand, char16_t sep, char16_t *dst, int32_t cap) {
    char digits[kTooLong];
    int32_t n = std::isfinite(value) ? roundedDigits(std::fabs(value), fract, digits, kTooLong) : -1;
    if (n < 0 || n + n / 3 + 6 >= kTooLong) {
        u16Copy(dst, cap, u"");
        return -1;
    }
    if (!dst || cap < 1) return 0;
    TextOut out(dst, cap);
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
        for (int32_t i = intLen; i < 0; ++i) out.put(u'0');
        for (int32_t i = intLen < 0 ? 0 : intLen; i < n; ++i) out.put(char16_t(digits[i]));
    }
    return 0;
}

}  // namespace mx
