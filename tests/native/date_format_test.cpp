// Reading and writing date texts with formats, and the date built-ins.
#include <gtest/gtest.h>

#include "builtins/numbers/dates.h"
#include "helperlib/kelvane_date.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

std::u16string write(const KelvaneDateTime &rec, const char16_t *format, int32_t cap = 80) {
    return inBuffer(cap, u"", [&](char16_t *d, int32_t c) { return DateTimeStruct_To_FormattedDateW(&rec, format, d, c); });
}

KelvaneDateTime at(int32_t d, int32_t m, int32_t y, int32_t hh = 0, int32_t mm = 0, int32_t ss = 0) {
    KelvaneDateTime rec{};
    Kelvane_SetDateTimeStruct(&rec, d, m, y, hh, mm, ss);
    return rec;
}

TEST(DateFormat, DirectivesWrite) {
    KelvaneDateTime rec = at(5, 3, 2024, 7, 8, 9);
    const struct {
        const char16_t *format, *expected;
    } cases[] = {
        {nullptr, u"05.03.2024"},
        {u"", u"05.03.2024"},  // empty: the default format
        {u"%D2.%M2.%Y2", u"05.03.2024"},
        {u"%D1.%M1.%Y1", u"5.3.24"},
        {u"#%M2/%D2/%Y2#", u"#03/05/2024#"},
        {u"%Y2-%M2-%D2 %h2:%m2:%s2", u"2024-03-05 07:08:09"},
        {u"%h1:%m1:%s1", u"7:8:9"},
        {u"%WN, %D1. %MN %Y2", u"Dienstag, 5. M\u00e4rz 2024"},
        {u"%WS %MS", u"Di M\u00e4r"},
        {u"100%% %Q %D", u"100% %Q %D"},  // unknown directives stand for themselves
        {u"%", u"%"},
    };
    for (auto &c : cases) EXPECT_EQ(u8(write(rec, c.format)), u8(c.expected)) << (c.format ? u8(c.format) : "absent");
}

TEST(DateFormat, FieldsAreWrittenUnchecked) {
    EXPECT_EQ(write(at(31, 2, 2024), nullptr), u"31.02.2024");
    EXPECT_EQ(write(at(0, 0, 0), nullptr), u"00.00.0000");
    EXPECT_EQ(write(at(-1, 123, 12345), nullptr), u"-01.123.12345");
    EXPECT_EQ(write(at(31, 2, 2024), u"%WN|%MN"), u"|Februar");  // no weekday for no date
    EXPECT_EQ(write(at(5, 3, 2024), nullptr, 6), u"05.03");
}

TEST(DateFormat, DirectivesRead) {
    const struct {
        const char16_t *text, *format;
        int32_t result, d, m, y;
    } cases[] = {
        {u"05.03.2024", nullptr, 0, 5, 3, 2024},
        {u"5.3.2024", nullptr, 0, 5, 3, 2024},    // one-digit day and month
        {u"5.3.24", nullptr, 0, 5, 3, 2024},      // two-digit years: pivot 30
        {u"5.3.29", nullptr, 0, 5, 3, 2029},
        {u"5.3.30", nullptr, 0, 5, 3, 1930},
        {u"5.3.99", nullptr, 0, 5, 3, 1999},
        {u"  05.03.2024 \t", nullptr, 0, 5, 3, 2024},  // white around the text
        {u"29.02.2024", nullptr, 0, 29, 2, 2024},
        {u"29.02.2023", nullptr, -1, 0, 0, 0},    // no leap day
        {u"31.04.2024", nullptr, -1, 0, 0, 0},
        {u"00.01.2024", nullptr, -1, 0, 0, 0},
        {u"1.13.2024", nullptr, -1, 0, 0, 0},
        {u"5.3.202", nullptr, -1, 0, 0, 0},       // three-digit year
        {u"5.3.2", nullptr, -1, 0, 0, 0},
        {u"5.3.20245", nullptr, -1, 0, 0, 0},     // a digit left over
        {u"123.3.2024", nullptr, -1, 0, 0, 0},
        {u"05-03-2024", nullptr, -1, 0, 0, 0},
        {u"05.03.2024x", nullptr, -1, 0, 0, 0},
        {u"", nullptr, -1, 0, 0, 0},
        {u"01.01.0001", nullptr, 0, 1, 1, 1},
        {u"01.01.0000", nullptr, -1, 0, 0, 0},
        {u"2024-03-05", u"%Y2-%M2-%D2", 0, 5, 3, 2024},
        {u"2024-3-5", u"%Y2-%M2-%D2", 0, 5, 3, 2024},
        {u"#03/05/2024#", u"#%M2/%D2/%Y2#", 0, 5, 3, 2024},
        {u"5. m\u00e4rz 2024", u"%D1. %MN %Y2", 0, 5, 3, 2024},  // names in any case
        {u"Di, 5. Mai 2024", u"%WS, %D1. %MN %Y2", 0, 5, 5, 2024},  // the weekday is not checked
        {u"M\u00e4r 2024", u"%MS %Y2", 0, 1, 3, 2024},  // a missing day counts as 1
        {u"05.03.", u"%D2.%M2.", -1, 0, 0, 0},          // a year is needed
        {u"05.03.2024 25:00", u"%D2.%M2.%Y2 %h2:%m2", -1, 0, 0, 0},
        {u"50%", u"%D2%%", -1, 0, 0, 0},
    };
    for (auto &c : cases) {
        KelvaneDateTime rec = at(9, 9, 9999);
        EXPECT_EQ(FormattedDate_To_DateTimeStructW(c.text, c.format, &rec), c.result) << u8(c.text);
        EXPECT_EQ(rec.day, c.d) << u8(c.text);
        EXPECT_EQ(rec.month, c.m) << u8(c.text);
        EXPECT_EQ(rec.year, c.y) << u8(c.text);
    }
    KelvaneDateTime rec{};
    ASSERT_EQ(FormattedDate_To_DateTimeStructW(u"1.2.2003 4:05:06", u"%D1.%M1.%Y2 %h1:%m1:%s1", &rec), 0);
    EXPECT_EQ(rec.hour * 10000 + rec.minute * 100 + rec.second, 40506);
}

TEST(DateFormat, FormatDateRewritesInPlace) {
    int32_t r = 0;
    EXPECT_EQ(inBuffer(20, u"5.3.24", [](char16_t *s, int32_t c) { return numFormatDate(s, c, u"%Y2-%M2-%D2"); }, &r),
              u"2024-03-05");
    EXPECT_EQ(r, 0);
    EXPECT_EQ(inBuffer(20, u"5.3.24", [](char16_t *s, int32_t c) { return numFormatDate(s, c, u""); }, &r),
              u"05.03.2024");
    EXPECT_EQ(inBuffer(20, u"no date", [](char16_t *s, int32_t c) { return numFormatDate(s, c, u""); }, &r),
              u"no date");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(inBuffer(20, u"1.12.2023", [](char16_t *s, int32_t c) {
                  return numFormatDate(s, c, TextIn(kSqlDateFormat, 14));
              }),
              u"#12/01/2023#");
    // The format may be the date text itself: it is read before anything is written.
    EXPECT_EQ(inBuffer(20, u"1.12.2023", [](char16_t *s, int32_t c) { return numFormatDate(s, c, TextIn(s, c)); }),
              u"1.12.2023");
}

TEST(DateFormat, DateNumbersAndParts) {
    EXPECT_EQ(numDateToInt(u"01.01.2000"), 730120);
    EXPECT_EQ(numDateToInt(u"02.01.2000") - numDateToInt(u"31.12.1999"), 2);
    EXPECT_EQ(numDateToInt(u"01.03.2024") - numDateToInt(u"28.02.2024"), 2);
    EXPECT_EQ(numDateToInt(u"nonsense"), 0);
    EXPECT_EQ(inBuffer(20, u"", [](char16_t *d, int32_t c) { return numIntToDate(730120, d, c); }), u"01.01.2000");
    EXPECT_EQ(inBuffer(20, u"", [](char16_t *d, int32_t c) { return numIntToDate(0, d, c); }), u"00.00.0000");
    EXPECT_EQ(inBuffer(20, u"", [](char16_t *d, int32_t c) { return numAssembleDate(d, c, 7, 8, 1999); }), u"07.08.1999");
    EXPECT_EQ(inBuffer(20, u"", [](char16_t *d, int32_t c) { return numAssembleDate(d, c, 40, 2, 24); }), u"40.02.0024");
    int32_t d = 9, m = 9, y = 9;
    EXPECT_EQ(numDisassembleDate(u"24.12.2023", nullptr, &d, &m, &y), 0);
    EXPECT_EQ(d * 1000000 + m * 10000 + y, 24122023);
    EXPECT_EQ(numDisassembleDate(u"2023-12-24", nullptr, &d, &m, &y), -1);
    EXPECT_EQ(d + m + y, 0);
    EXPECT_EQ(numDisassembleDate(u"2023-12-24", kIsoDateFormat, &d, &m, &y), 0);
    EXPECT_EQ(d * 1000000 + m * 10000 + y, 24122023);
    EXPECT_EQ(numGetWeekday(u"24.12.2023"), 0);
    EXPECT_EQ(numGetWeekday(u"24.13.2023"), -1);
    EXPECT_EQ(numGetWeekdayFromYMD(2024, 2, 29), 4);
    EXPECT_EQ(numGetWeekdayFromYMD(2023, 2, 29), -1);
}

TEST(DateFormat, EasterSundayBuiltin) {
    int32_t y = 0, m = 0, d = 0;
    EXPECT_EQ(numGetEasterSunday(2024, &y, &m, &d), 0);
    EXPECT_EQ(y * 10000 + m * 100 + d, 20240331);
    EXPECT_EQ(numGetEasterSunday(12000, &y, &m, &d), 0);
    EXPECT_EQ(y + m + d, 0);
}

}  // namespace
