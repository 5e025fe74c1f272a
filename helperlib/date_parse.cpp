// Reading a date text with a format.
//
// Grammar, for a format of directives and literal characters:
//   text    := white* item* white*        (white: codes 1 to 32)
//   item    := a literal character of the format, matched exactly
//            | day | month | hour | minute | second := 1 or 2 digits
//            | year := 2 digits (with the pivot) or 4 digits
//            | month name := a long or short month name, letters in any case
//            | weekday name := a long or short weekday name (not checked)
// The year must be read; a day or month the format lacks counts as 1. The
// result must be a valid date of the years 1 to 9999 with a valid time.
#include "helperlib/kelvane_date.h"
#include "base/u16.h"
#include "platform/casemap.h"

namespace mx {

namespace {

struct Fields {
    int32_t day = 1, month = 1, year = -1, hour = 0, minute = 0, second = 0;
};

// Reads 1 to maxDigits digits at *p; -1 when there is none.
int32_t readDigits(const char16_t *s, int32_t *p, int32_t maxDigits, int32_t *count) {
    int32_t v = 0, n = 0;
    for (; n < maxDigits && s[*p] >= u'0' && s[*p] <= u'9'; ++n, ++*p) v = v * 10 + (s[*p] - u'0');
    *count = n;
    return n ? v : -1;
}

// Length of name when s starts with it (letters compared in either case), else 0.
int32_t nameMatch(const char16_t *s, const char16_t *name) {
    int32_t n = 0;
    for (; name[n]; ++n)
        if (!s[n] || mxp_CharLower(s[n]) != mxp_CharLower(name[n])) return 0;
    return n;
}

// Index of the longest of count names at s (long forms first), or -1.
int32_t readName(const char16_t *s, int32_t *p, int32_t first, int32_t count,
                 const char16_t *(*nameOf)(int32_t, bool)) {
    for (int pass = 0; pass < 2; ++pass)
        for (int32_t i = first; i < first + count; ++i) {
            int32_t n = nameMatch(s + *p, nameOf(i, pass == 0));
            if (n) {
                *p += n;
                return i;
            }
        }
    return -1;
}

bool readYear(const char16_t *s, int32_t *p, Fields &f) {
    int32_t count = 0;
    int32_t v = readDigits(s, p, 4, &count);
    if (count == 2) f.year = v < kPivotYear ? 2000 + v : 1900 + v;
    else if (count == 4) f.year = v;
    return count == 2 || count == 4;
}

bool readItem(const char16_t *s, int32_t *p, const KdtDirective &d, Fields &f) {
    int32_t count = 0;
    switch (d.field) {
        case KdtField::kDay: return (f.day = readDigits(s, p, 2, &count)) >= 0;
        case KdtField::kMonth: return (f.month = readDigits(s, p, 2, &count)) >= 0;
        case KdtField::kYear: return readYear(s, p, f);
        case KdtField::kHour: return (f.hour = readDigits(s, p, 2, &count)) >= 0;
        case KdtField::kMinute: return (f.minute = readDigits(s, p, 2, &count)) >= 0;
        case KdtField::kSecond: return (f.second = readDigits(s, p, 2, &count)) >= 0;
        case KdtField::kMonthName: return (f.month = readName(s, p, 1, 12, kdtMonthName)) > 0;
        case KdtField::kWeekdayName: return readName(s, p, 0, 7, kdtWeekdayName) >= 0;
        case KdtField::kPercent: return s[*p] == u'%' && ++*p > 0;
        case KdtField::kNone: return false;
    }
    return false;
}

}  // namespace

int32_t FormattedDate_To_DateTimeStructW(const char16_t *text, const char16_t *format,
                                         KelvaneDateTime *rec) {
    if (!rec) return -1;
    *rec = KelvaneDateTime{};
    if (!text) return -1;
    if (!format || !format[0]) format = kDefaultDateFormat;
    Fields f;
    int32_t p = 0;
    while (u16IsWhite(text[p])) ++p;
    for (const char16_t *fmt = format; *fmt;) {
        KdtDirective d = kdtDirectiveAt(fmt);
        if (d.field == KdtField::kNone) {
            if (text[p] != *fmt) return -1;
            ++p, ++fmt;
            continue;
        }
        if (!readItem(text, &p, d, f)) return -1;
        fmt += d.field == KdtField::kPercent ? 2 : 3;
    }
    while (u16IsWhite(text[p])) ++p;
    if (text[p]) return -1;
    if (Kelvane_SetDateTimeStruct(rec, f.day, f.month, f.year, f.hour, f.minute, f.second) != 0) {
        *rec = KelvaneDateTime{};
        return -1;
    }
    return 0;
}

}  // namespace mx
