// FloatToString and FloatToDigitNames.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "builtins/numbers/float_format.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct FloatCase {
    double value;
    char16_t fract, thousand, sep;
    int32_t result;
    const char16_t *expected;
};

TEST(NumberFloat, FloatToStringRoundsAndGroups) {
    const FloatCase cases[] = {
        {1234567.891, 2, u'.', u',', 0, u"1.234.567,89"},
        {1234567.891, 2, 0, u',', 0, u"1234567,89"},
        {1234567.891, 0, u'.', u',', 0, u"1.234.568"},
        {0.05, 2, u'.', u',', 0, u"0,05"},
        {-1234.5, 1, u'.', u',', 0, u"-1.234,5"},
        {1234567.891, 2, u',', u'.', 0, u"1,234,567.89"},
        {0, 2, u'.', u',', 0, u"0,00"},
        {0, 0, u'.', u',', 0, u"0"},
        {999.999, 2, u'.', u',', 0, u"1.000,00"},       // rounding carries into a new group
        {123, 0, u'.', u',', 0, u"123"},                // three digits: no separator
        {1234, 0, u'.', u',', 0, u"1.234"},
        {-0.001, 2, u'.', u',', 0, u"-0,00"},           // negative, rounded to zero
        {0.125, 2, 0, u'.', 0, u"0.12"},                // the exact binary value is a tie: to even
        {0.135, 2, 0, u'.', 0, u"0.14"},                // 0.135 is a little above in binary
        {2.5, 0, 0, u'.', 0, u"2"},
        {1e40, 2, u'.', u',', -1, u""},                  // too long
        {1e32, 0, 0, u'.', -1, u""},                     // 33 digits: 33 + 11 + 6 >= 50
        {std::numeric_limits<double>::infinity(), 2, 0, u'.', -1, u""},
        {std::nan(""), 2, 0, u'.', -1, u""},
        {1, 500, 0, u'.', -1, u""},                      // far too many decimals
    };
    for (const FloatCase &c : cases) {
        int32_t r = 0;
        std::u16string got = inBuffer(60, u"old", [&](char16_t *d, int32_t cap) {
            return numFloatToString(c.value, d, cap, c.fract, c.thousand, c.sep);
        }, &r);
        EXPECT_EQ(r, c.result) << c.value;
        EXPECT_EQ(u8(got), u8(c.expected)) << c.value << " with " << int(c.fract) << " decimals";
    }
}

TEST(NumberFloat, FloatToStringUsesTheExactBinaryValue) {
    // 1e29 is 99999999999999991433150857216 as a double: 29 digits fit.
    EXPECT_EQ(inBuffer(60, u"", [](char16_t *d, int32_t c) { return numFloatToString(1e29, d, c, 0, 0, u'.'); }),
              u"99999999999999991433150857216");
    // 1e-300 with 310 decimals: round(1e10 * (1e-300 / 1e-300 as stored)).
    std::u16string tiny = inBuffer(400, u"", [](char16_t *d, int32_t c) {
        return numFloatToString(1e-300, d, c, 310, 0, u'.');
    });
    EXPECT_EQ(tiny.size(), 312u);
    EXPECT_EQ(tiny.substr(0, 2), u"0.");
    EXPECT_EQ(tiny.substr(tiny.size() - 11), u"10000000000");
}

TEST(NumberFloat, ZeroWithManyDecimalsIsCutToTheCapacity) {
    int32_t r = -1;
    std::u16string got =
        inBuffer(8, u"", [](char16_t *d, int32_t c) { return numFloatToString(0, d, c, 60000, 0, u','); }, &r);
    EXPECT_EQ(r, 0);
    EXPECT_EQ(got, u"0,00000");
}

TEST(NumberFloat, LengthLimitIsCountedOnRoundedDigits) {
    // 2^104 has 32 digits: 32 + 10 + 6 = 48 fits; 2^107 has 33: 33 + 11 + 6 = 50 does not.
    EXPECT_EQ(inBuffer(60, u"", [](char16_t *d, int32_t c) {
                  return numFloatToString(std::ldexp(1.0, 104), d, c, 0, 0, u'.');
              }),
              u"20282409603651670423947251286016");
    int32_t r = 0;
    inBuffer(60, u"", [](char16_t *d, int32_t c) { return numFloatToString(std::ldexp(1.0, 107), d, c, 0, 0, u'.'); }, &r);
    EXPECT_EQ(r, -1);
    inBuffer(60, u"", [](char16_t *d, int32_t c) { return numFloatToString(1, d, c, 32, 0, u'.'); }, &r);
    EXPECT_EQ(r, -1);  // 33 digits of 10^32
    inBuffer(60, u"", [](char16_t *d, int32_t c) { return numFloatToString(1, d, c, 31, 0, u'.'); }, &r);
    EXPECT_EQ(r, 0);
    // Groups count: 30 digits with separators are fine, the limit is on digits.
    EXPECT_EQ(inBuffer(60, u"", [](char16_t *d, int32_t c) { return numFloatToString(1e6, d, c, 0, u'.', u','); }),
              u"1.000.000");
}

TEST(NumberFloat, DigitNamesSpellTheIntegerPart) {
    struct {
        double value;
        const char16_t *sep;
        int32_t language, cap;
        const char16_t *expected;
    } cases[] = {
        {409.7, u"-", 49, 100, u"Vier-Null-Neun"},
        {409.7, u"-", 44, 100, u"Four-Zero-Nine"},
        {-25, u" ", 44, 100, u"Two Five"},
        {0.9, u",", 49, 100, u"Null"},
        {56, u"", 1, 100, u"F\u00fcnfSechs"},
        {1, u"-", 49, 21, u""},           // too short for a name plus 20
        {12, u"-", 49, 26, u"Eins"},        // room for one name only
        {3e10, u" ", 44, 200, u"Two One Four Seven Four Eight Three Six Four Eight"},
    };
    for (auto &c : cases) {
        std::u16string got = inBuffer(c.cap, u"old", [&](char16_t *d, int32_t cap) {
            return numFloatToDigitNames(c.value, d, cap, TextIn(std::u16string(c.sep)), c.language);
        });
        EXPECT_EQ(u8(got), u8(c.expected)) << c.value;
    }
}

}  // namespace
