// Colours, telephone numbers and weekday names.
#include <gtest/gtest.h>

#include "builtins/numbers/colours.h"
#include "builtins/numbers/dates.h"
#include "builtins/numbers/phone.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

TEST(NumberMisc, HtmlToRgbReadsSixHexDigits) {
    struct {
        const char16_t *text;
        int32_t result, r, g, b;
    } cases[] = {
        {u"#ff8000", 0, 255, 128, 0},   {u"#FF8000", 0, 255, 128, 0}, {u"#0a0B0c", 0, 10, 11, 12},
        {u"#FF80", -1, 0, 0, 255},      {u"#ff80001", -1, 0, 0, 255}, {u"ff80001", -1, 0, 0, 255},
        {u"#ff80g0", -1, 0, 0, 255},    {u"#ff 800", -1, 0, 0, 255},  {u"", -1, 0, 0, 255},
        {u"#\uff10\uff10\uff10\uff10\uff10\uff10", -1, 0, 0, 255},   // full-width digits are no digits
    };
    for (auto &c : cases) {
        int32_t r = 7, g = 7, b = 7;
        EXPECT_EQ(numHtmlToRgb(TextIn(std::u16string(c.text)), &r, &g, &b), c.result) << u8(c.text);
        EXPECT_EQ(r, c.r) << u8(c.text);
        EXPECT_EQ(g, c.g) << u8(c.text);
        EXPECT_EQ(b, c.b) << u8(c.text);
    }
}

TEST(NumberMisc, RgbToHtmlWritesUpperCaseAndClamps) {
    EXPECT_EQ(inBuffer(10, u"", [](char16_t *d, int32_t c) { return numRgbToHtml(300, -1, 16, d, c); }), u"#FFFF10");
    EXPECT_EQ(inBuffer(10, u"", [](char16_t *d, int32_t c) { return numRgbToHtml(0, 171, 205, d, c); }), u"#00ABCD");
    EXPECT_EQ(inBuffer(4, u"", [](char16_t *d, int32_t c) { return numRgbToHtml(1, 2, 3, d, c); }), u"#01");
}

TEST(NumberMisc, PhoneNumbersGetTheCountryPrefix) {
    struct {
        const char16_t *number, *expected;
    } cases[] = {
        {u"0711 4711", u"+49711 4711"}, {u"711 4711", u"+49711 4711"}, {u"0049 711", u"0049 711"},
        {u"+44 20", u"+44 20"},         {u"  0711  ", u"+49711"},      {u"   ", u""},
        {u"", u""},                     {u"0", u"+49"},                {u"00", u"00"},
        {u"\t0711", u"+49\t0711"},      // only blanks are removed
    };
    for (auto &c : cases) {
        std::u16string got = inBuffer(30, u"old", [&](char16_t *d, int32_t cap) {
            return numPhoneToInternational(TextIn(std::u16string(c.number)), d, cap, u"+49");
        });
        EXPECT_EQ(u8(got), u8(c.expected)) << u8(c.number);
    }
    EXPECT_EQ(inBuffer(6, u"", [](char16_t *d, int32_t c) { return numPhoneToInternational(u"0711 4711", d, c, u"+49"); }),
              u"+4971");
    // The number is copied first: it may be the destination itself.
    EXPECT_EQ(inBuffer(30, u"0711", [](char16_t *d, int32_t c) { return numPhoneToInternational(TextIn(d, c), d, c, u"+49"); }),
              u"+49711");
    // At most 99 units of the number count.
    std::u16string longNumber(150, u'1');
    EXPECT_EQ(inBuffer(300, u"", [&](char16_t *d, int32_t c) {
                  return numPhoneToInternational(TextIn(longNumber), d, c, u"+");
              }).size(),
              100u);
}

TEST(NumberMisc, WeekdayNamesFromSunday) {
    const char16_t *longNames[] = {u"Sonntag", u"Montag", u"Dienstag", u"Mittwoch",
                                   u"Donnerstag", u"Freitag", u"Samstag"};
    const char16_t *shortNames[] = {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"};
    for (int32_t d = 0; d < 7; ++d) {
        EXPECT_EQ(inBuffer(20, u"", [&](char16_t *n, int32_t c) { return numWeekdayToName(d, 1, n, c); }), longNames[d]);
        EXPECT_EQ(inBuffer(20, u"", [&](char16_t *n, int32_t c) { return numWeekdayToName(d, -5, n, c); }), longNames[d]);
        EXPECT_EQ(inBuffer(20, u"", [&](char16_t *n, int32_t c) { return numWeekdayToName(d, 0, n, c); }), shortNames[d]);
    }
    int32_t r = 0;
    EXPECT_EQ(inBuffer(20, u"keep", [](char16_t *n, int32_t c) { return numWeekdayToName(7, 0, n, c); }, &r), u"keep");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(inBuffer(20, u"keep", [](char16_t *n, int32_t c) { return numWeekdayToName(-1, 1, n, c); }, &r), u"keep");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(inBuffer(4, u"", [](char16_t *n, int32_t c) { return numWeekdayToName(3, 1, n, c); }), u"Mit");
}

}  // namespace
