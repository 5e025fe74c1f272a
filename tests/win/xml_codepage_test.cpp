// The code-page conversions of the Windows build (platform/win32/codepage.cpp,
// compiled into this test) against the library's own tables (base/codepage):
// the system's conversions for the code pages of XML files agree with the
// tables wherever a code page holds the character, and differ only by
// best-fit characters; bad arguments and small buffers give 0.
#include <gtest/gtest.h>

#include <string>

#include "base/codepage.h"
#include "platform/codepage.h"

namespace {

std::string toPage(uint32_t page, const std::u16string &text) {
    char out[600];
    return std::string(out, size_t(mx::mxp_WideToCodePage(page, text.c_str(), int(text.size()), out, 600)));
}

std::u16string fromPage(uint32_t page, const std::string &bytes) {
    char16_t out[600];
    return std::u16string(out, size_t(mx::mxp_CodePageToWide(page, bytes.data(), int(bytes.size()), out, 600)));
}

TEST(WinXmlCodePage, EveryByteOfTheEightBitPagesReadsAsTheTablesSayAndWritesBack) {
    std::string bytes;
    for (int b = 1; b < 256; ++b) bytes += char(b);
    for (uint32_t page : {28605u, 28591u, 1252u}) {
        SCOPED_TRACE(page);
        char16_t table[256];
        ASSERT_EQ(mx::cpBytesToWide(page, bytes.data(), 255, table, 256), 255);
        std::u16string text = fromPage(page, bytes);
        EXPECT_EQ(text, std::u16string(table, 255));
        EXPECT_EQ(toPage(page, text), bytes);
    }
    // spot checks of the tables themselves: euro and S caron in each page
    EXPECT_EQ(fromPage(28605, "\xA4\xA6") + fromPage(28591, "\xA4\xA6") + fromPage(1252, "\x80\x8A"),
              u"\u20AC\u0160\u00A4\u00A6\u20AC\u0160");
}

TEST(WinXmlCodePage, CharactersWithoutAPlaceGetABestFitOrAQuestionMark) {
    // the tables: "?" for all of these but the one the page holds
    const std::u16string text = u"\u0416\U0001F600\xD800\u00a4\u0100\u2013\uFF21";
    EXPECT_EQ(toPage(28605, text), "????""?A-A");
    EXPECT_EQ(toPage(28591, text), "????\xA4""A-A");
    EXPECT_EQ(toPage(1252, text), "????\xA4""A\x96""A");
}

TEST(WinXmlCodePage, Utf8BothWaysWithReplacementCharacters) {
    EXPECT_EQ(toPage(65001, u"\u00e4\u20ac\U0001F600"), "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(toPage(65001, u"a\xD800z"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(fromPage(65001, "\xC3\xA4\xF0\x9F\x98\x80"), u"\u00e4\U0001F600");
    // a stray continuation, a cut-off sequence and an over-long form give
    // the same replacements as the tables (encoded surrogates may give
    // fewer here: the count is the system's)
    EXPECT_EQ(fromPage(65001, "a\x80z") + fromPage(65001, "a\xE2\x82z") + fromPage(65001, "\xC0\xAF"),
              u"a\uFFFDza\uFFFDz\uFFFD\uFFFD");
    std::u16string surrogate = fromPage(65001, "\xED\xA0\x80");
    EXPECT_FALSE(surrogate.empty());
    EXPECT_EQ(surrogate.find_first_not_of(u'\uFFFD'), std::u16string::npos);
}

TEST(WinXmlCodePage, BadArgumentsAndSmallBuffersGiveZero) {
    char out[4];
    char16_t wide[4];
    EXPECT_EQ(mx::mxp_WideToCodePage(437, u"a", 1, out, 4), 0);
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"a", 0, out, 4), 0);
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"abcde", 5, out, 4), 0);
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"abcde", 5, nullptr, 0), 5);
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"\u20ac", 1, nullptr, 0), 3);
    EXPECT_EQ(mx::mxp_CodePageToWide(1250, "a", 1, wide, 4), 0);
    EXPECT_EQ(mx::mxp_CodePageToWide(28591, "abcde", 5, wide, 4), 0);
    EXPECT_EQ(mx::mxp_CodePageToWide(65001, "\xE2\x82\xAC", 3, nullptr, 0), 1);
}

}  // namespace
