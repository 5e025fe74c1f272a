// The XML engine's tree and its built-ins: the document model (order, names,
// attributes, comments, clearing, deep trees, exhausted memory), the handle
// functions (stale, foreign and wrong-kind handles, boxes on failure) and
// macros whose documents outlive their run.
#include <gtest/gtest.h>

#include <cstring>

#include "base/u16.h"
#include "xml/xml_alloc.h"
#include "xml/xml_functions.h"
#include "xml/xml_handles.h"
#include "xml_test_util.h"

using namespace mx::xml;
using xmltest::Doc;

namespace {

// Attribute names and values in list order, checking the links both ways.
std::string attributes(const XmlNode *n) {
    std::string out;
    const XmlAttribute *prev = nullptr;
    uint32_t count = 0;
    for (const XmlAttribute *a = n->firstAttribute; a; prev = a, a = a->next, ++count) {
        EXPECT_EQ(a->previous, prev);
        out += mx::toUtf8(a->name) + "=" + mx::toUtf8(a->value) + ";";
    }
    EXPECT_EQ(n->lastAttribute, prev);
    EXPECT_EQ(n->attributeCount, count);
    return out;
}

// Child names in list order, checking links, parents and the count.
std::string children(const XmlNode *n) {
    std::string out;
    const XmlNode *prev = nullptr;
    uint32_t count = 0;
    for (const XmlNode *c = n->firstChild; c; prev = c, c = c->nextSibling, ++count) {
        EXPECT_EQ(c->previousSibling, prev);
        EXPECT_EQ(c->parent, n);
        out += (c->name ? mx::toUtf8(c->name) : std::string("(null)")) + ";";
    }
    EXPECT_EQ(n->lastChild, prev);
    EXPECT_EQ(n->childCount, count);
    return out;
}

}  // namespace

TEST(XmlModel, NewDocumentHasUtf8SpaceIndentAndEmptyRoot) {
    Doc d(CreateDocument());
    ASSERT_NE(d->root, nullptr);
    EXPECT_EQ(d->encoding, XMLENC_UTF8);
    EXPECT_EQ(d->indent, ' ');
    XmlNode empty{};
    EXPECT_EQ(std::memcmp(d->root, &empty, sizeof empty), 0);
}

TEST(XmlModel, ChildrenKeepInsertionOrderAndCopyTheirNames) {
    Doc d = xmltest::newDocument(u"r");
    char16_t name[] = u"first";
    XmlNode *a, *b, *c;
    ASSERT_EQ(AddChild(d->root, name, &a), 0);
    name[0] = u'F';  // the model holds its own copy
    ASSERT_EQ(AddChild(d->root, u"second", &b), 0);
    ASSERT_EQ(AddChild(d->root, nullptr, &c), 0);
    EXPECT_EQ(children(d->root), "first;second;(null);");
    EXPECT_EQ(c->name, nullptr);
    EXPECT_TRUE(mx::u16IsWhiteText(c->name));
    EXPECT_EQ(c->text, nullptr);
}

TEST(XmlModel, SetAttributeReplacesInPlaceAndComparesCaseSensitively) {
    Doc d = xmltest::newDocument(u"r");
    XmlNode *r = d->root;
    EXPECT_EQ(SetAttribute(r, u"a", u"1"), 0);
    EXPECT_EQ(SetAttribute(r, u"b", u"2"), 0);
    EXPECT_EQ(SetAttribute(r, u"a", u"3"), 0);
    EXPECT_EQ(SetAttribute(r, u"A", u"4"), 0);
    EXPECT_EQ(SetAttribute(r, u"b", nullptr), 0);
    EXPECT_EQ(attributes(r), "a=3;b=;A=4;");
    ASSERT_NE(r->firstAttribute->next->value, nullptr);  // absent value: empty text
}

TEST(XmlModel, FindAttributeTreatsAbsentNamesAsEmpty) {
    Doc d = xmltest::newDocument(u"r");
    XmlAttribute *unnamed;
    ASSERT_EQ(AddAttribute(d->root, &unnamed), 0);
    EXPECT_EQ(FindAttribute(d->root, u""), unnamed);
    EXPECT_EQ(FindAttribute(d->root, nullptr), unnamed);
    EXPECT_EQ(FindAttribute(d->root, u"x"), nullptr);
    EXPECT_EQ(SetAttribute(d->root, u"", u"v"), 0);  // finds the unnamed one
    EXPECT_EQ(d->root->attributeCount, 1u);
    EXPECT_EQ(FindAttribute(d->root, u"ab"), nullptr);
    SetAttribute(d->root, u"ab", u"1");
    EXPECT_EQ(FindAttribute(d->root, u"a"), nullptr);  // no prefix matches
    EXPECT_EQ(FindAttribute(d->root, u"abc"), nullptr);
}

TEST(XmlModel, SetCommentTurnsEveryArrowIntoGreaterThan) {
    struct Case {
        const char16_t *in;
        const char16_t *stored;
    } cases[] = {
        {u"a-->b-->c", u"a>b>c"},
        {u"--->", u"->"},
        {u"---->", u"-->"},
        {u"-- >", u"-- >"},
        {u"-->-->", u">>"},
        {u"", u""},
        {u"plain", u"plain"},
    };
    Doc d = xmltest::newDocument(u"r");
    for (const Case &c : cases) {
        EXPECT_EQ(SetComment(d->root, c.in), 0);
        EXPECT_TRUE(mx::u16Eq(d->root->comment, c.stored)) << mx::toUtf8(c.in);
    }
    SetComment(d->root, nullptr);
    EXPECT_EQ(d->root->comment, nullptr);
}

TEST(XmlModel, SetTextAndSetNameHandleAbsentTexts) {
    Doc d = xmltest::newDocument(u"r");
    EXPECT_EQ(SetText(d->root, nullptr), 0);
    ASSERT_NE(d->root->text, nullptr);
    EXPECT_EQ(d->root->text[0], 0);
    EXPECT_TRUE(mx::u16IsWhiteText(d->root->text));
    EXPECT_EQ(SetName(d->root, nullptr), 0);
    EXPECT_EQ(d->root->name, nullptr);
}

TEST(XmlModel, ClearNodeEmptiesTheNodeAndKeepsItsPlace) {
    Doc d = xmltest::newDocument(u"r");
    XmlNode *a = xmltest::child(d->root, u"a", u"t");
    XmlNode *b = xmltest::child(d->root, u"b");
    xmltest::child(a, u"deep");
    SetAttribute(a, u"x", u"1");
    SetComment(a, u"c");
    ClearNode(a);
    ClearNode(a);  // twice is harmless
    EXPECT_EQ(a->name, nullptr);
    EXPECT_EQ(a->text, nullptr);
    EXPECT_EQ(a->comment, nullptr);
    EXPECT_EQ(a->firstChild, nullptr);
    EXPECT_EQ(a->firstAttribute, nullptr);
    EXPECT_EQ(a->childCount + a->attributeCount, 0u);
    EXPECT_EQ(a->parent, d->root);
    EXPECT_EQ(a->nextSibling, b);
    EXPECT_EQ(children(d->root), "(null);b;");
}

TEST(XmlModel, DeepTreesAreReleasedWithoutRecursion) {
    Doc d = xmltest::newDocument(u"r");
    XmlNode *n = d->root;
    for (int i = 0; i < 200000; ++i) n = xmltest::child(n, u"n", u"x");
    int depth = 0;
    for (const XmlNode *p = n; p->parent; p = p->parent) ++depth;
    ASSERT_EQ(depth, 200000);
    d.reset();  // released recursively, this would end the test program with a stack overflow
}

// Every allocation of every operation fails in turn: the operation answers
// -2 and the tree stays consistent (checked by the link walks above).
TEST(XmlModel, ExhaustedMemoryAnswersMinusTwoAndKeepsTheTreeConsistent) {
    xmltest::AllocationGuard guard;
    for (int allowed = 0; allowed < 3; ++allowed) {
        SCOPED_TRACE(allowed);
        Doc d = xmltest::newDocument(u"r");
        XmlNode *kept = xmltest::child(d->root, u"kept");
        SetAttribute(d->root, u"k", u"v");
        xmlFailAllocationsAfter(allowed);
        XmlNode *c = nullptr;
        int32_t add = AddChild(d->root, u"new", &c);
        xmlFailAllocationsAfter(allowed);
        int32_t attr = SetAttribute(d->root, u"n", u"w");
        xmlFailAllocationsAfter(allowed);
        int32_t text = SetText(kept, u"text");
        xmlFailAllocationsAfter(-1);
        if (allowed < 2) {
            EXPECT_EQ(add, XMLERR_NOMEM);
            EXPECT_EQ(c, nullptr);
            EXPECT_EQ(children(d->root), "kept;");
        } else {
            EXPECT_EQ(add, 0);
            EXPECT_EQ(children(d->root), "kept;new;");
        }
        EXPECT_EQ(text, allowed == 0 ? XMLERR_NOMEM : 0);
        EXPECT_EQ(kept->text == nullptr, allowed == 0);
        // attribute record, name copy, value copy: a record that could not
        // be made is not linked; one made stays, with what could be copied
        EXPECT_EQ(attr, XMLERR_NOMEM);
        std::string attrs = attributes(d->root);
        EXPECT_EQ(attrs, allowed == 0 ? "k=v;" : allowed == 1 ? "k=v;=;" : "k=v;n=;");
    }
}

using xmltest::BoxCapture;

namespace {

const std::string kNoMemoryBox = "Makrofehler: s Speichrmangel\n";

std::string writeBytes(int32_t doc, int32_t flags = 0, int32_t *result = nullptr) {
    std::string path = xmltest::tempPath("f.xml");
    int32_t r = xmlWriteFile(doc, mx::fromUtf8(path).c_str(), flags);
    if (result) *result = r;
    return readFile(path);
}

}  // namespace

// After XMLDelete no handle of the document works, none is reused, and
// handles of a document never work as node handles or the reverse.
TEST(XmlFunctions, StaleForeignAndWrongKindHandlesFailWithoutEffect) {
    int64_t before = xmlHandleCount();
    int32_t doc = xmlCreate(u"r", u"");
    int32_t root = xmlGetRoot(doc);
    int32_t child = xmlAddChild(root, u"c", u"");
    int32_t other = xmlCreate(u"o", u"");
    EXPECT_EQ(xmlHandleCount(), before + 4);

    BoxCapture boxes;
    // wrong kinds
    EXPECT_EQ(xmlAddChild(doc, u"x", u""), 0);
    EXPECT_EQ(xmlSetAttr(doc, u"x", u""), 2);
    EXPECT_EQ(xmlGetRoot(root), 0);
    EXPECT_EQ(xmlWriteFile(child, u"/tmp/never-written.xml", 0), 2);
    EXPECT_EQ(xmlDelete(root), 1);  // a node handle deletes nothing
    EXPECT_EQ(xmlGetRoot(doc), root);
    // foreign numbers
    for (int32_t h : {-1, 0x7FFFFFFF, int32_t(0x80000000), other + 1000, 3 * other + 7}) {
        EXPECT_EQ(xmlAddChild(h, u"x", u""), 0) << h;
        EXPECT_EQ(xmlSetAttr(h, u"x", u""), 2) << h;
        EXPECT_EQ(xmlGetRoot(h), 0) << h;
        EXPECT_EQ(xmlWriteFile(h, u"/tmp/never-written.xml", 0), 2) << h;
        EXPECT_EQ(xmlDelete(h), 1) << h;
    }
    // stale
    EXPECT_EQ(xmlDelete(doc), 1);
    EXPECT_EQ(xmlDelete(doc), 1);
    EXPECT_EQ(xmlGetRoot(doc), 0);
    EXPECT_EQ(xmlAddChild(root, u"x", u""), 0);
    EXPECT_EQ(xmlAddChild(child, u"x", u""), 0);
    EXPECT_EQ(xmlSetAttr(child, u"x", u""), 2);
    EXPECT_EQ(xmlWriteFile(doc, u"/tmp/never-written.xml", 0), 2);
    EXPECT_EQ(boxes.text(), "");
    EXPECT_EQ(xmlHandleCount(), before + 1);

    // the other document is untouched, and new handles are new numbers
    int32_t again = xmlCreate(u"n", u"");
    for (int32_t old : {doc, root, child, other}) EXPECT_NE(again, old);
    EXPECT_EQ(xmlGetRoot(other) > 0, true);
    EXPECT_EQ(writeBytes(other), "<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>\r\n<o/>\r\n");
    xmlDelete(other);
    xmlDelete(again);
    EXPECT_EQ(xmlHandleCount(), before);
}

TEST(XmlFunctions, WriteFailureShowsTheCodeAndFileName) {
    int32_t doc = xmlCreate(u"r", u"");
    std::string path = xmltest::tempPath("missing/dir/out.xml");
    BoxCapture boxes;
    EXPECT_EQ(xmlWriteFile(doc, mx::fromUtf8(path).c_str(), 0), 2);
    EXPECT_EQ(boxes.text(),
              "XML-Fehler: XML-Fehler -12: Die Datei oder ihr Verzeichnis existiert nicht.\n\n" + path + "\n");
    xmlDelete(doc);
}

TEST(XmlFunctions, ExhaustedMemoryShowsItsBoxAndAnswersTheFailureResult) {
    xmltest::AllocationGuard guard;
    {
        BoxCapture boxes;
        xmlFailAllocationsAfter(0);
        EXPECT_EQ(xmlCreate(u"r", u""), 0);
        xmlFailAllocationsAfter(1);  // the document, but not its root
        EXPECT_EQ(xmlCreate(u"r", u""), -1);
        xmlFailAllocationsAfter(-1);
        EXPECT_EQ(boxes.text(), kNoMemoryBox + kNoMemoryBox);
    }
    int32_t doc = xmlCreate(u"r", u"");
    int32_t root = xmlGetRoot(doc);
    BoxCapture boxes;
    xmlFailAllocationsAfter(0);
    EXPECT_EQ(xmlAddChild(root, u"a", u"t"), 0);
    EXPECT_EQ(xmlSetAttr(root, u"a", u"v"), 2);
    xmlFailAllocationsAfter(-1);
    std::string box = "XML-Fehler: XML-Fehler -2: Nicht genügend Speicher, oder ein Text lässt sich nicht umwandeln.\n";
    EXPECT_EQ(boxes.text(), box + box);
    xmlDelete(doc);
}

namespace {

std::u16string text(const std::string &utf8) { return u16(utf8); }

}  // namespace

// A handle passed as a number to later runs names the same document until
// XMLDelete; no run end releases it.
TEST(XmlMacro, DocumentsOutliveTheirRun) {
    MacroRun first = runMemory(text("int d; d = XMLCreate(\"r\", \"utf8\"); XMLAddChild(XMLGetRoot(d), \"a\", \"1\"); Print(d);"));
    ASSERT_EQ(first.result, 0);
    std::string handle = first.output.substr(0, first.output.size() - 1);
    std::string path = xmltest::tempPath("later.xml");
    MacroRun second = runMemory(text("XMLAddChild(XMLGetRoot(" + handle + "), \"b\", \"2\");"
                                     "Print(XMLWriteFile(" + handle + ", \"" + path + "\", 0));"));
    EXPECT_EQ(second.output, "1\n");
    EXPECT_EQ(readFile(path), xmltest::crlf({"<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<r>", "<a>1</a>",
                                             "<b>2</b>", "</r>"}));
    MacroRun third = runMemory(text("Print(XMLDelete(" + handle + ")); Print(XMLGetRoot(" + handle + "));"));
    EXPECT_EQ(third.output, "1\n0\n");
}

// A character vector filled to its last element has no terminator: the
// functions read it up to its capacity.
TEST(XmlMacro, UnterminatedVectorsAreReadUpToTheirCapacity) {
    std::string path = xmltest::tempPath("vector.xml");
    MacroRun r = runMemory(text(
        "char n[2]; int d; n[0] = 'a'; n[1] = 'b';"
        "d = XMLCreate(n, \"utf8\");"
        "XMLSetAttr(XMLGetRoot(d), n, n);"
        "Print(XMLWriteFile(d, \"" + path + "\", 0)); XMLDelete(d);"));
    EXPECT_EQ(r.output, "1\n");
    EXPECT_EQ(readFile(path), xmltest::crlf({"<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<ab ab=\"ab\"/>"}));
}
