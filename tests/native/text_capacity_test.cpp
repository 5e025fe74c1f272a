// Every text function that writes, into destinations of capacity 1, 2 and 3:
// nothing is read or written past them (the buffers have exactly that size,
// so AddressSanitizer sees any stray access) and they stay terminated.
#include <gtest/gtest.h>

#include <functional>

#include "builtins/text/case.h"
#include "builtins/text/cutting.h"
#include "builtins/text/format.h"
#include "builtins/text/joining.h"
#include "builtins/text/padding.h"
#include "builtins/text/search.h"
#include "builtins/text/text_helpers.h"
#include "builtins/text/transform.h"
#include "macro_harness.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct Writer {
    const char *name;
    const char16_t *init;  // the destination's text before the call (cut to the capacity)
    std::function<int32_t(char16_t *, int32_t)> call;
    const char16_t *expected[3];  // for capacities 1, 2 and 3
};

void check(const std::vector<Writer> &writers) {
    for (const Writer &w : writers)
        for (int32_t cap = 1; cap <= 3; ++cap)
            EXPECT_EQ(u8(inBuffer(cap, w.init, w.call)), u8(w.expected[cap - 1])) << w.name << " capacity " << cap;
}

TEST(TextCapacity, SmallDestinations) {
    std::string dir = scratchDir();
    std::u16string transformFile = u16(dir + "/t.txt");
    writeFile(dir + "/t.txt", "k\tvalue\t\n");
    TextIn params[5] = {TextIn(u"a"), TextIn(u"b"), TextIn(u"c"), TextIn(u"d"), TextIn(u"e")};
    auto make = [&](const char16_t *pattern, int32_t n) {
        return [=](char16_t *d, int32_t c) { return txtMakeText(d, c, TextIn(std::u16string(pattern)), params, n); };
    };
    std::u16string delimRest;
    check({
        {"LeftString", u"", [](char16_t *d, int32_t c) { return txtLeftString(u"abcdef", 3, d, c); }, {u"", u"a", u"ab"}},
        {"RightString", u"", [](char16_t *d, int32_t c) { return txtRightString(u"abcdef", 3, d, c); }, {u"", u"f", u"ef"}},
        {"MidString", u"", [](char16_t *d, int32_t c) { return txtMidString(u"abcdef", 2, 3, d, c); }, {u"", u"b", u"bc"}},
        {"FillStringLeft", u"x", [](char16_t *d, int32_t c) { return txtFillStringLeft(d, c, 5, u'*'); }, {u"", u"x", u"*x"}},
        {"FillStringRight", u"x", [](char16_t *d, int32_t c) { return txtFillStringRight(d, c, 5, u'*'); }, {u"", u"x", u"x*"}},
        {"StrCat", u"a", [](char16_t *d, int32_t c) { return txtStrCat(d, c, u"bc"); }, {u"", u"a", u"ab"}},
        {"StringToUpper", u"ab", [](char16_t *d, int32_t c) { return txtStringToUpper(d, c); }, {u"", u"A", u"AB"}},
        {"StringToLower", u"AB", [](char16_t *d, int32_t c) { return txtStringToLower(d, c); }, {u"", u"a", u"ab"}},
        {"StripControl", u"a\n", [](char16_t *d, int32_t c) { return txtStripControl(d, c); }, {u"", u"a", u"a"}},
        {"AsciiToAnsi", u"", [](char16_t *d, int32_t c) { return txtCopyText(u"abc", d, c); }, {u"", u"a", u"ab"}},
        {"StrDelim parameter", u"",
         [](char16_t *d, int32_t c) {
             char16_t s[8] = u"ab;c";
             return txtStrDelim(s, 8, d, c, u';');
         },
         {u"", u"a", u"ab"}},
        {"StrDelim string", u"a;b",
         [](char16_t *d, int32_t c) {
             char16_t p[8];
             return txtStrDelim(d, c, p, 8, u';');
         },
         {u"", u"", u""}},
        {"TrimRight", u"a  ", [](char16_t *d, int32_t c) { return txtTrimRight(d, c, u' '); }, {u"", u"a", u"a"}},
        {"TrimLeft", u"xab", [](char16_t *d, int32_t c) { return txtTrimLeft(d, c, u'x'); }, {u"", u"", u"a"}},
        {"TransformString", u"",
         [&](char16_t *d, int32_t c) { return txtTransformString(TextIn(transformFile), u"k", d, c); },
         {u"", u"v", u"va"}},
        {"MakeText1", u"", make(u"%s!", 1), {u"", u"a", u"a!"}},
        {"MakeText2", u"", make(u"%s%s", 2), {u"", u"a", u"ab"}},
        {"MakeText3", u"", make(u"%s%s%s", 3), {u"", u"a", u"ab"}},
        {"MakeText4", u"", make(u"%4s", 4), {u"", u" ", u"  "}},
        {"MakeText5", u"", make(u"%s%s%s%s%s", 5), {u"", u"a", u"ab"}},
        {"MakeTextInt", u"", [](char16_t *d, int32_t c) { return txtMakeTextInt(d, c, u"%d", 42); }, {u"", u"4", u"42"}},
        {"EncloseString", u"ab", [](char16_t *d, int32_t c) { return txtEncloseString(d, c, u'"'); }, {u"", u"a", u"\"a"}},
        {"GetSubString", u"", [](char16_t *d, int32_t c) { return txtGetSubString(u"ab\tcd", 1, d, c); }, {u"", u"c", u"cd"}},
        {"ReplaceString", u"ab", [](char16_t *d, int32_t c) { return txtReplaceString(d, c, u"b", u"XY", 0); },
         {u"", u"a", u"aX"}},
        {"DecodeString", u"%41b", [](char16_t *d, int32_t c) { return txtDecodeString(d, c); }, {u"", u"%", u"%4"}},
        {"StripLeft", u"abc", [](char16_t *d, int32_t c) { return txtStripLeft(d, c, 1); }, {u"", u"", u"b"}},
        {"StripMid", u"abc", [](char16_t *d, int32_t c) { return txtStripMid(d, c, 2, 1); }, {u"", u"a", u"a"}},
        {"StripRight", u"abc", [](char16_t *d, int32_t c) { return txtStripRight(d, c, 1); }, {u"", u"", u"a"}},
        {"MD5", u"", [](char16_t *d, int32_t c) { return txtMD5(u"abc", d, c); }, {u"", u"9", u"90"}},
        {"StripNonDigits", u"1a2", [](char16_t *d, int32_t c) { return txtStripNonDigits(d, c); }, {u"", u"1", u"1"}},
    });
}

}  // namespace
