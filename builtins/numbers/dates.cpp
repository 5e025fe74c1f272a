#include "builtins/numbers/dates.h"

#include "helperlib/kelvane_date.h"
#include "helperlib/kelvane_text.h"

namespace mx {

namespace {
void set(int32_t *target, int32_t v) {
    if (target) *target = v;
}
}  // namespace

int32_t numGetToday(char16_t *dst, int32_t cap) {
    KelvaneDateTime rec{};
    Get_CurrentDateAndTime(&rec);
    DateTimeStruct_To_FormattedDateW(&rec, nullptr, dst, cap);
    return 0;
}

int32_t numGetTodayFormatted(char16_t *dst, int32_t cap, TextIn format) {
    KelvaneDateTime rec{};
    Get_CurrentDateAndTime(&rec);
    TextZ f(format);
    DateTimeStruct_To_FormattedDateW(&rec, f.get(), dst, cap);
    return 0;
}

int32_t numFormatDate(char16_t *s, int32_t cap, TextIn format) {
    KelvaneDateTime rec{};
    {
        TextZ date(TextIn(s, cap));
        if (FormattedDate_To_DateTimeStructW(date.get(), nullptr, &rec) != 0) return -1;
    }
    TextZ f(format);
    DateTimeStruct_To_FormattedDateW(&rec, f.get(), s, cap);
    return 0;
}

int32_t numDateToInt(TextIn date) {
    KelvaneDateTime rec{};
    TextZ text(date);
    if (FormattedDate_To_DateTimeStructW(text.get(), nullptr, &rec) != 0) return 0;
    return Get_DaysSinceBaseDate(&rec);
}

int32_t numIntToDate(int32_t days, char16_t *dst, int32_t cap) {
    KelvaneDateTime rec{};
    Get_DateSinceBaseDate(days, &rec);
    DateTimeStruct_To_FormattedDateW(&rec, nullptr, dst, cap);
    return 0;
}

int32_t numDisassembleDate(TextIn date, const char16_t *format, int32_t *day, int32_t *month, int32_t *year) {
    set(day, 0), set(month, 0), set(year, 0);
    KelvaneDateTime rec{};
    TextZ text(date);
    if (FormattedDate_To_DateTimeStructW(text.get(), format, &rec) != 0) return -1;
    set(day, rec.day), set(month, rec.month), set(year, rec.year);
    return 0;
}

int32_t numAssembleDate(char16_t *dst, int32_t cap, int32_t day, int32_t month, int32_t year) {
    KelvaneDateTime rec{};
    Kelvane_SetDateTimeStruct(&rec, day, month, year, 0, 0, 0);
    DateTimeStruct_To_FormattedDateW(&rec, nullptr, dst, cap);
    return 0;
}

int32_t numGetWeekday(TextIn date) {
    KelvaneDateTime rec{};
    TextZ text(date);
    if (FormattedDate_To_DateTimeStructW(text.get(), nullptr, &rec) != 0) return -1;
    return Get_Weekday(&rec);
}

int32_t numGetWeekdayFromYMD(int32_t year, int32_t month, int32_t day) {
    KelvaneDateTime rec{};
    Kelvane_SetDateTimeStruct(&rec, day, month, year, 0, 0, 0);
    return Get_Weekday(&rec);
}

int32_t numWeekdayToName(int32_t weekday, int32_t mode, char16_t *dst, int32_t cap) {
    const char16_t *name = kdtWeekdayName(weekday, mode != 0);
    if (!name) return -1;
    KelvaneCopyStringW(dst, name, cap);
    return 0;
}

int32_t numGetEasterSunday(int32_t year, int32_t *resYear, int32_t *resMonth, int32_t *resDay) {
    KelvaneDateTime rec{};
    if (year < 1) {
        Get_CurrentDateAndTime(&rec);
        year = rec.year;
        rec = KelvaneDateTime{};
    }
    Kelvane_ComputeEasterSunday(year, &rec);
    set(resDay, rec.day), set(resMonth, rec.month), set(resYear, rec.year);
    return 0;
}

int32_t numGetCurrentDate(int32_t *year, int32_t *month, int32_t *day) {
    KelvaneDateTime rec{};
    Get_CurrentDateAndTime(&rec);
    set(year, rec.year), set(month, rec.month), set(day, rec.day);
    return 0;
}

int32_t numGetCurrentTime(int32_t *hour, int32_t *minute, int32_t *second) {
    KelvaneDateTime rec{};
    Get_CurrentDateAndTime(&rec);
    set(hour, rec.hour), set(minute, rec.minute), set(second, rec.second);
    return 0;
}

}  // namespace mx
