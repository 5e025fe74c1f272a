// The load operation: what it accepts, every error where it stands with
// line and column, and round trips through the writer in every encoding.
#include <gtest/gtest.h>

#include "base/u16.h"
#include "xml/xml_alloc.h"
#include "xml/xml_encoding.h"
#include "xml/xml_parser.h"
#include "xml_test_util.h"

using namespace mx::xml;
using xmltest::child;
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

TEST(XmlParser, HtmlOutputDoesNotLoad) {
    Doc d = xmltest::newDocument(u"html");
    child(d->root, u"p", u"x");
    xmltest::written(d.get(), XMLWF_HTML, nullptr, "page.html");
    int32_t line, column;
    Doc back(CreateDocument());
    EXPECT_EQ(LoadDocument(back.get(), mx::fromUtf8(xmltest::tempPath("page.html")).c_str(), &line, &column),
              XMLERR_NOPROLOG);
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
