// Padding, trimming, appending and enclosing.
#include <gtest/gtest.h>

#include "builtins/text/joining.h"
#include "builtins/text/padding.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct FillCase {
    bool left;
    const char16_t *text;
    int32_t lng;
    char16_t fill;
    int32_t cap;
    const char16_t *expected;
};

TEST(TextPadding, FillPadsOrCutsOnItsSide) {
    const FillCase cases[] = {
        {false, u"ab", 6, u'*', 20, u"ab****"},
        {false, u"abcdefgh", 6, u'*', 20, u"abcdef"},
        {true, u"42", 6, u'0', 20, u"000042"},
        {true, u"abcdefgh", 6, u'0', 20, u"cdefgh"},  // keeps the last Lng
        {false, u"ab", 10, u'-', 5, u"ab--"},          // never past cap - 1
        {true, u"ab", 10, u'-', 5, u"--ab"},
        {true, u"abcdef", 10, u'-', 4, u"abc"},         // cut to the capacity first
        {false, u"ab", -3, u'*', 20, u""},              // a negative length counts as 0
        {true, u"ab", -3, u'*', 20, u""},
        {false, u"ab", 5, 0, 20, u"ab"},                // a zero fill ends the text
        {true, u"", 3, u'x', 20, u"xxx"},
    };
    for (const FillCase &c : cases) {
        std::u16string got = inBuffer(c.cap, c.text, [&](char16_t *s, int32_t cap) {
            return c.left ? txtFillStringLeft(s, cap, c.lng, c.fill) : txtFillStringRight(s, cap, c.lng, c.fill);
        });
        EXPECT_EQ(u8(got), u8(c.expected)) << (c.left ? "left " : "right ") << u8(c.text) << " " << c.lng;
    }
}

TEST(TextPadding, TrimRemovesOneCharacterOnOneSide) {
    auto right = [](const char16_t *t, char16_t c) {
        return inBuffer(20, t, [&](char16_t *s, int32_t cap) { return txtTrimRight(s, cap, c); });
    };
    auto left = [](const char16_t *t, char16_t c) {
        return inBuffer(20, t, [&](char16_t *s, int32_t cap) { return txtTrimLeft(s, cap, c); });
    };
    EXPECT_EQ(right(u"ab  ", u' '), u"ab");
    EXPECT_EQ(right(u"  ", u' '), u"");
    EXPECT_EQ(right(u"ab \t", u' '), u"ab \t");
    EXPECT_EQ(right(u"ab", 0), u"ab");
    EXPECT_EQ(left(u"0042", u'0'), u"42");
    EXPECT_EQ(left(u"0000", u'0'), u"");
    EXPECT_EQ(left(u"0042", 0), u"0042");
    EXPECT_EQ(left(u" x ", u' '), u"x ");
}

TEST(TextPadding, TrimOnAFullVectorTerminatesInside) {
    std::unique_ptr<char16_t[]> s(new char16_t[4]{u'a', u'b', u' ', u' '});
    txtTrimRight(s.get(), 4, u' ');  // the last unit becomes the terminator first
    EXPECT_EQ(std::u16string(s.get()), u"ab");
    std::unique_ptr<char16_t[]> t(new char16_t[4]{u'0', u'1', u'2', u'3'});
    txtTrimLeft(t.get(), 4, u'0');
    EXPECT_EQ(std::u16string(t.get()), u"123");
}

TEST(TextPadding, StrCatAppendsWhileThereIsRoom) {
    int32_t r = -1;
    EXPECT_EQ(inBuffer(10, u"ab", [](char16_t *s, int32_t cap) { return txtStrCat(s, cap, u"cd"); }, &r), u"abcd");
    EXPECT_EQ(r, 1);
    EXPECT_EQ(inBuffer(5, u"ab", [](char16_t *s, int32_t cap) { return txtStrCat(s, cap, u"cdef"); }, &r), u"abcd");
    EXPECT_EQ(r, 1);  // cut, but something was appended
    EXPECT_EQ(inBuffer(3, u"ab", [](char16_t *s, int32_t cap) { return txtStrCat(s, cap, u"cd"); }, &r), u"ab");
    EXPECT_EQ(r, 0);  // already full
    EXPECT_EQ(inBuffer(10, u"ab", [](char16_t *s, int32_t cap) { return txtStrCat(s, cap, u""); }, &r), u"ab");
    EXPECT_EQ(r, 1);
    // Appending a text to itself.
    EXPECT_EQ(inBuffer(10, u"abc", [](char16_t *s, int32_t cap) { return txtStrCat(s, cap, TextIn(s, cap)); }, &r),
              u"abcabc");
    std::unique_ptr<char16_t[]> full(new char16_t[2]{u'x', u'y'});
    EXPECT_EQ(txtStrCat(full.get(), 2, u"z"), 0);
    EXPECT_EQ(std::u16string(full.get(), 2), u"xy");
}

TEST(TextPadding, CopyTextIsABoundedCopy) {
    int32_t r = 0;
    EXPECT_EQ(inBuffer(4, u"", [](char16_t *d, int32_t cap) { return txtCopyText(u"\u00e4bcde", d, cap); }, &r),
              u"\u00e4bc");
    EXPECT_EQ(r, 1);
}

TEST(TextPadding, EncloseStringPutsTheCharacterAround) {
    auto enclose = [](int32_t cap, const char16_t *t, char16_t c) {
        return inBuffer(cap, t, [&](char16_t *s, int32_t n) { return txtEncloseString(s, n, c); });
    };
    EXPECT_EQ(enclose(10, u"abc", u'"'), u"\"abc\"");
    EXPECT_EQ(enclose(2, u"a", u'"'), u"a");     // capacity below 3: unchanged
    EXPECT_EQ(enclose(3, u"ab", u'"'), u"\"a");   // cut like MakeText
    EXPECT_EQ(enclose(4, u"abc", u'\''), u"'ab");
    EXPECT_EQ(enclose(5, u"ab", u'*'), u"*ab*");
    EXPECT_EQ(enclose(10, u"", u'#'), u"##");
    EXPECT_EQ(enclose(10, u"ab", 0), u"ab");     // the zero character adds nothing
}

}  // namespace
