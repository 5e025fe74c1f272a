// The date built-ins: each fills or reads a zeroed date-time record and lets
// the helper library's date functions do the calendar work. The default
// format is the helper's ("DD.MM.YYYY"). Destinations are written within
// their capacity and stay terminated.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// The format of FormatDateForSql and the one DisassembleIsoDate reads.
constexpr const char16_t *kSqlDateFormat = u"#%M2/%D2/%Y2#";
constexpr const char16_t *kIsoDateFormat = u"%Y2-%M2-%D2";

// dst = today's date in the default format. Result 0.
int32_t numGetToday(char16_t *dst, int32_t cap);

// dst = today's date in format, handed to the helper even when empty (which
// it writes in the default format). Result 0.
int32_t numGetTodayFormatted(char16_t *dst, int32_t cap, TextIn format);

// Reads s in the default format and writes it back in format (empty: the
// default format). Result 0; -1 with s unchanged when s is no date.
int32_t numFormatDate(char16_t *s, int32_t cap, TextIn format);

// The day number of date (default format); 0 when it is no date.
int32_t numDateToInt(TextIn date);

// dst = the date of day number days in the default format ("00.00.0000"
// outside the helper's range). Result 0.
int32_t numIntToDate(int32_t days, char16_t *dst, int32_t cap);

// Sets day, month and year to 0, then to the date read from date in format.
// Result 0; -1 when it is no date.
int32_t numDisassembleDate(TextIn date, const char16_t *format, int32_t *day, int32_t *month, int32_t *year);

// dst = day, month and year in the default format, unchecked. Result 0.
int32_t numAssembleDate(char16_t *dst, int32_t cap, int32_t day, int32_t month, int32_t year);

// The helper's weekday (0 Sunday to 6) of date; -1 when it is no date.
int32_t numGetWeekday(TextIn date);

// The helper's weekday of year, month, day; -1 for no valid date.
int32_t numGetWeekdayFromYMD(int32_t year, int32_t month, int32_t day);

// dst = the German name of weekday (0 Sunday to 6), long when mode is not 0.
// Result 0; -1 and dst unchanged for a weekday outside 0 to 6.
int32_t numWeekdayToName(int32_t weekday, int32_t mode, char16_t *dst, int32_t cap);

// The date of Easter Sunday of year (below 1: of the current year); 0, 0, 0
// for a year beyond the helper's range. Result 0.
int32_t numGetEasterSunday(int32_t year, int32_t *resYear, int32_t *resMonth, int32_t *resDay);

// Today's date, and the time of day. Result 0.
int32_t numGetCurrentDate(int32_t *year, int32_t *month, int32_t *day);
int32_t numGetCurrentTime(int32_t *hour, int32_t *minute, int32_t *second);

}  // namespace mx
