// Every number and date function that writes, into destinations of capacity
// 1, 2 and 3 (buffers of exactly that size, watched by AddressSanitizer).
#include <gtest/gtest.h>

#include <functional>

#include "builtins/numbers/colours.h"
#include "builtins/numbers/conversions.h"
#include "builtins/numbers/dates.h"
#include "builtins/numbers/float_format.h"
#include "builtins/numbers/phone.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct Writer {
    const char *name;
    const char16_t *init;
    std::function<int32_t(char16_t *, int32_t)> call;
    std::u16string full;  // what a large destination gets; smaller ones get its start
};

TEST(NumberCapacity, SmallDestinationsGetTheStartOfTheText) {
    std::u16string today = inBuffer(40, u"", [](char16_t *d, int32_t c) { return numGetToday(d, c); });
    std::u16string year = inBuffer(40, u"", [](char16_t *d, int32_t c) { return numGetTodayFormatted(d, c, u"%Y2"); });
    const Writer writers[] = {
        {"IntToString", u"", [](char16_t *d, int32_t c) { return numIntToString(-42, d, c, 0, u'0'); }, u"-42"},
        {"FloatToString", u"", [](char16_t *d, int32_t c) { return numFloatToString(1.5, d, c, 1, 0, u','); }, u"1,5"},
        {"FloatToDigitNames", u"", [](char16_t *d, int32_t c) { return numFloatToDigitNames(12, d, c, u"-", 49); }, u""},
        {"GetToday", u"", [](char16_t *d, int32_t c) { return numGetToday(d, c); }, today},
        {"GetTodayFormatted", u"", [](char16_t *d, int32_t c) { return numGetTodayFormatted(d, c, u"%Y2"); }, year},
        {"FormatDate", u"1.2.2024", [](char16_t *d, int32_t c) { return numFormatDate(d, c, u""); }, u"1.2.2024"},
        {"FormatDateForSql", u"1.2.2024",
         [](char16_t *d, int32_t c) { return numFormatDate(d, c, TextIn(kSqlDateFormat, 14)); }, u"1.2.2024"},
        {"IntToDate", u"", [](char16_t *d, int32_t c) { return numIntToDate(730120, d, c); }, u"01.01.2000"},
        {"AssembleDate", u"", [](char16_t *d, int32_t c) { return numAssembleDate(d, c, 1, 1, 2000); }, u"01.01.2000"},
        {"WeekdayToName", u"", [](char16_t *d, int32_t c) { return numWeekdayToName(1, 1, d, c); }, u"Montag"},
        {"RgbToHtml", u"", [](char16_t *d, int32_t c) { return numRgbToHtml(1, 2, 3, d, c); }, u"#010203"},
        {"PhoneNumberToInternational", u"",
         [](char16_t *d, int32_t c) { return numPhoneToInternational(u"0711", d, c, u"+49"); }, u"+49711"},
    };
    for (const Writer &w : writers) {
        ASSERT_GE(w.full.size(), w.name == std::string("FloatToDigitNames") ? 0u : 3u) << w.name;
        for (int32_t cap = 1; cap <= 3; ++cap) {
            std::u16string want = w.full.substr(0, size_t(cap - 1));
            EXPECT_EQ(u8(inBuffer(cap, w.init, w.call)), u8(want)) << w.name << " capacity " << cap;
        }
    }
}

}  // namespace
