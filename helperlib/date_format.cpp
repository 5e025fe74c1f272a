// Writing a date-time record as text.
#include <cstdlib>

#include "base/text_out.h"
#include "base/u16.h"
#include "helperlib/kelvane_date.h"
#include "base/heap.h"

namespace mx {

namespace {

void writeDirective(TextOut &out, const KdtDirective &d, const KelvaneDateTime *rec) {
    int32_t digits = d.longForm ? 2 : 1;
    switch (d.field) {
        case KdtField::kDay: out.decimal(rec->day, digits); break;
        case KdtField::kMonth: out.decimal(rec->month, digits); break;
        case KdtField::kYear:
            if (d.longForm) out.decimal(rec->year, 4);
            else out.decimal((rec->year < 0 ? -rec->year : rec->year) % 100, 2);
            break;
        case KdtField::kHour: out.decimal(rec->hour, digits); break;
        case KdtField::kMinute: out.decimal(rec->minute, digits); break;
        case KdtField::kSecond: out.decimal(rec->second, digits); break;
        case KdtField::kMonthName: out.text(kdtMonthName(rec->month, d.longForm)); break;
        case KdtField::kWeekdayName: out.text(kdtWeekdayName(Get_Weekday(rec), d.longForm)); break;
        case KdtField::kPercent: out.put(u'%'); break;
        case KdtField::kNone: break;
    }
}

}  // namespace

KdtDirective kdtDirectiveAt(const char16_t *f) {
    KdtDirective d;
    if (!f || f[0] != u'%' || f[1] == 0) return d;
    if (f[1] == u'%') return d.field = KdtField::kPercent, d;
    char16_t kind = f[1], form = f[2];
    if ((kind == u'M' || kind == u'W') && (form == u'N' || form == u'S')) {
        d.field = kind == u'M' ? KdtField::kMonthName : KdtField::kWeekdayName;
        d.longForm = form == u'N';
        return d;
    }
    if (form != u'1' && form != u'2') return d;
    switch (kind) {
        case u'D': d.field = KdtField::kDay; break;
        case u'M': d.field = KdtField::kMonth; break;
        case u'Y': d.field = KdtField::kYear; break;
        case u'h': d.field = KdtField::kHour; break;
        case u'm': d.field = KdtField::kMinute; break;
        case u's': d.field = KdtField::kSecond; break;
        default: return d;
    }
    d.longForm = form == u'2';
    return d;
}

int32_t DateTimeStruct_To_FormattedDateW(const KelvaneDateTime *rec, const char16_t *format,
                                         char16_t *dst, int32_t capacity) {
    if (!dst || capacity < 1) return 0;
    if (!format || !format[0]) format = kDefaultDateFormat;
    // The text is made apart and copied at the end: dst may be the format.
    auto *work = static_cast<char16_t *>(heapMalloc(sizeof(char16_t) * size_t(capacity)));
    if (!work || !rec) {
        std::free(work);
        dst[0] = 0;
        return 0;
    }
    TextOut out(work, capacity);
    for (const char16_t *f = format; *f;) {
        KdtDirective d = kdtDirectiveAt(f);
        if (d.field == KdtField::kNone) {
            out.put(*f++);
            continue;
        }
        writeDirective(out, d, rec);
        f += d.field == KdtField::kPercent ? 2 : 3;
    }
    for (int32_t i = 0; i < out.len; ++i) dst[i] = work[i];
    dst[out.len] = 0;
    std::free(work);
    return out.len;
}

}  // namespace mx
