// Reading date texts with any format and writing times through the helper
// library (the date built-ins are cases in tests/cases/numbers.cases).
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

// Times are written only here: no built-in formats a time of day.
TEST(DateFormat, TimeDirectivesWrite) {
    KelvaneDateTime rec = at(5, 3, 2024, 7, 8, 9);
    EXPECT_EQ(u8(write(rec, u"%Y2-%M2-%D2 %h2:%m2:%s2")), "2024-03-05 07:08:09");
    EXPECT_EQ(u8(write(rec, u"%h1:%m1:%s1")), "7:8:9");
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

}  // namespace
