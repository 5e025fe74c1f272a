// Day numbers, weekdays, month lengths and Easter, each checked against
// sources independent of the helper's own arithmetic: known dates, other
// algorithms, the C library's clock arithmetic and a table of Easter dates.
#include <gtest/gtest.h>

#include <ctime>

#include "helperlib/kelvane_date.h"

using namespace mx;

namespace {

KelvaneDateTime date(int32_t day, int32_t month, int32_t year) {
    KelvaneDateTime rec{};
    Kelvane_SetDateTimeStruct(&rec, day, month, year, 0, 0, 0);
    return rec;
}

int32_t weekday(int32_t day, int32_t month, int32_t year) {
    KelvaneDateTime rec = date(day, month, year);
    return Get_Weekday(&rec);
}

// Sakamoto's method, 0 = Sunday.
int32_t sakamoto(int32_t y, int32_t m, int32_t d) {
    static const int32_t t[] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    if (m < 3) y -= 1;
    return (y + y / 4 - y / 100 + y / 400 + t[m - 1] + d) % 7;
}

TEST(DateCalendar, KnownWeekdays) {
    const struct {
        int32_t d, m, y, weekday;
    } known[] = {
        {1, 1, 1900, 1},   {1, 1, 1970, 4},  {1, 1, 2000, 6},  {29, 2, 2000, 2}, {20, 7, 1969, 0},
        {9, 11, 1989, 4},  {3, 10, 1990, 3}, {11, 9, 2001, 2}, {1, 1, 2024, 1},  {29, 2, 2024, 4},
        {15, 10, 1582, 5}, {4, 7, 1776, 4},  {1, 1, 1, 1},     {31, 12, 9999, 5}, {24, 12, 2023, 0},
    };
    for (auto &k : known) EXPECT_EQ(weekday(k.d, k.m, k.y), k.weekday) << k.d << "." << k.m << "." << k.y;
    EXPECT_EQ(weekday(29, 2, 1900), -1);  // no leap day in 1900
    EXPECT_EQ(weekday(0, 1, 2000), -1);
    EXPECT_EQ(weekday(1, 13, 2000), -1);
    EXPECT_EQ(weekday(1, 1, 10000), -1);
}

TEST(DateCalendar, WeekdaysAgreeWithSakamotoForEveryDay) {
    for (int32_t n = 1; n <= kDateLastDay; n += 7 * 1000 + 1) {  // a sample over the whole range
        KelvaneDateTime rec{};
        ASSERT_EQ(Get_DateSinceBaseDate(n, &rec), 0);
        EXPECT_EQ(Get_Weekday(&rec), sakamoto(rec.year, rec.month, rec.day)) << n;
    }
    for (int32_t y = 1899; y <= 2101; ++y)
        for (int32_t m = 1; m <= 12; ++m)
            for (int32_t d = 1; d <= Get_MonthLng(y, m); ++d)
                ASSERT_EQ(weekday(d, m, y), sakamoto(y, m, d)) << d << "." << m << "." << y;
}

TEST(DateCalendar, DayNumbersRunWithTheClockOfTheCLibrary) {
    // timegm counts seconds since 1.1.1970 in the same Gregorian calendar.
    KelvaneDateTime epoch = date(1, 1, 1970);
    int32_t epochDay = Get_DaysSinceBaseDate(&epoch);
    for (int64_t day = 0; day < 68 * 366; day += 13) {
        std::time_t t = std::time_t(day * 86400);
        std::tm utc{};
        gmtime_r(&t, &utc);
        KelvaneDateTime rec = date(utc.tm_mday, utc.tm_mon + 1, utc.tm_year + 1900);
        ASSERT_EQ(Get_DaysSinceBaseDate(&rec), epochDay + day) << day;
        ASSERT_EQ(Get_Weekday(&rec), utc.tm_wday) << day;
    }
}

TEST(DateCalendar, DayNumbersRoundTripAndStartAtTheBaseDate) {
    KelvaneDateTime first = date(1, 1, 1), last = date(31, 12, 9999);
    EXPECT_EQ(Get_DaysSinceBaseDate(&first), 1);
    EXPECT_EQ(Get_DaysSinceBaseDate(&last), kDateLastDay);
    KelvaneDateTime y2k = date(1, 1, 2000);
    EXPECT_EQ(Get_DaysSinceBaseDate(&y2k), 730120);
    int32_t previous = 0;
    for (int32_t n = 1; n <= kDateLastDay; n += 97) {
        KelvaneDateTime rec{};
        ASSERT_EQ(Get_DateSinceBaseDate(n, &rec), 0);
        ASSERT_TRUE(rec.day >= 1 && rec.day <= Get_MonthLng(rec.year, rec.month)) << n;
        ASSERT_EQ(Get_DaysSinceBaseDate(&rec), n);
        ASSERT_GE(rec.year, previous);
        previous = rec.year;
    }
    KelvaneDateTime rec = date(5, 5, 5);
    EXPECT_EQ(Get_DateSinceBaseDate(0, &rec), -1);
    EXPECT_EQ(rec.day + rec.month + rec.year, 0);
    EXPECT_EQ(Get_DateSinceBaseDate(kDateLastDay + 1, &rec), -1);
    KelvaneDateTime bad = date(31, 4, 2024);
    EXPECT_EQ(Get_DaysSinceBaseDate(&bad), 0);
}

// Easter Sunday 1900 to 2100 from a published table, typed in as month*100
// + day, ten years a row.
const int32_t kEasterTable[] = {
    415, 407, 330, 412, 403, 423, 415, 331, 419, 411,  // 1900
    327, 416, 407, 323, 412, 404, 423, 408, 331, 420,  // 1910
    404, 327, 416, 401, 420, 412, 404, 417, 408, 331,  // 1920
    420, 405, 327, 416, 401, 421, 412, 328, 417, 409,  // 1930
    324, 413, 405, 425, 409, 401, 421, 406, 328, 417,  // 1940
    409, 325, 413, 405, 418, 410, 401, 421, 406, 329,  // 1950
    417, 402, 422, 414, 329, 418, 410, 326, 414, 406,  // 1960
    329, 411, 402, 422, 414, 330, 418, 410, 326, 415,  // 1970
    406, 419, 411, 403, 422, 407, 330, 419, 403, 326,  // 1980
    415, 331, 419, 411, 403, 416, 407, 330, 412, 404,  // 1990
    423, 415, 331, 420, 411, 327, 416, 408, 323, 412,  // 2000
    404, 424, 408, 331, 420, 405, 327, 416, 401, 421,  // 2010
    412, 404, 417, 409, 331, 420, 405, 328, 416, 401,  // 2020
    421, 413, 328, 417, 409, 325, 413, 405, 425, 410,  // 2030
    401, 421, 406, 329, 417, 409, 325, 414, 405, 418,  // 2040
    410, 402, 421, 406, 329, 418, 402, 422, 414, 330,  // 2050
    418, 410, 326, 415, 406, 329, 411, 403, 422, 414,  // 2060
    330, 419, 410, 326, 415, 407, 419, 411, 403, 423,  // 2070
    407, 330, 419, 404, 326, 415, 331, 420, 411, 403,  // 2080
    416, 408, 330, 412, 404, 424, 415, 331, 420, 412,  // 2090
    328,                                               // 2100
};
static_assert(sizeof kEasterTable / sizeof kEasterTable[0] == 201, "1900 to 2100");

TEST(DateEaster, MatchesThePublishedTable) {
    for (int32_t y = 1900; y <= 2100; ++y) {
        KelvaneDateTime rec{};
        ASSERT_EQ(Kelvane_ComputeEasterSunday(y, &rec), 0);
        EXPECT_EQ(rec.month * 100 + rec.day, kEasterTable[y - 1900]) << y;
        EXPECT_EQ(Get_Weekday(&rec), 0) << y;
        EXPECT_EQ(rec.year, y);
    }
}

// Gauss's rule with its two exceptions, another derivation of the same
// computus, for every Gregorian year the helper knows.
int32_t gaussEaster(int32_t y) {
    int32_t a = y % 19, b = y % 4, c = y % 7, k = y / 100;
    int32_t p = (13 + 8 * k) / 25, q = k / 4;
    int32_t m = (15 - p + k - q) % 30, n = (4 + k - q) % 7;
    int32_t d = (19 * a + m) % 30, e = (2 * b + 4 * c + 6 * d + n) % 7;
    if (d == 29 && e == 6) return 419;
    if (d == 28 && e == 6 && (11 * m + 11) % 30 < 19) return 418;
    int32_t day = 22 + d + e;
    return day > 31 ? 400 + day - 31 : 300 + day;
}

TEST(DateEaster, AgreesWithGaussForAllGregorianYears) {
    for (int32_t y = 1583; y <= kDateLastYear; ++y) {
        KelvaneDateTime rec{};
        Kelvane_ComputeEasterSunday(y, &rec);
        ASSERT_EQ(rec.month * 100 + rec.day, gaussEaster(y)) << y;
    }
    KelvaneDateTime rec = date(1, 1, 2000);
    EXPECT_EQ(Kelvane_ComputeEasterSunday(0, &rec), -1);
    EXPECT_EQ(rec.day + rec.month + rec.year, 0);
    EXPECT_EQ(Kelvane_ComputeEasterSunday(10000, &rec), -1);
}

}  // namespace
