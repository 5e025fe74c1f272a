// IntToString, StringToInt, StringToFloat, Modulo and the Euro rate.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "builtins/numbers/conversions.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct IntCase {
    int32_t value;
    char16_t digits, lead;
    int32_t cap;
    const char16_t *expected;
};

TEST(NumberConversions, IntToStringPadsWithTheLeadingCharacter) {
    const IntCase cases[] = {
        {42, 5, u'0', 30, u"00042"},
        {42, 5, u' ', 30, u"   42"},
        {-42, 5, u'0', 30, u"-0042"},  // the sign takes a position
        {-42, 0, u'0', 30, u"-42"},
        {123456, 3, u'0', 30, u"123456"},
        {7, 30, u'0', 30, u"00000000000000000007"},  // at most 20
        {7, u'5', u'0', 30, u"00000000000000000007"},  // the character '5' has the code 53
        {INT_MIN, 0, u'0', 30, u"-2147483648"},
        {INT_MIN, 12, u'0', 30, u"-02147483648"},
        {12345, 0, u'0', 3, u"12"},   // cut to the capacity, the leading part stays
        {42, 5, 0, 30, u""},          // a zero lead ends the text at the first fill
        {-1, 1, u'0', 30, u"-1"},
        {0, 0, u'0', 30, u"0"},
    };
    for (const IntCase &c : cases) {
        std::u16string got = inBuffer(c.cap, u"old", [&](char16_t *d, int32_t cap) {
            return numIntToString(c.value, d, cap, c.digits, c.lead);
        });
        EXPECT_EQ(u8(got), u8(c.expected)) << c.value << " digits " << int(c.digits);
    }
}

TEST(NumberConversions, StringToIntReadsLikeTheCLibrary) {
    const struct {
        const char16_t *text;
        int32_t expected;
    } cases[] = {
        {u" -12abc", -12}, {u"abc", 0},      {u"", 0},           {u"+7", 7},
        {u"\t\n 42", 42},  {u"- 5", 0},      {u"2147483647", INT_MAX}, {u"2147483648", INT_MAX},
        {u"-2147483648", INT_MIN}, {u"-2147483649", INT_MIN}, {u"99999999999999999999999", INT_MAX},
        {u"0x1F", 0},      {u"007", 7},      {u"1.9", 1},
    };
    for (auto &c : cases) EXPECT_EQ(numStringToInt(TextIn(std::u16string(c.text))), c.expected) << u8(c.text);
}

TEST(NumberConversions, StringToFloatUsesTheRunsSeparator) {
    const struct {
        const char16_t *text;
        char16_t sep;
        double expected;
    } cases[] = {
        {u"1.234,56", u',', 1234.56},  {u"1,234.56", u'.', 1234.56}, {u"1.234,56", u'.', 1.23456},
        {u"-0,5", u',', -0.5},         {u"", u'.', 0},               {u"abc", u'.', 0},
        {u"1e5", u'.', 15},            // the exponent letter is dropped
        {u"EUR 12,50", u',', 12.5},    {u"+3", u'.', 3},             {u"--3", u'.', 0},
        {u"1.2.3", u'.', 1.2},         {u".5", u'.', 0.5},           {u"5.", u'.', 5},
        {u".", u'.', 0},               {u"3-4", u'.', 3},
    };
    for (auto &c : cases) {
        double v = -99;
        EXPECT_EQ(numStringToFloat(TextIn(std::u16string(c.text)), &v, c.sep), 0);
        EXPECT_DOUBLE_EQ(v, c.expected) << u8(c.text);
    }
}

// A sign without digits reads nothing, which is a plain 0 (a macro would
// otherwise print "-0.000000"); "-0" itself reads as the negative zero.
TEST(NumberConversions, StringToFloatWithoutDigitsGivesPositiveZero) {
    const struct {
        const char16_t *text;
        bool negative;
    } cases[] = {{u"-", false}, {u"--3", false}, {u"-+3", false}, {u"-.", false}, {u"- x", false}, {u"-0", true}};
    for (auto &c : cases) {
        double v = 99;
        numStringToFloat(TextIn(std::u16string(c.text)), &v, u'.');
        EXPECT_EQ(v, 0) << u8(c.text);
        EXPECT_EQ(std::signbit(v), c.negative) << u8(c.text);
    }
}

TEST(NumberConversions, StringToFloatKeepsAtMost99Characters) {
    std::u16string text(98, u'0');
    text += u"123";  // kept: 98 zeros and "1"
    double v = 0;
    numStringToFloat(TextIn(text), &v, u'.');
    EXPECT_EQ(v, 1);
    std::u16string spaced = u"1";
    for (int i = 0; i < 200; ++i) spaced += u" ";
    spaced += u"2";  // the blanks are not kept, so both digits are
    numStringToFloat(TextIn(spaced), &v, u'.');
    EXPECT_EQ(v, 12);
}

TEST(NumberConversions, ModuloKeepsTheSignOfTheBase) {
    const struct {
        int32_t base, by, expected;
    } cases[] = {
        {7, 3, 1}, {-7, 3, -1}, {7, -3, 1}, {-7, -3, -1}, {6, 3, 0},
        {5, 0, 5},                 // no quotient: the base remains
        {INT_MIN, -1, 0},          // would overflow as a division
        {INT_MIN, 1, 0}, {INT_MAX, INT_MIN, INT_MAX}, {INT_MIN, INT_MAX, -1},
    };
    for (auto &c : cases) EXPECT_EQ(numModulo(c.base, c.by), c.expected) << c.base << " % " << c.by;
}

TEST(NumberConversions, EuroRateIsExact) {
    double e = 0, d = 0;
    EXPECT_EQ(numDmToEuro(1.95583, &e), 0);
    EXPECT_EQ(e, 1.0);
    EXPECT_EQ(numEuroToDm(100, &d), 0);
    EXPECT_EQ(d, 100 * 1.95583);
    numDmToEuro(100, &e);
    EXPECT_EQ(e, 100 / 1.95583);  // unrounded
}

}  // namespace
