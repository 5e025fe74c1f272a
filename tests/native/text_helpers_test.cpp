// The replace modes of the helper library that no built-in reaches (whole
// words, cut to fit, literal); the built-ins themselves are cases.
#include <gtest/gtest.h>

#include "builtins/text/text_helpers.h"
#include "helperlib/kelvane_strings.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct ReplaceCase {
    const char16_t *text;
    const char16_t *find, *replace;
    int32_t mode, cap;
    int32_t result;
    const char16_t *expected;
};

TEST(TextHelpers, ReplaceModesSelectTheirRule) {
    const ReplaceCase cases[] = {
        {u"a-b-c", u"-", u"+", 0, 20, 1, u"a+b-c"},                 // first only
        {u"a-b-c", u"-", u"+", kReplaceAll, 20, 2, u"a+b+c"},
        {u"aaa", u"aa", u"b", kReplaceAll, 20, 1, u"ba"},            // left to right, no overlap
        {u"abc", u"b", u"bb", kReplaceAll, 20, 1, u"abbc"},          // never inside a replacement
        {u"aXbxc", u"x", u"-", kReplaceAll | kReplaceIgnoreCase, 20, 2, u"a-b-c"},
        {u"\u00c4rger \u00e4rger", u"\u00e4rger", u"x", kReplaceAll | kReplaceIgnoreCase, 20, 2, u"x x"},
        {u"cat catalog cat_x cat", u"cat", u"dog", kReplaceAll | kReplaceWholeWords, 40, 2,
         u"dog catalog cat_x dog"},
        {u"abcdef", u"c", u"XYZW", kReplaceAll, 6, -1, u"abcde"},    // does not fit: refused
        {u"abcdef", u"c", u"XYZW", kReplaceAll | kReplaceCutToFit, 6, 1, u"abXYZ"},
        {u"a b", u" ", u"\\t", kReplaceAll, 20, 1, u"a\tb"},          // escapes
        {u"a b", u" ", u"\\t", kReplaceAll | kReplaceLiteral, 20, 1, u"a\\tb"},
        {u"a\\b", u"\\\\", u"/", kReplaceAll, 20, 1, u"a/b"},
        {u"abc", u"", u"x", kReplaceAll, 20, 0, u"abc"},             // empty find
        {u"abc", u"abc", u"", kReplaceAll, 20, 1, u""},
    };
    for (const ReplaceCase &c : cases) {
        int32_t r = 0;
        std::u16string got = inBuffer(c.cap, c.text, [&](char16_t *s, int32_t cap) {
            return Kelvane_ReplaceStringW(s, cap, c.find, c.replace, c.mode);
        }, &r);
        EXPECT_EQ(r, c.result) << u8(c.text) << " mode " << c.mode;
        EXPECT_EQ(u8(got), u8(c.expected)) << u8(c.text) << " mode " << c.mode;
    }
}

}  // namespace
