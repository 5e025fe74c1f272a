// Encodings: names, the native code-page tables (checked against iconv),
// EncodeText, DecodeText and the character reference rules.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "base/u16.h"
#include "platform/codepage.h"
#include "xml/xml_alloc.h"
#include "xml/xml_encoding.h"
#include "xml_test_util.h"

using namespace mx::xml;

namespace {

std::string encode(XmlEncoding e, const std::u16string &text, int32_t *code = nullptr) {
    XmlDocument d{nullptr, e, ' '};
    char *bytes = nullptr;
    int32_t n = -1;
    int32_t r = EncodeText(&d, text.c_str(), int32_t(text.size()), &bytes, &n);
    if (code) *code = r;
    std::string out = bytes ? std::string(bytes, size_t(n)) : std::string("<absent>");
    xmlFree(bytes);
    return out;
}

std::u16string decode(XmlEncoding e, const std::string &bytes, int32_t *code = nullptr) {
    XmlDocument d{nullptr, e, ' '};
    char16_t *text = nullptr;
    int32_t r = DecodeText(&d, bytes.data(), int32_t(bytes.size()), &text);
    if (code) *code = r;
    std::u16string out = text ? std::u16string(text) : u"<absent>";
    xmlFree(text);
    return out;
}

std::u16string references(std::u16string text) {
    int32_t n = DecodeReferences(text.data(), int32_t(text.size()));
    return text.substr(0, size_t(n));
}

}  // namespace

TEST(XmlEncoding, NamesAreMatchedWithoutCaseInRuleOrder) {
    struct Case {
        const char16_t *name;
        XmlEncoding id;
    } cases[] = {
        {nullptr, XMLENC_ISO8859_15}, {u"", XMLENC_ISO8859_15},
        {u" \t", XMLENC_ISO8859_15},  {u"iso-8859-15", XMLENC_ISO8859_15},
        {u"ISO-8859-1", XMLENC_ISO8859_1}, {u"Iso-8859-1", XMLENC_ISO8859_1},
        {u"ISO-8859-2", XMLENC_ISO8859_15}, {u"iso-8859", XMLENC_ISO8859_15},
        {u"ISO-8859-10", XMLENC_ISO8859_15}, {u"windows-1252", XMLENC_WIN1252},
        {u"WINDOWS-1252 ", XMLENC_ISO8859_15}, {u"utf8", XMLENC_UTF8},
        {u"Utf-8", XMLENC_UTF8}, {u"UTF-16", XMLENC_ISO8859_15},
        {u"UTF", XMLENC_ISO8859_15}, {u" UTF-8", XMLENC_ISO8859_15},
        {u"ISO-8859-1\u0131", XMLENC_ISO8859_15},  // dotless i is not ASCII
    };
    for (const Case &c : cases) EXPECT_EQ(EncodingFromName(c.name), c.id) << mx::toUtf8(c.name);
}

TEST(XmlEncoding, CanonicalNamesAndCodePagesTreatUnknownIdsAsOne) {
    EXPECT_STREQ(EncodingName(1), "ISO-8859-15");
    EXPECT_STREQ(EncodingName(2), "UTF-8");
    EXPECT_STREQ(EncodingName(3), "ISO-8859-1");
    EXPECT_STREQ(EncodingName(4), "WINDOWS-1252");
    EXPECT_STREQ(EncodingName(0), "ISO-8859-15");
    EXPECT_STREQ(EncodingName(5), "ISO-8859-15");
    EXPECT_EQ(EncodingCodePage(1), 28605u);
    EXPECT_EQ(EncodingCodePage(2), 65001u);
    EXPECT_EQ(EncodingCodePage(3), 28591u);
    EXPECT_EQ(EncodingCodePage(4), 1252u);
    EXPECT_EQ(EncodingCodePage(-7), 28605u);
}

// Every byte of each 8-bit code page decodes to what iconv says, and the
// character encodes back to the same byte.
TEST(XmlEncoding, EightBitTablesAgreeWithIconvForEveryByte) {
    struct Page {
        uint32_t codePage;
        const char *iconvName;
    } pages[] = {{28605, "ISO-8859-15"}, {28591, "ISO-8859-1"}, {1252, "WINDOWS-1252"}};
    std::string all;
    for (int b = 1; b < 256; ++b) all += char(b);
    std::string in = xmltest::tempPath("bytes.bin");
    writeFile(in, all);
    for (const Page &p : pages) {
        SCOPED_TRACE(p.iconvName);
        std::string out = xmltest::tempPath("bytes.utf16");
        // iconv skips (-c) the five unassigned bytes of 1252; they are taken out below
        std::string cmd = std::string("iconv -c -f ") + p.iconvName + " -t UTF-16LE " + in + " > " + out;
        xmltest::shell(cmd);
        std::string raw = readFile(out);
        ASSERT_EQ(raw.size(), p.codePage == 1252 ? 500u : 510u);
        std::u16string want(raw.size() / 2, u'\0');
        std::memcpy(want.data(), raw.data(), raw.size());
        char16_t got[300];
        int32_t n = mx::mxp_CodePageToWide(p.codePage, all.data(), int32_t(all.size()), got, 300);
        std::u16string mine(got, size_t(n));
        if (p.codePage == 1252) {
            for (char16_t c : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) mine.erase(mine.find(c), 1);
        }
        EXPECT_EQ(mine, want);
        char back[300];
        ASSERT_EQ(mx::mxp_WideToCodePage(p.codePage, got, n, back, 300), 255);
        EXPECT_EQ(std::string(back, 255), all);
    }
}

TEST(XmlEncoding, EncodeTextGivesEachCodePagesBytes) {
    struct Case {
        XmlEncoding e;
        std::u16string text;
        std::string bytes;
    } cases[] = {
        {XMLENC_UTF8, u"\u00e4", "\xC3\xA4"},
        {XMLENC_ISO8859_1, u"\u00e4", "\xE4"},
        {XMLENC_ISO8859_15, u"\u00e4", "\xE4"},
        {XMLENC_WIN1252, u"\u00e4", "\xE4"},
        {XMLENC_UTF8, u"\u20ac", "\xE2\x82\xAC"},
        {XMLENC_ISO8859_15, u"\u20ac", "\xA4"},
        {XMLENC_WIN1252, u"\u20ac", "\x80"},
        {XMLENC_ISO8859_1, u"\u20ac", "?"},
        {XMLENC_ISO8859_15, u"\u00a4", "?"},  // the currency sign gave way to the euro
        {XMLENC_ISO8859_1, u"\u0416x", "?x"},
        // no best-fit characters here (Windows writes A, -, A): one "?" per unit
        {XMLENC_ISO8859_15, u"\u0100\u2013\uFF21\U0001F600", "?????"},
        {XMLENC_WIN1252, u"\u0100\u2013\uFF21", "?\x96?"},
        {XMLENC_UTF8, u"\U0001F600", "\xF0\x9F\x98\x80"},
        {XMLENC_UTF8, u"a\xD800z", "a\xEF\xBF\xBDz"},  // unpaired surrogate
        {XMLENC_UTF8, u"", ""},
    };
    for (const Case &c : cases) {
        int32_t code = -99;
        EXPECT_EQ(encode(c.e, c.text, &code), c.bytes) << mx::toUtf8(c.text.c_str()) << " in " << c.e;
        EXPECT_EQ(code, 0);
    }
}

TEST(XmlEncoding, DecodeTextConvertsFromEachCodePage) {
    EXPECT_EQ(decode(XMLENC_UTF8, "\xC3\xA4"), u"\u00e4");
    EXPECT_EQ(decode(XMLENC_ISO8859_15, "\xA4\xBD"), u"\u20ac\u0153");
    EXPECT_EQ(decode(XMLENC_ISO8859_1, "\xA4\xBD"), u"\u00a4\u00bd");
    EXPECT_EQ(decode(XMLENC_WIN1252, "\x80\x9F"), u"\u20ac\u0178");
    EXPECT_EQ(decode(XMLENC_UTF8, ""), u"");
    // invalid UTF-8: a stray continuation, a cut-off sequence, over-long and
    // surrogate forms each become one replacement character
    EXPECT_EQ(decode(XMLENC_UTF8, "a\x80z"), u"a\uFFFDz");
    EXPECT_EQ(decode(XMLENC_UTF8, "a\xE2\x82z"), u"a\uFFFDz");
    EXPECT_EQ(decode(XMLENC_UTF8, "\xC0\xAF"), u"\uFFFD\uFFFD");
    EXPECT_EQ(decode(XMLENC_UTF8, "\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decode(XMLENC_UTF8, "\xF0\x9F\x98\x80"), u"\U0001F600");
    EXPECT_EQ(decode(XMLENC_UTF8, "\xE2\x82"), u"\uFFFD");
}

TEST(XmlEncoding, LongTextsUseHeapBuffersAndKeepEveryCharacter) {
    std::u16string text;
    for (int i = 0; i < 5000; ++i) text += char16_t(i % 2 ? 0x20AC : u'a' + i % 26);
    for (XmlEncoding e : {XMLENC_UTF8, XMLENC_ISO8859_15, XMLENC_WIN1252}) {
        std::string bytes = encode(e, text);
        EXPECT_EQ(bytes.size(), e == XMLENC_UTF8 ? 2500u * 3 + 2500 : 5000u);
        EXPECT_EQ(decode(e, bytes), text);
    }
    // the edges of the local buffers
    for (size_t n : {332u, 333u, 334u, 998u, 999u, 1000u, 1001u}) {
        std::u16string t(n, u'\u00e4');
        EXPECT_EQ(decode(XMLENC_UTF8, encode(XMLENC_UTF8, t)), t) << n;
        std::u16string a(n, u'x');
        EXPECT_EQ(decode(XMLENC_ISO8859_1, encode(XMLENC_ISO8859_1, a)), a) << n;
    }
}

TEST(XmlEncoding, DecodeReferencesFollowsItsExactRules) {
    struct Case {
        std::u16string in;
        std::u16string out;
    } cases[] = {
        {u"&#x41;", u"A"},
        {u"&#65;x", u"Ax"},
        {u"&#65;", u"&#65;"},            // fewer than six units left
        {u"a&#65;", u"a&#65;"},
        {u"&#x4a;&#x4A;", u"JJ"},        // either case of digits
        {u"&#X41;", u"\u0FC9"},          // upper-case X reads as decimal: 40, 404, 4041
        {u"&#x4G;xy", u"\u0040xy"},      // G counts 0: 4*16 + 0
        {u"&#x41", u"&#x41"},            // five units
        {u"&#x410", u"\u0410"},          // runs to the end without ";"
        {u"&#65536;", std::u16string(1, u'\0')},  // cut to 16 bits
        {u"&#65601;", u"A"},             // 65601 mod 65536 = 65
        {u"&#1/;ab", u"\u0009ab"},       // "/" counts -1: 1*10 - 1 = 9
        {u"&amp;&lt;", u"&amp;&lt;"},    // named entities stay
        {u"&&#x42;", u"&B"},
        {u"&#x1F600;", u"\uF600"},       // beyond 16 bits: the low unit
        {u"x&#x26;#x41;", u"x&#x41;"},   // a decoded "&" is not scanned again
    };
    for (const Case &c : cases) EXPECT_EQ(references(c.in), c.out) << mx::toUtf8(c.in.c_str());
}

TEST(XmlEncoding, DecodeTextAppliesReferencesAfterConversion) {
    EXPECT_EQ(decode(XMLENC_UTF8, "a&#x20AC;b"), u"a\u20acb");
    EXPECT_EQ(decode(XMLENC_ISO8859_1, "\xE4&#xE4;"), u"\u00e4\u00e4");
}

TEST(XmlEncoding, ExhaustedMemoryGivesMinusTwo) {
    int32_t encodeCode = 0, decodeCode = 0;
    xmlFailAllocationsAfter(0);
    std::string e = encode(XMLENC_UTF8, u"abc", &encodeCode);
    std::u16string d = decode(XMLENC_UTF8, "abc", &decodeCode);
    xmlFailAllocationsAfter(-1);
    EXPECT_EQ(e, "<absent>");
    EXPECT_EQ(d, u"<absent>");
    EXPECT_EQ(encodeCode, XMLERR_NOMEM);
    EXPECT_EQ(decodeCode, XMLERR_NOMEM);
}

TEST(XmlEncoding, CodePageConversionsRefuseBadArguments) {
    char out[4];
    char16_t wide[4];
    EXPECT_EQ(mx::mxp_WideToCodePage(437, u"a", 1, out, 4), 0);
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"a", 0, out, 4), 0);
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"abcde", 5, out, 4), 0);  // too small
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"abcde", 5, nullptr, 0), 5);
    EXPECT_EQ(mx::mxp_WideToCodePage(65001, u"\u20ac", 1, nullptr, 0), 3);
    EXPECT_EQ(mx::mxp_CodePageToWide(1250, "a", 1, wide, 4), 0);
    EXPECT_EQ(mx::mxp_CodePageToWide(28591, "abcde", 5, wide, 4), 0);
    EXPECT_EQ(mx::mxp_CodePageToWide(65001, "\xE2\x82\xAC", 3, nullptr, 0), 1);
}
