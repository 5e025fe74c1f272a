// Day numbers, month lengths, weekdays and the record's fields.
#include "helperlib/kelvane_date.h"

namespace mx {

namespace {

constexpr int32_t kDaysBeforeMonth[13] = {0, 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
constexpr int64_t kDays400 = 146097, kDays100 = 36524, kDays4 = 1461, kDays1 = 365;

bool isLeap(int64_t year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

void clearDate(KelvaneDateTime *rec) {
    rec->day = rec->month = rec->year = 0;
    rec->hour = rec->minute = rec->second = 0;
}

}  // namespace

int64_t kdtDayNumber(int64_t year, int32_t month, int32_t day) {
    int64_t y = year - 1;
    int64_t before = 365 * y + y / 4 - y / 100 + y / 400;
    int32_t m = month < 1 ? 1 : month > 12 ? 12 : month;
    int64_t inYear = kDaysBeforeMonth[m] + (m > 2 && isLeap(year) ? 1 : 0);
    return before + inYear + day;
}

void kdtDateOf(int64_t dayNumber, int32_t *year, int32_t *month, int32_t *day) {
    int64_t n = dayNumber - 1;
    int64_t c400 = n / kDays400;
    n %= kDays400;
    int64_t c100 = n / kDays100 < 3 ? n / kDays100 : 3;  // the 400th year's leap day
    n -= c100 * kDays100;
    int64_t c4 = n / kDays4;
    n %= kDays4;
    int64_t c1 = n / kDays1 < 3 ? n / kDays1 : 3;  // the fourth year's leap day
    n -= c1 * kDays1;
    int64_t y = 400 * c400 + 100 * c100 + 4 * c4 + c1 + 1;
    int32_t m = 12;
    while (m > 1 && n < kDaysBeforeMonth[m] + (m > 2 && isLeap(y) ? 1 : 0)) --m;
    *year = int32_t(y);
    *month = m;
    *day = int32_t(n - kDaysBeforeMonth[m] - (m > 2 && isLeap(y) ? 1 : 0) + 1);
}

bool kdtValidDate(int32_t year, int32_t month, int32_t day) {
    return year >= kDateFirstYear && year <= kDateLastYear && month >= 1 && month <= 12 && day >= 1 &&
           day <= Get_MonthLng(year, month);
}

int32_t Get_MonthLng(int32_t year, int32_t month) {
    constexpr int32_t kLength[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    return kLength[month] + (month == 2 && isLeap(year) ? 1 : 0);
}

int32_t Get_DaysSinceBaseDate(const KelvaneDateTime *rec) {
    if (!rec || !kdtValidDate(rec->year, rec->month, rec->day)) return 0;
    return int32_t(kdtDayNumber(rec->year, rec->month, rec->day));
}

int32_t Get_DateSinceBaseDate(int32_t days, KelvaneDateTime *rec) {
    if (!rec) return -1;
    clearDate(rec);
    if (days < 1 || days > kDateLastDay) return -1;
    kdtDateOf(days, &rec->year, &rec->month, &rec->day);
    return 0;
}

int32_t Get_Weekday(const KelvaneDateTime *rec) {
    int32_t n = Get_DaysSinceBaseDate(rec);
    return n > 0 ? n % 7 : -1;  // day 1, 1 January of the year 1, was a Monday
}

int32_t Kelvane_SetDateTimeStruct(KelvaneDateTime *rec, int32_t day, int32_t month, int32_t year,
                                  int32_t hour, int32_t minute, int32_t second) {
    if (!rec) return -1;
    rec->day = day, rec->month = month, rec->year = year;
    rec->hour = hour, rec->minute = minute, rec->second = second;
    bool timeOk = hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59;
    return kdtValidDate(year, month, day) && timeOk ? 0 : -1;
}

int32_t Kelvane_IsSunday(int32_t year, int32_t month, int32_t day) {
    KelvaneDateTime rec{};
    Kelvane_SetDateTimeStruct(&rec, day, month, year, 0, 0, 0);
    return Get_Weekday(&rec) == 0 ? 1 : 0;
}

}  // namespace mx
