// The German names of weekdays and months.
#include "helperlib/kelvane_date.h"

namespace mx {

namespace {
const char16_t *const kWeekdayLong[7] = {u"Sonntag", u"Montag", u"Dienstag", u"Mittwoch",
                                         u"Donnerstag", u"Freitag", u"Samstag"};
const char16_t *const kWeekdayShort[7] = {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"};
const char16_t *const kMonthLong[12] = {u"Januar", u"Februar", u"März", u"April", u"Mai", u"Juni",
                                        u"Juli", u"August", u"September", u"Oktober", u"November",
                                        u"Dezember"};
const char16_t *const kMonthShort[12] = {u"Jan", u"Feb", u"Mär", u"Apr", u"Mai", u"Jun",
                                         u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"};
}  // namespace

const char16_t *kdtWeekdayName(int32_t weekday, bool longForm) {
    if (weekday < 0 || weekday > 6) return nullptr;
    return longForm ? kWeekdayLong[weekday] : kWeekdayShort[weekday];
}

const char16_t *kdtMonthName(int32_t month, bool longForm) {
    if (month < 1 || month > 12) return nullptr;
    return longForm ? kMonthLong[month - 1] : kMonthShort[month - 1];
}

}  // namespace mx
