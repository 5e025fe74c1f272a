// Helper library: dates. The date-time record, reading and writing date
// texts, day numbers, weekdays, month lengths, Easter and the German public
// and school holidays. docs/dates.md describes every rule and format.
//
// Calendar: the Gregorian calendar for every year from 1 to 9999 (before its
// introduction in 1582 too). Day numbers count from the base date: 1 January
// of the year 1 is day 1, so 0 is never a date. Weekdays run from 0 (Sunday)
// to 6 (Saturday).
#pragma once
#include <cstdint>

namespace mx {

// The record exchanged with the built-ins: six fields, then bytes that
// belong to the helper (unused, kept zero). Built-ins start from a zeroed one.
struct KelvaneDateTime {
    int32_t day;     // 1-31
    int32_t month;   // 1-12
    int32_t year;    // four digits
    int32_t hour;
    int32_t minute;
    int32_t second;
    int32_t reserved[9];
};
static_assert(sizeof(KelvaneDateTime) == 60, "the record is 60 bytes");

constexpr int32_t kDateFirstYear = 1;
constexpr int32_t kDateLastYear = 9999;
constexpr int32_t kDateLastDay = 3652059;  // day number of 31.12.9999

// The default format, "DD.MM.YYYY".
constexpr const char16_t *kDefaultDateFormat = u"%D2.%M2.%Y2";

// Fills rec with the local date and time of now. Returns 0.
int32_t Get_CurrentDateAndTime(KelvaneDateTime *rec);

// Reads text in format (absent or empty: the default format) into a zeroed
// rec. Returns 0, or -1 when the text is no valid date in that format (rec
// then stays zeroed).
int32_t FormattedDate_To_DateTimeStructW(const char16_t *text, const char16_t *format,
                                         KelvaneDateTime *rec);

// Writes rec in format (absent or empty: the default format) into dst, at
// most capacity - 1 units, terminated; dst may hold the format itself. The
// fields are written as they are, unchecked. Returns the units written.
int32_t DateTimeStruct_To_FormattedDateW(const KelvaneDateTime *rec, const char16_t *format,
                                         char16_t *dst, int32_t capacity);

// Day number of rec's date; 0 when it is no valid date.
int32_t Get_DaysSinceBaseDate(const KelvaneDateTime *rec);

// Sets rec's date to day number days (time 00:00:00). Returns 0, or -1 with
// the date fields 0 when days is outside 1 to 3652059.
int32_t Get_DateSinceBaseDate(int32_t days, KelvaneDateTime *rec);

// Weekday of rec's date, 0 (Sunday) to 6; -1 when it is no valid date.
int32_t Get_Weekday(const KelvaneDateTime *rec);

// Stores the six fields in rec. Returns 0 when they form a valid date and
// time, else -1 (stored all the same).
int32_t Kelvane_SetDateTimeStruct(KelvaneDateTime *rec, int32_t day, int32_t month, int32_t year,
                                  int32_t hour, int32_t minute, int32_t second);

// Sets rec to Easter Sunday of year (Gregorian computus), time 00:00:00.
// Returns 0, or -1 with the date fields 0 for a year outside 1 to 9999.
int32_t Kelvane_ComputeEasterSunday(int32_t year, KelvaneDateTime *rec);

// Days of the month (28 to 31, leap years counted); 0 for a month outside
// 1 to 12.
int32_t Get_MonthLng(int32_t year, int32_t month);

// 1 when the date is a Sunday, 0 otherwise (also for no valid date).
int32_t Kelvane_IsSunday(int32_t year, int32_t month, int32_t day);

// State bits of Kelvane_IsHoliday; state number n (Kelvane_IsSchoolHoliday)
// is bit n - 1.
enum : int32_t {
    kStateBW = 1 << 0,   // Baden-Württemberg
    kStateBY = 1 << 1,   // Bayern
    kStateBE = 1 << 2,   // Berlin
    kStateBB = 1 << 3,   // Brandenburg
    kStateHB = 1 << 4,   // Bremen
    kStateHH = 1 << 5,   // Hamburg
    kStateHE = 1 << 6,   // Hessen
    kStateMV = 1 << 7,   // Mecklenburg-Vorpommern
    kStateNI = 1 << 8,   // Niedersachsen
    kStateNW = 1 << 9,   // Nordrhein-Westfalen
    kStateRP = 1 << 10,  // Rheinland-Pfalz
    kStateSL = 1 << 11,  // Saarland
    kStateSN = 1 << 12,  // Sachsen
    kStateST = 1 << 13,  // Sachsen-Anhalt
    kStateSH = 1 << 14,  // Schleswig-Holstein
    kStateTH = 1 << 15,  // Thüringen
};

// The number of the German public holiday on the date (docs/dates.md lists
// them, 1 to 21): the nationwide ones always, those of single states when
// the state's bit is set in flags. 0 for any other day and for no valid date.
int32_t Kelvane_IsHoliday(int32_t year, int32_t month, int32_t day, int32_t flags);

// 1 when the school-holiday file lists a period of country (telephone code,
// 49 for Germany) and state (1 to 16 as above; lines of state 0 hold for the
// whole country) holding the date; 0 otherwise, and when there is no file.
int32_t Kelvane_IsSchoolHoliday(int32_t country, int32_t state, int32_t year, int32_t month,
                                int32_t day);

// The school-holiday file: path (copied, at most 1023 units) instead of the
// one the environment variable MORVIX_SCHOOLHOLIDAYS names; absent goes back
// to the variable.
void Kelvane_SetSchoolHolidayFile(const char16_t *path);

// ---- shared by the date functions --------------------------------------------

// Day number of a date (no check); the inverse fills day, month, year.
int64_t kdtDayNumber(int64_t year, int32_t month, int32_t day);
void kdtDateOf(int64_t dayNumber, int32_t *year, int32_t *month, int32_t *day);

// True when year, month and day form a date of the years 1 to 9999.
bool kdtValidDate(int32_t year, int32_t month, int32_t day);

// Format directives:
//   %D2 %D1   day, two digits / no leading zero
//   %M2 %M1   month, two digits / no leading zero
//   %Y2 %Y1   year, four digits / its last two digits
//   %h2 %h1   hour;  %m2 %m1 minute;  %s2 %s1 second
//   %MN %MS   month name, long ("März") / short ("Mär")
//   %WN %WS   weekday name, long ("Montag") / short ("Mo")
//   %%        a percent sign
// Every other character, a "%" that starts none of these included, stands
// for itself.
enum class KdtField { kNone, kDay, kMonth, kYear, kHour, kMinute, kSecond, kMonthName, kWeekdayName, kPercent };

struct KdtDirective {
    KdtField field = KdtField::kNone;
    bool longForm = false;  // "2" of the numbers, "N" of the names
};

// The directive at format (which starts with "%"): 3 units, or 2 for "%%".
// Field kNone when format starts no directive.
KdtDirective kdtDirectiveAt(const char16_t *format);

// Years written with two digits: 00 to 29 are 2000 to 2029, 30 to 99 are
// 1930 to 1999.
constexpr int32_t kPivotYear = 30;

// German names: weekday 0 (Sunday) to 6 and month 1 to 12, long or short
// ("Sonntag"/"So", "Januar"/"Jan"); absent outside the range.
const char16_t *kdtWeekdayName(int32_t weekday, bool longForm);
const char16_t *kdtMonthName(int32_t month, bool longForm);

}  // namespace mx
