// The pure text helpers of base/: UTF-8 decoding (shared by file names, the
// stores, the streams and the code pages), white space, byte-order marks and
// the Latin case rules.
#include <gtest/gtest.h>

#include "base/byte_order_mark.h"
#include "base/case_rules.h"
#include "base/codepage.h"
#include "base/u16.h"
#include "base/utf8.h"

using namespace mx;

namespace {

std::u16string viaCodePage(const std::string &bytes) {
    char16_t out[64] = {};
    int32_t n = cpBytesToWide(kCodePageUtf8, bytes.data(), int32_t(bytes.size()), out, 64);
    return std::u16string(out, size_t(n));
}

}  // namespace

TEST(BaseUtf8, OnlyShortestFormsDecodeAndEachBadSequenceIsOneReplacement) {
    const struct {
        std::string bytes;
        std::u16string text;
        bool valid;
    } cases[] = {
        {"\xC0\xAF", u"\uFFFD\uFFFD", false},             // over-long "/" is no slash
        {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD", false},   // over-long in three bytes
        {"\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD", false},
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD", false},   // an encoded surrogate
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD", false},  // above U+10FFFF
        {"a\xE2\x82", u"a\uFFFD", false},                 // broken off at the end
        {"\xE2\x82x", u"\uFFFDx", false},                 // broken off by a plain byte
        {"\x80\xBF", u"\uFFFD\uFFFD", false},
        {"a\xE2\x82\xAC" "b", u"a\u20ACb", true},
        {"\xC2\x80\xDF\xBF", u"\u0080\u07FF", true},
        {"\xF0\x9F\x98\x80", u"\U0001F600", true},
        {"\xF4\x8F\xBF\xBF", u"\U0010FFFF", true},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.bytes);
        EXPECT_EQ(fromUtf8(c.bytes), c.text);
        EXPECT_EQ(viaCodePage(c.bytes), c.text);
        EXPECT_EQ(utf8Valid(c.bytes), c.valid);
        if (c.valid) {
            EXPECT_EQ(toUtf8(c.text.c_str(), int64_t(c.text.size())), c.bytes);
        }
    }
}

TEST(BaseUtf8, DecodeReportsLengthAndTruncation) {
    auto bytes = [](const char *s) { return reinterpret_cast<const unsigned char *>(s); };
    Utf8Read r = utf8Decode(bytes("\xE2\x82"), 2);
    EXPECT_FALSE(r.valid);
    EXPECT_TRUE(r.truncated);
    EXPECT_EQ(r.length, 2);
    r = utf8Decode(bytes("\xE2\x41"), 2);
    EXPECT_FALSE(r.truncated);
    EXPECT_EQ(r.length, 1);  // the "A" starts the next sequence
    r = utf8Decode(bytes("\xC3\xA4"), 2);
    EXPECT_TRUE(r.valid);
    EXPECT_EQ(r.cp, 0xE4u);
    EXPECT_EQ(r.length, 2);
}

TEST(BaseText, WhiteTextMeansOnlyCodesOneToThirtyTwo) {
    EXPECT_TRUE(u16IsWhiteText(nullptr));
    EXPECT_TRUE(u16IsWhiteText(u""));
    EXPECT_TRUE(u16IsWhiteText(u" \t\r\n\x01\x1F "));
    EXPECT_FALSE(u16IsWhiteText(u" !"));
    EXPECT_FALSE(u16IsWhiteText(u"\x7F"));
    EXPECT_FALSE(u16IsWhiteText(u"\xA0"));  // no-break space is not white
    EXPECT_TRUE(u16IsWhiteText(u"  x", 2));  // only the first n units count
    EXPECT_FALSE(u16IsWhiteText(u"  x", 3));
}

TEST(BaseText, ByteOrderMarks) {
    EXPECT_EQ(bomDetect(std::string("\xEF\xBB\xBFx")), ByteOrderMark::kUtf8);
    EXPECT_EQ(bomDetect(std::string("\xEF\xBB")), ByteOrderMark::kNone);
    EXPECT_EQ(bomDetect(std::string("\xFF\xFE")), ByteOrderMark::kUtf16le);
    EXPECT_EQ(bomDetect(std::string("\xFE\xFF")), ByteOrderMark::kNone);
    EXPECT_EQ(bomLength(ByteOrderMark::kUtf8), 3u);
    EXPECT_EQ(bomLength(ByteOrderMark::kUtf16le), 2u);
    EXPECT_EQ(fromUtf16le(std::string("\xFF\xFE" "a\0\xAC\x20z", 7), 2), u"a\u20AC");  // odd byte dropped
}

TEST(BaseText, LatinCaseRulesPairBothWaysAndFoldNames) {
    for (char16_t c = 0; c < kLatinCaseEnd; ++c) {
        char16_t up = caseLatinUpper(c), low = caseLatinLower(c);
        if (up != c) {
            EXPECT_EQ(caseLatinLower(up), c) << int(c);
        }
        if (low != c) {
            EXPECT_EQ(caseLatinUpper(low), c) << int(c);
        }
    }
    EXPECT_EQ(caseLatinUpper(u'\u00FF'), u'\u0178');
    EXPECT_EQ(caseLatinUpper(u'\u00DF'), u'\u00DF');  // no capital sharp s
    EXPECT_EQ(caseLatinUpper(u'\u0131'), u'\u0131');  // dotless i stays
    EXPECT_EQ(caseLatinUpper(u'\u013A'), u'\u0139');  // odd capitals from U+0139
    EXPECT_TRUE(caseEqualNames(u"Stra\u00DFe \u00E4\u0133", u"STRA\u00DFE \u00C4\u0132"));
    EXPECT_FALSE(caseEqualNames(u"stra\u00DFe", u"STRASSE"));
    EXPECT_FALSE(caseEqualNames(u"\u0131", u"I"));
    EXPECT_FALSE(caseEqualNames(u"\u03C3", u"\u03A3"));  // above Latin only the same unit matches
}
