// The XML engine's bytes: escaping (every byte class and the space runs),
// encodings (names, the code-page tables against iconv, EncodeText,
// DecodeText, character references), the writer byte for byte (the worked
// examples, every flag, the HTML rules, failures, xmllint and iconv on its
// output) and the parser (errors where they are found, encodings, deep
// nesting, round trips).
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "base/u16.h"
#include "platform/codepage.h"
#include "xml/xml_alloc.h"
#include "xml/xml_encoding.h"
#include "xml/xml_escape.h"
#include "xml/xml_functions.h"
#include "xml/xml_parser.h"
#include "xml_test_util.h"

using namespace mx::xml;

namespace {

std::string escape(const std::string &in, int32_t options = 0) {
    std::string out(size_t(EscapedCapacity(int64_t(in.size()))), '\0');
    int32_t n = EscapeText(in.data(), int32_t(in.size()), out.data(), int32_t(out.size()), options);
    EXPECT_EQ(out[size_t(n)], '\0');
    return out.substr(0, size_t(n));
}

std::string reference(int b) {
    char buf[8];
    std::snprintf(buf, sizeof buf, "&#x%02X;", b);
    return buf;
}

}  // namespace

// The plain bytes listed as ranges; everything else from 0x01 up is a reference.
TEST(XmlEscape, EveryByteIsPlainOrAReferenceByItsClass) {
    const int plainRanges[][2] = {{0x20, 0x21}, {0x23, 0x25}, {0x27, 0x3B}, {0x3D, 0x3D},
                                  {0x3F, 0x5F}, {0x61, 0xFF}};
    for (int b = 1; b < 256; ++b) {
        bool plain = false;
        for (auto &r : plainRanges) plain = plain || (b >= r[0] && b <= r[1]);
        EXPECT_EQ(IsPlainByte(static_cast<unsigned char>(b)), plain) << b;
        if (b == ' ') continue;  // spaces have their own rule
        std::string in = "x" + std::string(1, char(b));
        EXPECT_EQ(escape(in), plain ? in : "x" + reference(b)) << b;
    }
}

TEST(XmlEscape, SpacesAtTheStartAndInRunsBecomeReferences) {
    struct Case {
        const char *in;
        const char *out;
    } cases[] = {
        {" a  b", "&#x20;a &#x20;b"},
        {"ab ", "ab "},
        {" ", "&#x20;"},
        {"   ", "&#x20;&#x20;&#x20;"},
        {"a   b", "a &#x20;&#x20;b"},
        {"a \"b\"", "a &#x22;b&#x22;"},
        {"a\t b", "a&#x09; b"},         // a tab is no space: the space after it is plain
        {"a \tb", "a &#x09;b"},
        {"a\r\nb", "a&#x0D;&#x0A;b"},
        {"Tom & Jerry <2>", "Tom &#x26; Jerry &#x3C;2&#x3E;"},
        {"it's `x`", "it's &#x60;x&#x60;"},
        {"\xC3\xA4\x7F", "\xC3\xA4\x7F"},  // bytes from 0x7F up pass unchanged
        {"", ""},
    };
    for (const Case &c : cases) EXPECT_EQ(escape(c.in), c.out) << c.in;
}

TEST(XmlEscape, DropCrOptionRemovesCarriageReturnsOnly) {
    EXPECT_EQ(escape("a\r\nb\r", kEscapeDropCR), "a&#x0A;b");
    EXPECT_EQ(escape(" \r ", kEscapeDropCR), "&#x20; ");  // CR still ends a space run
}

TEST(XmlEscape, TheOutputNeverPassesItsSize) {
    char out[10];
    std::memset(out, 'Z', sizeof out);
    // six bytes per reference: only one whole reference fits in 9 bytes
    int32_t n = EscapeText("<<<", 3, out, 9, 0);
    EXPECT_EQ(n, 6);
    EXPECT_STREQ(out, "&#x3C;");
    EXPECT_EQ(out[9], 'Z');
    EXPECT_EQ(EscapeText("abc", 3, out, 0, 0), 0);
    EXPECT_EQ(out[0], '&');
}


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

using xmltest::child;
using xmltest::crlf;
using xmltest::written;

namespace {

// The order document of the worked example, built through the built-ins.
int32_t orderDocument() {
    int32_t doc = xmlCreate(u"order", u"ISO-8859-1");
    int32_t root = xmlGetRoot(doc);
    xmlSetAttr(root, u"id", u"4711");
    int32_t item = xmlAddChild(root, u"item", u"Tom & Jerry <2>");
    xmlSetAttr(item, u"note", u"a  \"b\"");
    xmlAddChild(item, u"qty", u"3");
    xmlAddChild(root, u"empty", u"");
    return doc;
}

std::string writtenByHandle(int32_t doc, int32_t flags, const std::string &name = "h.xml") {
    std::string path = xmltest::tempPath(name);
    EXPECT_EQ(xmlWriteFile(doc, mx::fromUtf8(path).c_str(), flags), 1);
    return readFile(path);
}

}  // namespace

TEST(XmlWriter, WorkedExampleWithIndentation) {
    int32_t doc = orderDocument();
    EXPECT_EQ(writtenByHandle(doc, XMLWF_INDENT),
              crlf({"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", "<order id=\"4711\">",
                    " <item note=\"a &#x20;&#x22;b&#x22;\">", "  Tom &#x26; Jerry &#x3C;2&#x3E;",
                    "  <qty>3</qty>", " </item>", " <empty/>", "</order>"}));
    xmlDelete(doc);
}

TEST(XmlWriter, WorkedExampleWithoutIndentationAndAsHtml) {
    int32_t doc = orderDocument();
    std::vector<std::string> body = {"<order id=\"4711\">", "<item note=\"a &#x20;&#x22;b&#x22;\">",
                                     "Tom &#x26; Jerry &#x3C;2&#x3E;", "<qty>3</qty>", "</item>",
                                     "<empty/>", "</order>"};
    std::vector<std::string> plain = body;
    plain.insert(plain.begin(), "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>");
    EXPECT_EQ(writtenByHandle(doc, 0), crlf(plain));
    std::vector<std::string> html = body;
    html[5] = "<empty></empty>";
    html.insert(html.begin(), {"<!DOCTYPE HTML>", ""});
    EXPECT_EQ(writtenByHandle(doc, XMLWF_HTML), crlf(html));
    EXPECT_EQ(writtenByHandle(doc, 8 | 16 | 256), crlf(plain));  // other bits do nothing
    xmlDelete(doc);
}

TEST(XmlWriter, VoidElementsIgnoreCaseKeepTextAndCloseWithChildren) {
    auto d = xmltest::newDocument(u"html");
    child(d->root, u"IMG");
    child(d->root, u"Input", u"t");
    child(child(d->root, u"hr"), u"b");
    child(d->root, u"meta");
    child(d->root, u"link");
    child(d->root, u"links");
    child(d->root, u"sp", u"  ");
    EXPECT_EQ(written(d.get(), XMLWF_HTML),
              crlf({"<!DOCTYPE HTML>", "", "<html>", "<IMG>", "<Input>t", "<hr>", "<b></b>", "</hr>",
                    "<meta>", "<link>", "<links></links>", "<sp>&#x20;&#x20;</sp>", "</html>"}));
}

TEST(XmlWriter, BlankTextsNamesAndAttributes) {
    auto d = xmltest::newDocument(u"r", XMLENC_UTF8);
    child(d->root, u"spaces", u"   ");
    XmlNode *hidden = child(d->root, u" ", u"text");
    child(hidden, u"below", u"x");
    child(d->root, nullptr, u"x");
    XmlNode *a = child(d->root, u"a", u"x ");
    SetAttribute(a, u"", u"dropped");
    SetAttribute(a, u"k", u"");
    SetAttribute(a, u"\t", u"v");
    EXPECT_EQ(written(d.get(), 0),
              crlf({"<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<r>", "<spaces/>",
                    "<a  k=\"\" >x </a>", "</r>"}));
}

TEST(XmlWriter, BlankRootWritesOnlyTheFirstLines) {
    for (const char16_t *root : {u"", u"  "}) {
        auto d = xmltest::newDocument(root, XMLENC_ISO8859_15);
        child(d->root, u"lost");
        EXPECT_EQ(written(d.get(), 0), crlf({"<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>"}));
        EXPECT_EQ(written(d.get(), XMLWF_HTML | XMLWF_INDENT), crlf({"<!DOCTYPE HTML>", ""}));
    }
}

TEST(XmlWriter, TextOfAnElementWithChildrenStandsOnItsOwnLine) {
    auto d = xmltest::newDocument(u"r");
    SetText(d->root, u"top");
    XmlNode *m = child(d->root, u"m", u"mid");
    child(m, u"leaf", u"x");
    EXPECT_EQ(written(d.get(), XMLWF_INDENT),
              crlf({"<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<r>", " top", " <m>", "  mid",
                    "  <leaf>x</leaf>", " </m>", "</r>"}));
}

TEST(XmlWriter, CommentsOnlyWithTheirFlagAfterAnEmptyLine) {
    auto d = xmltest::newDocument(u"r");
    SetComment(d->root, u" root ");
    XmlNode *a = child(d->root, u"a", u"1");
    SetComment(a, u"about a-->");
    XmlNode *b = child(d->root, u"b", u"2");
    SetComment(b, u" \t ");  // blank: not written
    std::string decl = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    EXPECT_EQ(written(d.get(), 0), crlf({decl, "<r>", "<a>1</a>", "<b>2</b>", "</r>"}));
    EXPECT_EQ(written(d.get(), XMLWF_COMMENTS),
              crlf({decl, "", "<!-- root -->", "<r>", "", "<!--about a>-->", "<a>1</a>", "<b>2</b>",
                    "</r>"}));
    EXPECT_EQ(written(d.get(), XMLWF_COMMENTS | XMLWF_INDENT),
              crlf({decl, "", "<!-- root -->", "<r>", "", " <!--about a>-->", " <a>1</a>", " <b>2</b>",
                    "</r>"}));
}

TEST(XmlWriter, NamesAreWrittenAsTheyStand) {
    auto d = xmltest::newDocument(u"a b<c", XMLENC_ISO8859_1);
    SetAttribute(d->root, u"x y", u"1");
    EXPECT_EQ(written(d.get(), 0),
              crlf({"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", "<a b<c x y=\"1\"/>"}));
}

TEST(XmlWriter, OpenFailuresAreMappedAndWriteNothing) {
    auto d = xmltest::newDocument(u"r");
    std::string missing = xmltest::tempPath("no/such/dir/x.xml");
    EXPECT_EQ(WriteDocument(d.get(), mx::fromUtf8(missing).c_str(), 0), XMLERR_NOTFOUND);
    EXPECT_EQ(WriteDocument(d.get(), u"", 0), XMLERR_NOTFOUND);
    EXPECT_EQ(WriteDocument(d.get(), nullptr, 0), XMLERR_NOTFOUND);
    EXPECT_EQ(WriteDocument(d.get(), mx::fromUtf8(xmltest::tempDir()).c_str(), 0), XMLERR_ACCESS);
}

TEST(XmlWriter, AnExistingFileIsTruncated) {
    auto big = xmltest::newDocument(u"r");
    for (int i = 0; i < 50; ++i) child(big->root, u"filler", u"text");
    written(big.get(), 0, nullptr, "same.xml");
    auto small = xmltest::newDocument(u"s");
    EXPECT_EQ(written(small.get(), 0, nullptr, "same.xml"),
              crlf({"<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<s/>"}));
}

// Allocations in order: root name, child name, child text, child end-tag
// name. A text that cannot be converted is left out; a name ends the write.
TEST(XmlWriter, FailedConversionsLeaveOutValuesAndEndTheWriteAtNames) {
    xmltest::AllocationGuard guard;
    auto d = xmltest::newDocument(u"r");
    child(d->root, u"a", u"t");
    std::string decl = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n";
    struct Case {
        int allowed;
        int32_t code;
        std::string file;
    } cases[] = {
        {0, XMLERR_NOMEM, decl},
        {1, XMLERR_NOMEM, decl + "<r>\r\n"},
        {2, XMLERR_NOMEM, decl + "<r>\r\n<a>"},
        {5, XMLERR_OK, decl + "<r>\r\n<a>t</a>\r\n</r>\r\n"},
    };
    for (const Case &c : cases) {
        xmlFailAllocationsAfter(c.allowed);
        int32_t code = 0;
        std::string file = written(d.get(), 0, &code);
        xmlFailAllocationsAfter(-1);
        EXPECT_EQ(code, c.code) << c.allowed;
        EXPECT_EQ(file, c.file) << c.allowed;
    }
}

TEST(XmlWriter, DeepDocumentsAreWrittenWithoutRecursion) {
    auto d = xmltest::newDocument(u"r");
    XmlNode *n = d->root;
    for (int i = 0; i < 100000; ++i) n = child(n, u"n");
    std::string file = written(d.get(), 0);
    // declaration, <r>, 99999 parents of 5 and 6 bytes, <n/>, </r>
    EXPECT_EQ(file.size(), 40u + 5 + 99999 * (5 + 6) + 6 + 6);
    EXPECT_EQ(file.substr(file.size() - 12), "</n>\r\n</r>\r\n");
}

// A real XML parser accepts what the writer makes from well-formed names,
// in every encoding and every XML flag combination.
TEST(XmlWriter, OutputIsWellFormedForXmllint) {
    for (XmlEncoding e : {XMLENC_ISO8859_15, XMLENC_UTF8, XMLENC_ISO8859_1, XMLENC_WIN1252}) {
        auto d = xmltest::newDocument(u"root", e);
        SetAttribute(d->root, u"q", u"\"quoted\" & 'apos' <tag> `grave`");
        SetAttribute(d->root, u"ws", u"  lead\ttab\r\nlines  trail ");
        SetComment(d->root, u" a comment with -> and > ");
        SetText(d->root, u"  root text \u00e4\u00f6\u00fc\u00df\u20ac ");
        XmlNode *c = child(d->root, u"child-1", u"a<b>&c\"d\"");
        SetComment(c, u"x-->y");
        child(c, u"_empty");
        child(c, u"sp", u"   ");
        child(d->root, u"uml", u"\u00c4rger \u0416 \U0001F600");
        for (int32_t flags : {0, 2, 4, 6}) {
            std::string path = xmltest::tempPath("lint.xml");
            written(d.get(), flags, nullptr, "lint.xml");
            EXPECT_EQ(xmltest::shell("xmllint --noout " + path + " 2>&1"), 0)
                << "encoding " << e << " flags " << flags;
        }
    }
}

// Files in the three 8-bit encodings read by iconv give the UTF-8 file's
// text, apart from the declaration line.
TEST(XmlWriter, EightBitFilesMatchTheUtf8FileThroughIconv) {
    struct Enc {
        XmlEncoding e;
        const char *iconvName;
    } encs[] = {{XMLENC_ISO8859_15, "ISO-8859-15"}, {XMLENC_ISO8859_1, "ISO-8859-1"},
                {XMLENC_WIN1252, "WINDOWS-1252"}};
    auto build = [](XmlEncoding e) {
        auto d = xmltest::newDocument(u"r\u00e9", e);
        SetAttribute(d->root, u"n\u00e4me", u"\u00c4\u00d6\u00dc \u00e4\u00f6\u00fc\u00df");
        child(d->root, u"t", u"gr\u00fc\u00dfe \u00b5 \u00bf");
        return d;
    };
    auto afterFirstLine = [](const std::string &s) { return s.substr(s.find('\n') + 1); };
    std::string utf8 = afterFirstLine(written(build(XMLENC_UTF8).get(), XMLWF_INDENT));
    for (const Enc &enc : encs) {
        written(build(enc.e).get(), XMLWF_INDENT, nullptr, "iconv.xml");
        std::string out = xmltest::tempPath("iconv.out");
        ASSERT_EQ(xmltest::shell(std::string("iconv -f ") + enc.iconvName + " -t UTF-8 " +
                                 xmltest::tempPath("iconv.xml") + " > " + out),
                  0);
        EXPECT_EQ(afterFirstLine(readFile(out)), utf8) << enc.iconvName;
    }
}

using xmltest::Doc;

namespace {

const std::string kDecl = "<?xml version=\"1.0\"?>\n";

struct Parsed {
    int32_t code, line, column;
};

Parsed parse(XmlDocument *d, const std::string &text) {
    Parsed p{};
    p.code = ParseDocument(d, text.c_str(), &p.line, &p.column);
    return p;
}

std::string str(const char16_t *s) { return s ? mx::toUtf8(s) : "(null)"; }

// The tree as text: name[attr=value,...]{text}(comment) with children in <>.
std::string dump(const XmlNode *n) {
    std::string out = str(n->name);
    for (const XmlAttribute *a = n->firstAttribute; a; a = a->next)
        out += "[" + str(a->name) + "=" + str(a->value) + "]";
    if (n->text) out += "{" + str(n->text) + "}";
    if (n->comment) out += "(" + str(n->comment) + ")";
    if (n->firstChild) {
        out += "<";
        for (const XmlNode *c = n->firstChild; c; c = c->nextSibling) out += dump(c) + (c->nextSibling ? "," : "");
        out += ">";
    }
    return out;
}

}  // namespace

TEST(XmlParser, ReadsDeclarationAttributesTextChildrenAndComments) {
    Doc d(CreateDocument());
    std::string text = "\xEF\xBB\xBF  <?xml version=\"1.0\" encoding=\"iso-8859-1\" standalone=\"yes\" ?>\r\n"
                       "<!-- top -->\n<r a=\"1\" b = \"x&amp;y&#x41;\" a=\"2\">  Hello \r\n"
                       "  <!--c1--><c/>\n<d>t\xE4</d>\t</r>\n\n";
    Parsed p = parse(d.get(), text);
    EXPECT_EQ(p.code, 0);
    EXPECT_EQ(p.line + p.column, 0);
    EXPECT_EQ(d->encoding, XMLENC_ISO8859_1);
    // the text runs up to the comment: its trailing spaces stay
    EXPECT_EQ(dump(d->root), "r[a=1][b=x&amp;yA][a=2]{Hello \r\n  }( top )<c(c1),d{t\u00e4}>");
}

TEST(XmlParser, TheEncodingSwitchAppliesToEverythingAfterIt) {
    struct Case {
        const char *declared;
        XmlEncoding e;
        std::string bytes;
        std::u16string text;
    } cases[] = {
        {"UTF-8", XMLENC_UTF8, "\xE2\x82\xAC", u"\u20ac"},
        {"ISO-8859-15", XMLENC_ISO8859_15, "\xA4", u"\u20ac"},
        {"windows-1252", XMLENC_WIN1252, "\x80", u"\u20ac"},
        {"latin1", XMLENC_ISO8859_15, "\xA4", u"\u20ac"},
    };
    for (const Case &c : cases) {
        Doc d(CreateDocument());
        EXPECT_EQ(parse(d.get(), std::string("<?xml encoding=\"") + c.declared + "\"?><r>" + c.bytes + "</r>").code, 0);
        EXPECT_EQ(d->encoding, c.e);
        EXPECT_TRUE(mx::u16Eq(d->root->text, c.text.c_str())) << c.declared;
    }
    Doc d(CreateDocument());
    d->encoding = XMLENC_WIN1252;  // no encoding in the declaration: the current one stays
    EXPECT_EQ(parse(d.get(), "<?xml version=\"1.0\"?><r>\x80</r>").code, 0);
    EXPECT_EQ(d->encoding, XMLENC_WIN1252);
    EXPECT_TRUE(mx::u16Eq(d->root->text, u"\u20ac"));
}

TEST(XmlParser, TextIsTrimmedOfLeadingWhiteSpaceAndTrailingControls) {
    Doc d(CreateDocument());
    ASSERT_EQ(parse(d.get(), kDecl + "<a>  Hello \r\n</a>").code, 0);
    EXPECT_TRUE(mx::u16Eq(d->root->text, u"Hello "));
    ASSERT_EQ(parse(d.get(), kDecl + "<a>x&#x09;&#10;\t</a>").code, 0);
    EXPECT_TRUE(mx::u16Eq(d->root->text, u"x"));
    ASSERT_EQ(parse(d.get(), kDecl + "<a></a>").code, 0);
    EXPECT_EQ(d->root->text, nullptr);
    ASSERT_EQ(parse(d.get(), kDecl + "<a/>").code, 0);
    EXPECT_EQ(d->root->text, nullptr);
}

// Each failure with the line and column where reading stopped.
TEST(XmlParser, ErrorsStandWhereTheyAreFound) {
    struct Case {
        std::string text;
        int32_t code, line, column;
    } cases[] = {
        {"", XMLERR_NOPROLOG, 1, 1},
        {"  \n <?XML version=\"1.0\"?><a/>", XMLERR_NOPROLOG, 2, 2},
        {"<?xml version=\"1.0\"><a/>", XMLERR_NOPROLOG, 1, 20},
        {"<?xml\tversion=\"1.0\"?><a/>", XMLERR_NOPROLOG, 1, 1},
        {"<?xml version='1.0'?><a/>", XMLERR_NOQUOTE, 1, 15},
        {"<?xml version\"1.0\"?><a/>", XMLERR_NOEQUALS, 1, 14},
        {kDecl + "<a/>x", XMLERR_TRAILING, 2, 5},
        {kDecl + "<a/><b/>", XMLERR_TRAILING, 2, 5},
        {kDecl + "text", XMLERR_NOTAGOPEN, 2, 1},
        {kDecl + "<!-- c --> x", XMLERR_NOTAGOPEN, 2, 12},
        {kDecl + "<a b=\"1\"c=\"2\"/>", XMLERR_NOTAGCLOSE, 2, 9},
        {kDecl + "<a b=\"1\" ?>", XMLERR_NOTAGCLOSE, 2, 10},
        {kDecl + "<a></a >", XMLERR_NOTAGCLOSE, 2, 7},
        {kDecl + "<a>x<b/>y</a>", XMLERR_NOENDTAG, 2, 9},
        {kDecl + "<a>", XMLERR_NOENDTAG, 2, 4},
        {kDecl + "<a></A>", XMLERR_TAGMISMATCH, 2, 8},
        {kDecl + "<a><b></a></b>", XMLERR_TAGMISMATCH, 2, 11},
        {kDecl + "<1a/>", XMLERR_NOELEMNAME, 2, 2},
        {kDecl + "<!DOCTYPE html><a/>", XMLERR_NOELEMNAME, 2, 2},
        {kDecl + "<a><![CDATA[x]]></a>", XMLERR_NOELEMNAME, 2, 5},
        {kDecl + "<a><?pi x?></a>", XMLERR_NOELEMNAME, 2, 5},
        {kDecl + "<a><!-- c --></a>", XMLERR_NOELEMNAME, 2, 15},
        {kDecl + "<!--1--><!--2--><a/>", XMLERR_NOELEMNAME, 2, 10},
        {kDecl + "<a></>", XMLERR_NOELEMNAME, 2, 6},
        {kDecl + "<a b/>", XMLERR_NOEQUALS, 2, 5},
        {kDecl + "<a b=1/>", XMLERR_NOQUOTE, 2, 6},
        {kDecl + "<a b=\"x>y\"/>", XMLERR_NOQUOTE, 2, 8},
        {kDecl + "<a b=\"x\ty\"/>", XMLERR_NOQUOTE, 2, 8},
        {kDecl + "<a b=\"x", XMLERR_NOQUOTE, 2, 8},
        {kDecl + "<!-- open <a/>", XMLERR_NOCOMMENTEND, 2, 5},
        {kDecl + "\n\n    x<a/>", XMLERR_NOTAGOPEN, 4, 5},
        {"<?xml ?>\n\n12345<a/>", XMLERR_NOTAGOPEN, 3, 1},
        {"<?xml ?>\n\n     x", XMLERR_NOTAGOPEN, 3, 6},
    };
    for (const Case &c : cases) {
        Doc d(CreateDocument());
        Parsed p = parse(d.get(), c.text);
        EXPECT_EQ(p.code, c.code) << c.text;
        EXPECT_EQ(p.line, c.line) << c.text;
        EXPECT_EQ(p.column, c.column) << c.text;
    }
}

TEST(XmlParser, AZeroByteEndsTheTextAndAbsentTextIsEmpty) {
    Doc d(CreateDocument());
    int32_t line, column;
    EXPECT_EQ(ParseDocument(d.get(), nullptr, &line, &column), XMLERR_NOPROLOG);
    std::string text = kDecl + "<a/>";
    text += '\0';
    text += "garbage";
    EXPECT_EQ(ParseDocument(d.get(), text.c_str(), &line, &column), 0);
}

TEST(XmlParser, AFailedLoadKeepsWhatWasReadAndALoadReplacesTheTree) {
    Doc d(CreateDocument());
    SetName(d->root, u"old");
    SetAttribute(d->root, u"x", u"1");
    child(d->root, u"gone");
    EXPECT_EQ(parse(d.get(), kDecl + "<new k=\"v\"><c>1</c><d>2</e></new>").code, XMLERR_TAGMISMATCH);
    EXPECT_EQ(dump(d->root), "new[k=v]<c{1},d{2}>");
}

TEST(XmlParser, DeepNestingIsReadWithoutRecursion) {
    std::string text = kDecl;
    for (int i = 0; i < 100000; ++i) text += "<n>";
    text += "x";
    for (int i = 0; i < 100000; ++i) text += "</n>";
    Doc d(CreateDocument());
    ASSERT_EQ(parse(d.get(), text).code, 0);
    int depth = 0;
    const XmlNode *n = d->root;
    for (; n->firstChild; n = n->firstChild) ++depth;
    EXPECT_EQ(depth, 99999);
    EXPECT_TRUE(mx::u16Eq(n->text, u"x"));
}

TEST(XmlParser, ExhaustedMemoryStopsTheLoadWithMinusTwo) {
    // every allocation fails in turn until the whole text is read
    int allowed = 0;
    for (;; ++allowed) {
        Doc d(CreateDocument());
        xmlFailAllocationsAfter(allowed);
        Parsed p = parse(d.get(), kDecl + "<a k=\"v\"><!--c--><b>t</b></a>");
        xmlFailAllocationsAfter(-1);
        if (p.code == 0) {
            EXPECT_EQ(dump(d->root), "a[k=v]<b{t}(c)>");
            break;
        }
        ASSERT_EQ(p.code, XMLERR_NOMEM) << allowed;
        ASSERT_LT(allowed, 100);
        dump(d->root);  // whatever was read is a consistent tree
    }
    EXPECT_EQ(allowed, 13);  // 2 in the declaration, 11 in the elements
}

TEST(XmlParser, LoadDocumentReportsFileErrors) {
    Doc d(CreateDocument());
    SetName(d->root, u"kept?");
    int32_t line = 9, column = 9;
    std::string missing = xmltest::tempPath("missing.xml");
    EXPECT_EQ(LoadDocument(d.get(), mx::fromUtf8(missing).c_str(), &line, &column), XMLERR_NOTFOUND);
    EXPECT_EQ(line + column, 0);
    EXPECT_EQ(d->root->name, nullptr);  // the root is emptied before the open
    EXPECT_EQ(LoadDocument(d.get(), mx::fromUtf8(xmltest::tempDir()).c_str(), &line, &column),
              XMLERR_ACCESS);
    std::string empty = xmltest::tempPath("empty.xml");
    writeFile(empty, "");
    EXPECT_EQ(LoadDocument(d.get(), mx::fromUtf8(empty).c_str(), &line, &column), XMLERR_NOPROLOG);
    EXPECT_EQ(line, 1);
    EXPECT_EQ(column, 1);
    std::string bad = xmltest::tempPath("bad.xml");
    writeFile(bad, kDecl + "<a>\n<b>\n  x  <c/>y</b></a>");
    EXPECT_EQ(LoadDocument(d.get(), mx::fromUtf8(bad).c_str(), &line, &column), XMLERR_NOENDTAG);
    EXPECT_EQ(line, 4);
    EXPECT_EQ(column, 10);
}

// Written without HTML, loaded back: every name, value and comment, and
// every text apart from its trailing controls, in every encoding.
TEST(XmlParser, RoundTripsInEveryEncoding) {
    const std::u16string tricky = u"a  \"q\" & <t> `g` 'a' \t\u00e4\u00df";
    for (XmlEncoding e : {XMLENC_ISO8859_15, XMLENC_UTF8, XMLENC_ISO8859_1, XMLENC_WIN1252}) {
        for (int32_t flags : {0, int32_t(XMLWF_COMMENTS)}) {
            SCOPED_TRACE(std::to_string(e) + "/" + std::to_string(flags));
            Doc d = xmltest::newDocument(u"root", e);
            SetAttribute(d->root, u"v", tricky.c_str());
            SetAttribute(d->root, u"empty", u"");
            SetComment(d->root, u" \u00fcber ");
            XmlNode *c = child(d->root, u"c_1", (tricky + u"\r\n").c_str());
            SetAttribute(c, u"n-2", u"\u20ac\u0153");
            SetComment(c, u"second");
            child(c, u"blank", u"   ");
            child(d->root, u"end", u"  lead");
            std::string path = xmltest::tempPath("round.xml");
            xmltest::written(d.get(), flags, nullptr, "round.xml");
            Doc back(CreateDocument());
            int32_t line, column;
            ASSERT_EQ(LoadDocument(back.get(), mx::fromUtf8(path).c_str(), &line, &column), 0);
            EXPECT_EQ(back->encoding, e);
            std::string euro = e == XMLENC_ISO8859_1 ? "??" : "\u20ac\u0153";
            std::string s = mx::toUtf8(tricky.c_str());
            std::string comments = flags ? "( \u00fcber )" : "";
            EXPECT_EQ(dump(back->root), "root[v=" + s + "][empty=]" + comments + "<c_1[n-2=" + euro + "]{" + s +
                                            "}" + (flags ? "(second)" : "") + "<blank>,end{  lead}>");
        }
    }
}

TEST(XmlParser, IndentedTextsKeepTheNextLinesIndentation) {
    Doc d = xmltest::newDocument(u"r");
    XmlNode *m = child(d->root, u"m", u"mid");
    child(m, u"leaf", u"x");
    std::string path = xmltest::tempPath("indent.xml");
    xmltest::written(d.get(), XMLWF_INDENT, nullptr, "indent.xml");
    Doc back(CreateDocument());
    int32_t line, column;
    ASSERT_EQ(LoadDocument(back.get(), mx::fromUtf8(path).c_str(), &line, &column), 0);
    EXPECT_EQ(dump(back->root), "r<m{mid\r\n  }<leaf{x}>>");
}
