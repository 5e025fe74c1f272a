// The writer, byte for byte: the worked examples, every flag, the HTML
// rules, failures, and the output checked by xmllint and iconv.
#include <gtest/gtest.h>

#include "xml/xml_alloc.h"
#include "xml/xml_encoding.h"
#include "xml/xml_functions.h"
#include "xml_test_util.h"

using namespace mx::xml;
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

struct AllocationGuard {
    ~AllocationGuard() { xmlFailAllocationsAfter(-1); }
};

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

TEST(XmlWriter, HtmlExampleWithVoidElements) {
    int32_t doc = xmlCreate(u"html", u"");
    int32_t body = xmlAddChild(xmlGetRoot(doc), u"body", u"");
    xmlSetAttr(xmlAddChild(body, u"img", u""), u"src", u"a.png");
    xmlAddChild(body, u"p", u"Hi");
    xmlAddChild(body, u"br", u"");
    EXPECT_EQ(writtenByHandle(doc, XMLWF_HTML),
              crlf({"<!DOCTYPE HTML>", "", "<html>", "<body>", "<img src=\"a.png\">", "<p>Hi</p>",
                    "<br></br>", "</body>", "</html>"}));
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

TEST(XmlWriter, CharactersInEachEncoding) {
    struct Case {
        XmlEncoding e;
        std::string bytes;
    } cases[] = {
        {XMLENC_UTF8, "\xC3\xA4\xE2\x82\xAC\xD0\x96"},
        {XMLENC_ISO8859_1, "\xE4??"},
        {XMLENC_ISO8859_15, "\xE4\xA4?"},
        {XMLENC_WIN1252, "\xE4\x80?"},
    };
    for (const Case &c : cases) {
        auto d = xmltest::newDocument(u"r", c.e);
        SetText(d->root, u"\u00e4\u20ac\u0416");
        std::string file = written(d.get(), 0);
        EXPECT_NE(file.find("<r>" + c.bytes + "</r>\r\n"), std::string::npos) << c.e;
    }
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
    AllocationGuard guard;
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
