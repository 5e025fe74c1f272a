// Comparing, searching, splitting and testing texts.
#include <gtest/gtest.h>

#include "builtins/text/search.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

TEST(TextSearch, StrCmpIsOrdinalBySign) {
    struct {
        const char16_t *a, *b;
        int32_t expected;
    } cases[] = {
        {u"a", u"B", 1},  {u"B", u"a", -1},     {u"abc", u"abc", 0}, {u"ab", u"abc", -1},
        {u"abc", u"ab", 1}, {u"", u"", 0},      {u"\u00e4", u"z", 1}, {u"\uffff", u"\u0100", 1},
    };
    for (auto &c : cases)
        EXPECT_EQ(txtStrCmp(TextIn(std::u16string(c.a)), TextIn(std::u16string(c.b))), c.expected)
            << u8(c.a) << " vs " << u8(c.b);
}

TEST(TextSearch, StrStrIsZeroBasedAndFindStringOneBased) {
    struct {
        const char16_t *s, *f;
        int32_t index;
    } cases[] = {
        {u"abc", u"c", 2}, {u"abc", u"x", -1}, {u"abc", u"", 0},    {u"", u"", 0},
        {u"", u"a", -1},   {u"aab", u"ab", 1}, {u"abc", u"abcd", -1}, {u"abcabc", u"ca", 2},
        {u"aBc", u"b", -1},
    };
    for (auto &c : cases) {
        EXPECT_EQ(txtStrStr(TextIn(std::u16string(c.s)), TextIn(std::u16string(c.f))), c.index) << u8(c.s);
        EXPECT_EQ(txtFindString(TextIn(std::u16string(c.s)), TextIn(std::u16string(c.f))), c.index + 1) << u8(c.s);
    }
}

TEST(TextSearch, SearchStopsAtTheCapacityOfAFullVector) {
    std::unique_ptr<char16_t[]> s(new char16_t[3]{u'a', u'b', u'c'});
    EXPECT_EQ(txtStrStr(TextIn(s.get(), 3), u"c"), 2);
    EXPECT_EQ(txtStrStr(TextIn(s.get(), 3), u"cd"), -1);
    EXPECT_EQ(txtStrLen(TextIn(s.get(), 3)), 3);
    EXPECT_EQ(txtStrCmp(TextIn(s.get(), 3), u"abc"), 0);
}

TEST(TextSearch, StrDelimPeelsFieldByField) {
    char16_t s[16] = u"a;b;c";
    char16_t p[8] = u"old";
    const struct {
        const char16_t *param, *rest;
        int32_t result;
    } steps[] = {{u"a", u"b;c", 1}, {u"b", u"c", 1}, {u"c", u"", 0}, {u"", u"", 0}};
    for (auto &step : steps) {
        EXPECT_EQ(txtStrDelim(s, 16, p, 8, u';'), step.result);
        EXPECT_EQ(std::u16string(p), step.param);
        EXPECT_EQ(std::u16string(s), step.rest);
    }
}

TEST(TextSearch, StrDelimWithZeroDelimiterChangesNothing) {
    char16_t s[8] = u"a;b", p[8] = u"keep";
    EXPECT_EQ(txtStrDelim(s, 8, p, 8, 0), -1);
    EXPECT_EQ(std::u16string(s), u"a;b");
    EXPECT_EQ(std::u16string(p), u"keep");
}

TEST(TextSearch, StrDelimCutsTheParameterToItsCapacity) {
    std::u16string rest;
    std::u16string param = inBuffer(3, u"", [&](char16_t *p, int32_t cap) {
        char16_t s[16] = u"abcdef,gh";
        int32_t r = txtStrDelim(s, 16, p, cap, u',');
        rest = s;
        return r;
    });
    EXPECT_EQ(param, u"ab");
    EXPECT_EQ(rest, u"gh");
}

TEST(TextSearch, GetSubStringSplitsAtRunsOfTabs) {
    const std::u16string list = u"\ta\t\tb\t";
    const struct {
        int32_t index;
        const char16_t *expected;
    } cases[] = {{0, u"a"}, {1, u"b"}, {2, u""}, {-1, u""}, {2147483647, u""}};
    for (auto &c : cases) {
        std::u16string got = inBuffer(10, u"stale", [&](char16_t *r, int32_t cap) {
            return txtGetSubString(TextIn(list), c.index, r, cap);
        });
        EXPECT_EQ(u8(got), u8(c.expected)) << c.index;
    }
    EXPECT_EQ(inBuffer(3, u"", [](char16_t *r, int32_t cap) { return txtGetSubString(u"x\tlong", 1, r, cap); }),
              u"lo");
}

TEST(TextSearch, DigitAndWhiteTests) {
    EXPECT_EQ(txtIsDigitString(u""), 1);
    EXPECT_EQ(txtIsDigitString(u"0123456789"), 1);
    EXPECT_EQ(txtIsDigitString(u"12a"), 0);
    EXPECT_EQ(txtIsDigitString(u"-1"), 0);
    EXPECT_EQ(txtIsStringWhite(u""), 1);
    EXPECT_EQ(txtIsStringWhite(u" \t"), 1);
    EXPECT_EQ(txtIsStringWhite(u"\x01\x20"), 1);
    EXPECT_EQ(txtIsStringWhite(u" !"), 0);
    EXPECT_EQ(txtIsStringWhite(u"\u00a0"), 0);  // codes above 32 are not white
    EXPECT_EQ(txtIsStringWhite(TextIn()), 1);   // absent
}

}  // namespace
