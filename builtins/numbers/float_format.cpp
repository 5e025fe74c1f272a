#include "builtins/numbers/float_format.h"

#include <cmath>

#include "base/number_format.h"
#include "base/text_out.h"
#include "base/u16.h"
#include "engine/value.h"
#include "engine/process_state.h"
#include "platform/platform.h"

namespace mx {

namespace {

constexpr uint32_t kGermanDigitNames = 20000;
constexpr uint32_t kEnglishDigitNames = 20001;
constexpr int32_t kEnglishLanguage = 44;

}  // namespace

int32_t numFloatToString(double value, char16_t *dst, int32_t cap, char16_t fract, char16_t thousand,
                         char16_t sep) {
    return fmtFixed(value, fract, thousand, sep, dst, cap);
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
