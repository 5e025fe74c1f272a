// Case mapping and letter tests.
#include <gtest/gtest.h>

#include "builtins/text/case.h"
#include "platform/casemap.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;

namespace {

TEST(TextCase, LatinLettersMapAsOnWindows) {
    struct {
        char16_t small, capital;
    } pairs[] = {{u'a', u'A'},       {u'z', u'Z'},       {0xE4, 0xC4},   {0xF6, 0xD6},   {0xFC, 0xDC},
                 {0xE0, 0xC0},       {0xFE, 0xDE},       {0xFF, 0x178},  {0x101, 0x100}, {0x133, 0x132},
                 {0x13A, 0x139},     {0x148, 0x147},     {0x14B, 0x14A}, {0x153, 0x152}, {0x177, 0x176},
                 {0x17A, 0x179},     {0x17E, 0x17D}};
    for (auto &p : pairs) {
        EXPECT_EQ(txtToUpper(p.small), p.capital) << std::hex << int(p.small);
        EXPECT_EQ(txtToLower(p.capital), p.small) << std::hex << int(p.capital);
    }
    // Units without a partner in the Windows tables stay as they are.
    for (char16_t c : {char16_t(0xDF), char16_t(0xB5), char16_t(0xD7), char16_t(0xF7), char16_t(0x130),
                       char16_t(0x131), char16_t(0x138), char16_t(0x149), char16_t(0x17F), char16_t(u'1')}) {
        EXPECT_EQ(txtToUpper(c), c) << std::hex << int(c);
        EXPECT_EQ(txtToLower(c), c) << std::hex << int(c);
    }
}

TEST(TextCase, EveryLatinUnitRoundTripsThroughItsPartner) {
    for (char16_t c = 0; c < 0x180; ++c) {
        char16_t up = mxp_CharUpper(c), low = mxp_CharLower(c);
        if (up != c) { EXPECT_EQ(mxp_CharLower(up), c) << std::hex << int(c); }
        if (low != c) { EXPECT_EQ(mxp_CharUpper(low), c) << std::hex << int(c); }
        EXPECT_FALSE(up != c && low != c) << "both forms for " << std::hex << int(c);
    }
}

TEST(TextCase, OnlyTheLow16BitsOfTheArgumentCount) {
    EXPECT_EQ(txtToUpper(0x10000 + u'a'), u'A');
    EXPECT_EQ(txtToLower(-65536 + u'Q'), u'q');
    EXPECT_EQ(txtIsAlpha(0x10000 + u'x'), 1);
    EXPECT_EQ(txtIsAlpha(u'5'), 0);
    EXPECT_EQ(txtIsAlphaNumeric(u'5'), 1);
    EXPECT_EQ(txtIsAlphaNumeric(u'-'), 0);
    EXPECT_EQ(txtIsAlpha(0xE4), 1);
}

TEST(TextCase, StringMappingStaysWithinTheCapacity) {
    EXPECT_EQ(inBuffer(20, u"Stra\u00dfe \u00e4\u00f6", [](char16_t *s, int32_t c) { return txtStringToUpper(s, c); }),
              u"STRA\u00dfE \u00c4\u00d6");
    EXPECT_EQ(inBuffer(20, u"\u0178BC", [](char16_t *s, int32_t c) { return txtStringToLower(s, c); }),
              u"\u00ffbc");
    std::unique_ptr<char16_t[]> full(new char16_t[3]{u'a', u'b', u'c'});
    txtStringToUpper(full.get(), 3);  // a full vector is terminated at cap - 1 first
    EXPECT_EQ(std::u16string(full.get()), u"AB");
}

}  // namespace
