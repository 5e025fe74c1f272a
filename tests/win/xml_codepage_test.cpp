// The code-page conversions of the Windows build (platform/win32/codepage.cpp,
// compiled into this test): the system's conversions for the four code
// pages of XML files agree with the native tables wherever a code page
// holds the character, and differ only by best-fit characters.
#include <gtest/gtest.h>

#include <string>

#include "platform/codepage.h"

namespace {

std::string toPage(uint32_t page, const std::u16string &text) {
    char out[600];
    int n = mx::mxp_WideToCodePage(page, text.c_str(), int(text.size()), out, 600);
    return std::string(out, size_t(n));
}

std::u16string fromPage(uint32_t page, const std::string &bytes) {
    char16_t out[600];
    int n = mx::mxp_CodePageToWide(page, bytes.data(), int(bytes.size()), out, 600);
    return std::u16string(out, size_t(n));
}

// Bytes 0x80 to 0xFF as the native tables read them: Latin-1 with the
// listed exceptions.
std::u16string upperHalf(const std::vector<std::pair<int, char16_t>> &exceptions) {
    std::u16string s;
    for (int b = 0x80; b < 0x100; ++b) s += char16_t(b);
    for (auto &e : exceptions) s[size_t(e.first - 0x80)] = e.second;
    return s;
}

}  // namespace

TEST(WinXmlCodePage, EveryByteOfTheEightBitPagesReadsAndWritesBack) {
    const std::vector<std::pair<int, char16_t>> latin9 = {
        {0xA4, 0x20AC}, {0xA6, 0x0160}, {0xA8, 0x0161}, {0xB4, 0x017D},
        {0xB8, 0x017E}, {0xBC, 0x0152}, {0xBD, 0x0153}, {0xBE, 0x0178}};
    const std::vector<std::pair<int, char16_t>> cp1252 = {
        {0x80, 0x20AC}, {0x82, 0x201A}, {0x83, 0x0192}, {0x84, 0x201E}, {0x85, 0x2026}, {0x86, 0x2020},
        {0x87, 0x2021}, {0x88, 0x02C6}, {0x89, 0x2030}, {0x8A, 0x0160}, {0x8B, 0x2039}, {0x8C, 0x0152},
        {0x8E, 0x017D}, {0x91, 0x2018}, {0x92, 0x2019}, {0x93, 0x201C}, {0x94, 0x201D}, {0x95, 0x2022},
        {0x96, 0x2013}, {0x97, 0x2014}, {0x98, 0x02DC}, {0x99, 0x2122}, {0x9A, 0x0161}, {0x9B, 0x203A},
        {0x9C, 0x0153}, {0x9E, 0x017E}, {0x9F, 0x0178}};
    struct Page {
        uint32_t id;
        std::u16string upper;
    } pages[] = {{28605, upperHalf(latin9)}, {28591, upperHalf({})}, {1252, upperHalf(cp1252)}};
    std::string bytes;
    for (int b = 1; b < 256; ++b) bytes += char(b);
    for (const Page &p : pages) {
        SCOPED_TRACE(p.id);
        std::u16string want;
        for (int b = 1; b < 0x80; ++b) want += char16_t(b);
        want += p.upper;
        std::u16string text = fromPage(p.id, bytes);
        EXPECT_EQ(text, want);
        EXPECT_EQ(toPage(p.id, text), bytes);
    }
}

TEST(WinXmlCodePage, CharactersWithoutAPlaceGetABestFitOrAQuestionMark) {
    // native tables: "?" for all of these but the one the page holds
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
    // the same replacements as on the native build (encoded surrogates may
    // give fewer here: the count is the system's)
    EXPECT_EQ(fromPage(65001, "a\x80z"), u"a\uFFFDz");
    EXPECT_EQ(fromPage(65001, "a\xE2\x82z"), u"a\uFFFDz");
    EXPECT_EQ(fromPage(65001, "\xC0\xAF"), u"\uFFFD\uFFFD");
    std::u16string surrogate = fromPage(65001, "\xED\xA0\x80");
    EXPECT_GE(surrogate.size(), 1u);
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
