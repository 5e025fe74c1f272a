// Cutting texts: MidString, LeftString, RightString and the Strip functions.
#include <gtest/gtest.h>

#include "builtins/text/cutting.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct MidCase {
    const char16_t *src;
    int32_t pos, chars, cap;
    const char16_t *expected;
};

TEST(TextCutting, MidStringTakesPositionsAndCountsWithinCapacity) {
    const MidCase cases[] = {
        {u"abcdef", 0, 2, 20, u"ab"},    // Pos 0 counts as 1
        {u"abcdef", -5, 3, 20, u"abc"},  // and so does any Pos below 1
        {u"abcdef", 5, 10, 20, u"ef"},   // Chars beyond the end
        {u"abc", 7, 1, 20, u""},         // Pos beyond the end
        {u"abc", 4, 1, 20, u""},         // Pos just after the end
        {u"abcdef", 2, 0, 20, u""},
        {u"abcdef", 2, -3, 20, u""},
        {u"abcdef", 2, 3, 20, u"bcd"},
        {u"abcdef", 1, 10, 4, u"abc"},   // the capacity cuts
        {u"abcdef", 3, 10, 1, u""},
        {u"abcdef", 3, 10, 2, u"c"},
        {u"abcdef", 2147483647, 2147483647, 20, u""},
        {u"abcdef", 1, 2147483647, 20, u"abcdef"},
    };
    for (const MidCase &c : cases) {
        std::u16string got = inBuffer(c.cap, u"zzzz", [&](char16_t *d, int32_t cap) {
            return txtMidString(TextIn(std::u16string(c.src)), c.pos, c.chars, d, cap);
        });
        EXPECT_EQ(u8(got), u8(c.expected)) << u8(c.src) << " pos " << c.pos << " chars " << c.chars;
    }
}

TEST(TextCutting, LeftAndRightString) {
    EXPECT_EQ(inBuffer(4, u"", [](char16_t *d, int32_t cap) { return txtLeftString(u"abcdef", 10, d, cap); }),
              u"abc");
    EXPECT_EQ(inBuffer(9, u"", [](char16_t *d, int32_t cap) { return txtLeftString(u"abcdef", 2, d, cap); }),
              u"ab");
    EXPECT_EQ(inBuffer(9, u"x", [](char16_t *d, int32_t cap) { return txtRightString(u"abcdef", 2, d, cap); }),
              u"ef");
    EXPECT_EQ(inBuffer(9, u"x", [](char16_t *d, int32_t cap) { return txtRightString(u"abcdef", 0, d, cap); }),
              u"");
    EXPECT_EQ(inBuffer(9, u"x", [](char16_t *d, int32_t cap) { return txtRightString(u"abc", 10, d, cap); }),
              u"abc");
    // The capacity takes the last units that fit, not the first.
    EXPECT_EQ(inBuffer(3, u"x", [](char16_t *d, int32_t cap) { return txtRightString(u"abcdef", 4, d, cap); }),
              u"ef");
}

TEST(TextCutting, SourceMayBeTheDestination) {
    EXPECT_EQ(inBuffer(10, u"abcdef", [](char16_t *d, int32_t cap) {
                  return txtMidString(TextIn(d, cap), 3, 3, d, cap);
              }),
              u"cde");
    EXPECT_EQ(inBuffer(10, u"abcdef", [](char16_t *d, int32_t cap) {
                  return txtRightString(TextIn(d, cap), 4, d, cap);
              }),
              u"cdef");
}

TEST(TextCutting, UnterminatedSourceIsReadOnlyUpToItsCapacity) {
    std::unique_ptr<char16_t[]> src(new char16_t[3]{u'a', u'b', u'c'});
    EXPECT_EQ(inBuffer(10, u"", [&](char16_t *d, int32_t cap) { return txtMidString(TextIn(src.get(), 3), 2, 9, d, cap); }),
              u"bc");
    EXPECT_EQ(inBuffer(10, u"", [&](char16_t *d, int32_t cap) { return txtRightString(TextIn(src.get(), 3), 9, d, cap); }),
              u"abc");
}

struct StripCase {
    const char16_t *text;
    int32_t pos, chars;
    const char16_t *expected;
};

TEST(TextCutting, StripMidRemovesAStretch) {
    const StripCase cases[] = {
        {u"abcdef", 2, 3, u"aef"},
        {u"abcdef", 5, 9, u"abcd"},   // the stretch reaches past the end
        {u"abcdef", 5, 2, u"abcd"},   // ends exactly at the end
        {u"abcdef", 0, 2, u"cdef"},   // Pos below 1 counts as 1
        {u"abcdef", 7, 2, u"abcdef"}, // Pos beyond the end
        {u"abcdef", 6, 1, u"abcde"},
        {u"abcdef", 2, 0, u"abcdef"},
        {u"abcdef", 2, -2, u"abcdef"},  // negative counts change nothing
        {u"abcdef", 1, 2147483647, u""},
        {u"", 1, 1, u""},
    };
    for (const StripCase &c : cases) {
        std::u16string got = inBuffer(10, c.text, [&](char16_t *s, int32_t cap) {
            return txtStripMid(s, cap, c.pos, c.chars);
        });
        EXPECT_EQ(u8(got), u8(c.expected)) << u8(c.text) << " " << c.pos << " " << c.chars;
    }
}

TEST(TextCutting, StripLeftAndRight) {
    auto left = [](const char16_t *t, int32_t n) {
        return inBuffer(10, t, [&](char16_t *s, int32_t cap) { return txtStripLeft(s, cap, n); });
    };
    auto right = [](const char16_t *t, int32_t n) {
        return inBuffer(10, t, [&](char16_t *s, int32_t cap) { return txtStripRight(s, cap, n); });
    };
    EXPECT_EQ(left(u"abcdef", 2), u"cdef");
    EXPECT_EQ(left(u"abcdef", 9), u"");
    EXPECT_EQ(left(u"abcdef", -1), u"abcdef");
    EXPECT_EQ(right(u"abc", 9), u"");
    EXPECT_EQ(right(u"abcdef", 2), u"abcd");
    EXPECT_EQ(right(u"abcdef", 0), u"abcdef");
    EXPECT_EQ(right(u"abcdef", -4), u"abcdef");
}

TEST(TextCutting, StripOnAFullVectorStaysInside) {
    // Every element filled, no terminator: nothing may be touched past it.
    std::unique_ptr<char16_t[]> s(new char16_t[4]{u'a', u'b', u'c', u'd'});
    txtStripRight(s.get(), 4, 0);
    EXPECT_EQ(std::u16string(s.get(), 4), u"abcd");
    txtStripMid(s.get(), 4, 2, 1);
    EXPECT_EQ(std::u16string(s.get()), u"acd");
}

TEST(TextCutting, StripControlRemovesOnlyTrailingControlCharacters) {
    auto strip = [](const std::u16string &t) {
        return inBuffer(20, t, [](char16_t *s, int32_t cap) { return txtStripControl(s, cap); });
    };
    EXPECT_EQ(strip(u"line\r\n"), u"line");
    EXPECT_EQ(strip(u"a\tb "), u"a\tb ");  // a blank stops the walk
    EXPECT_EQ(strip(u"a\tb\x01\x1F"), u"a\tb");
    EXPECT_EQ(strip(u"\r\n"), u"");
    EXPECT_EQ(strip(u"x \n"), u"x ");
}

TEST(TextCutting, StripNonDigitsKeepsDigitsInOrder) {
    auto strip = [](const std::u16string &t) {
        return inBuffer(20, t, [](char16_t *s, int32_t cap) { return txtStripNonDigits(s, cap); });
    };
    EXPECT_EQ(strip(u"+49 (711) 47-11"), u"4971147" u"11");
    EXPECT_EQ(strip(u"abc"), u"");
    EXPECT_EQ(strip(u"\u0661\u0662 3"), u"3");  // only "0" to "9" count
}

}  // namespace
