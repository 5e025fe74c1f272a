// Easter Sunday by the Gregorian computus (the anonymous algorithm of 1876
// in integer arithmetic): the epact gives the Paschal full moon, Easter is
// the Sunday after it.
#include "helperlib/kelvane_date.h"

namespace mx {

int32_t Kelvane_ComputeEasterSunday(int32_t year, KelvaneDateTime *rec) {
    if (!rec) return -1;
    Kelvane_SetDateTimeStruct(rec, 0, 0, 0, 0, 0, 0);
    if (year < kDateFirstYear || year > kDateLastYear) return -1;
    int32_t a = year % 19;                         // place in the Metonic cycle
    int32_t b = year / 100, c = year % 100;
    int32_t d = b / 4, e = b % 4;
    int32_t f = (b + 8) / 25;                      // lunar correction
    int32_t g = (b - f + 1) / 3;
    int32_t h = (19 * a + b - d - g + 15) % 30;    // days from 21 March to the full moon
    int32_t i = c / 4, k = c % 4;
    int32_t l = (32 + 2 * e + 2 * i - h - k) % 7;  // days from the full moon to Sunday
    int32_t m = (a + 11 * h + 22 * l) / 451;
    int32_t month = (h + l - 7 * m + 114) / 31;
    int32_t day = (h + l - 7 * m + 114) % 31 + 1;
    Kelvane_SetDateTimeStruct(rec, day, month, year, 0, 0, 0);
    return 0;
}

}  // namespace mx
