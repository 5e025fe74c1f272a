// ReplaceString, DecodeString, CreateHash and MD5 with the helper library.
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

TEST(TextHelpers, ReplaceStringReplacesAllLiterallyWithinTheCapacity) {
    EXPECT_EQ(inBuffer(20, u"1.000.000", [](char16_t *s, int32_t c) { return txtReplaceString(s, c, u".", u"", 0); }),
              u"1000000");
    EXPECT_EQ(inBuffer(8, u"a\\nb a", [](char16_t *s, int32_t c) { return txtReplaceString(s, c, u"a", u"xyz", 0); }),
              u"xyz\\nb ");
    EXPECT_EQ(inBuffer(20, u"Ab ab", [](char16_t *s, int32_t c) { return txtReplaceString(s, c, u"ab", u"-", 1); }),
              u"- -");
    // Find may be the text itself.
    EXPECT_EQ(inBuffer(20, u"ab", [](char16_t *s, int32_t c) { return txtReplaceString(s, c, TextIn(s, c), u"x", 0); }),
              u"x");
}

TEST(TextHelpers, DecodeStringReadsPercentEscapes) {
    struct {
        const char16_t *text, *expected;
        int32_t count;
    } cases[] = {
        {u"a%20b", u"a b", 1},
        {u"%C3%A4%e2%82%ac", u"\u00e4\u20ac", 2},              // UTF-8 sequences
        {u"%F0%9F%98%80", u"\U0001F600", 1},                   // four bytes, a surrogate pair
        {u"%E4rger", u"\u00e4rger", 1},                        // a lone byte keeps its code
        {u"%C3%28", u"\u00c3(", 2},                            // broken sequence: bytes one by one
        {u"%C0%AF", u"\u00c0\u00af", 2},                       // overlong forms are no UTF-8
        {u"%ED%A0%80", u"\u00ed\u00a0\u0080", 3},              // nor are surrogates
        {u"100%", u"100%", 0},                                 // cut off
        {u"%4", u"%4", 0},
        {u"%zz+", u"%zz+", 0},                                 // "+" stays
        {u"%00x", u"%00x", 0},                                 // a zero would end the text
    };
    for (auto &c : cases) {
        int32_t r = 0;
        std::u16string got = inBuffer(40, c.text, [](char16_t *s, int32_t cap) { return txtDecodeString(s, cap); }, &r);
        EXPECT_EQ(u8(got), u8(c.expected)) << u8(c.text);
        EXPECT_EQ(r, c.count) << u8(c.text);
    }
    std::unique_ptr<char16_t[]> full(new char16_t[4]{u'%', u'4', u'1', u'%'});
    EXPECT_EQ(txtDecodeString(full.get(), 4), 1);  // terminated at cap - 1 first
    EXPECT_EQ(std::u16string(full.get()), u"A");
}

TEST(TextHelpers, CreateHashIsStableAndBounded) {
    // FNV-1a of the UTF-8 bytes: published values of the 32-bit function.
    EXPECT_EQ(Kelvane_CreateHashW(u"", 2147483647), int32_t(2166136261u % 2147483647u));
    EXPECT_EQ(Kelvane_CreateHashW(u"a", 2147483647), int32_t(0xe40c292cu % 2147483647u));
    EXPECT_EQ(Kelvane_CreateHashW(u"foobar", 2147483647), int32_t(0xbf9cf968u % 2147483647u));
    for (int32_t bound : {1, 2, 7, 1000}) {
        int32_t h = txtCreateHash(u"some text", bound);
        EXPECT_GE(h, 0);
        EXPECT_LT(h, bound);
    }
    EXPECT_EQ(txtCreateHash(u"x", 0), 0);
    EXPECT_EQ(txtCreateHash(u"x", -5), 0);
    EXPECT_NE(txtCreateHash(u"\u00e4", 1 << 30), txtCreateHash(u"\u00c4", 1 << 30));
}

TEST(TextHelpers, Md5MatchesTheRfcTestSuite) {
    struct {
        const char16_t *text;
        const char16_t *digest;
    } suite[] = {
        {u"a", u"0cc175b9c0f1b6a831c399e269772661"},
        {u"abc", u"900150983cd24fb0d6963f7d28e17f72"},
        {u"message digest", u"f96b697d7cb7938d525a2f31aaf161d0"},
        {u"abcdefghijklmnopqrstuvwxyz", u"c3fcd3d76192e4007dfb496cca67e13b"},
        {u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789",
         u"d174ab98d277d9f5a5611c2c9f419d9f"},
        {u"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
         u"57edf4a22be3c955ac49da2e2107b67a"},
    };
    for (auto &c : suite)
        EXPECT_EQ(inBuffer(40, u"", [&](char16_t *d, int32_t cap) { return txtMD5(TextIn(std::u16string(c.text)), d, cap); }),
                  c.digest);
    char digest[33];
    EXPECT_EQ(Kelvane_MD5(u"", digest, 33), 0);
    EXPECT_STREQ(digest, "d41d8cd98f00b204e9800998ecf8427e");  // the empty text of the suite
}

TEST(TextHelpers, Md5AndHashAreOverUtf8Bytes) {
    const struct {
        const char16_t *text;
        const char *digest;
    } cases[] = {
        {u"\u00e4", "8419b71c87a225a2c70b50486fbee545"},        // C3 A4
        {u"\u20ac", "bca53fde466a76b7bee3e18997e94a7a"},        // E2 82 AC
        {u"\U0001F600", "2a02eac39d716a70ecf37579185927b6"},    // a surrogate pair: F0 9F 98 80
        {u"Stra\u00dfe", "a763ca073cfda1fce8a14f2f0cc84591"},
    };
    for (auto &c : cases) {
        char digest[33];
        EXPECT_EQ(Kelvane_MD5(c.text, digest, 33), 0);
        EXPECT_STREQ(digest, c.digest) << u8(c.text);
    }
    EXPECT_EQ(Kelvane_CreateHashW(u"\u00e4", 2147483647), int32_t(0x199de0e2u % 2147483647u));
    EXPECT_EQ(Kelvane_CreateHashW(u"\U0001F600", 2147483647), int32_t(0x33a29608u % 2147483647u));
    char small[32];
    EXPECT_EQ(Kelvane_MD5(u"a", small, 32), -1);
    EXPECT_STREQ(small, "");
}

TEST(TextHelpers, Md5OfWhiteTextIsEmptyAndCutToTheCapacity) {
    EXPECT_EQ(inBuffer(40, u"old", [](char16_t *d, int32_t c) { return txtMD5(u"  ", d, c); }), u"");
    EXPECT_EQ(inBuffer(40, u"old", [](char16_t *d, int32_t c) { return txtMD5(u"", d, c); }), u"");
    EXPECT_EQ(inBuffer(5, u"", [](char16_t *d, int32_t c) { return txtMD5(u"a", d, c); }), u"0cc1");
    // The digest may replace the text it is taken of.
    EXPECT_EQ(inBuffer(40, u"abc", [](char16_t *d, int32_t c) { return txtMD5(TextIn(d, c), d, c); }),
              u"900150983cd24fb0d6963f7d28e17f72");
}

}  // namespace
