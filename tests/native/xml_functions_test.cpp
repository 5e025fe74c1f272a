// The XML built-ins on plain values: results, boxes, and handles that are
// 0, stale, unknown or of the wrong kind.
#include <gtest/gtest.h>

#include "xml/xml_alloc.h"
#include "xml/xml_functions.h"
#include "xml/xml_handles.h"
#include "xml_test_util.h"

using namespace mx::xml;
using xmltest::BoxCapture;

namespace {

const std::string kNoMemoryBox = "Makrofehler: s Speichrmangel\n";

std::string writeBytes(int32_t doc, int32_t flags = 0, int32_t *result = nullptr) {
    std::string path = xmltest::tempPath("f.xml");
    int32_t r = XMLWriteFile(doc, mx::fromUtf8(path).c_str(), flags);
    if (result) *result = r;
    return readFile(path);
}

struct AllocationGuard {
    ~AllocationGuard() { xmlFailAllocationsAfter(-1); }
};

}  // namespace

TEST(XmlFunctions, CreateNamesTheEncodingFromItsCode) {
    struct Case {
        const char16_t *code;
        const char *declared;
    } cases[] = {{u"", "ISO-8859-15"},     {u"  ", "ISO-8859-15"}, {nullptr, "ISO-8859-15"},
                 {u"EBCDIC", "ISO-8859-15"}, {u"utf8", "UTF-8"},    {u"windows-1252", "WINDOWS-1252"}};
    for (const Case &c : cases) {
        int32_t doc = XMLCreate(u"r", c.code);
        ASSERT_GT(doc, 0);
        EXPECT_EQ(writeBytes(doc), std::string("<?xml version=\"1.0\" encoding=\"") + c.declared +
                                       "\"?>\r\n<r/>\r\n");
        XMLDelete(doc);
    }
}

TEST(XmlFunctions, RootHandleIsStableAndChildrenGetNewHandles) {
    int32_t doc = XMLCreate(u"r", u"UTF-8");
    int32_t root = XMLGetRoot(doc);
    EXPECT_NE(root, 0);
    EXPECT_NE(root, doc);
    EXPECT_EQ(XMLGetRoot(doc), root);
    int32_t a = XMLAddChild(root, u"a", u"1");
    int32_t b = XMLAddChild(root, u"b", u"2");
    EXPECT_NE(a, 0);
    EXPECT_NE(a, b);
    EXPECT_EQ(XMLSetAttr(a, u"k", u"v"), 1);
    EXPECT_EQ(XMLSetAttr(a, u"k", u"w"), 1);
    int32_t unnamed = XMLAddChild(a, u"", u"kept but not written");
    EXPECT_NE(unnamed, 0);
    EXPECT_NE(unnamed, b);
    EXPECT_EQ(writeBytes(doc), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r>\r\n<a k=\"w\">\r\n1\r\n"
                               "</a>\r\n<b>2</b>\r\n</r>\r\n");
    EXPECT_EQ(XMLDelete(doc), 1);
}

TEST(XmlFunctions, ZeroHandlesFailQuietly) {
    BoxCapture boxes;
    EXPECT_EQ(XMLAddChild(0, u"a", u"b"), 0);
    EXPECT_EQ(XMLSetAttr(0, u"a", u"b"), 2);
    EXPECT_EQ(XMLDelete(0), 1);
    EXPECT_EQ(XMLGetRoot(0), 0);
    EXPECT_EQ(XMLWriteFile(0, mx::fromUtf8(xmltest::tempPath("zero.xml")).c_str(), 0), 2);
    EXPECT_EQ(boxes.text(), "");
    EXPECT_EQ(readFile(xmltest::tempPath("zero.xml")), "");  // nothing created
}

// After XMLDelete no handle of the document works, none is reused, and
// handles of a document never work as node handles or the reverse.
TEST(XmlFunctions, StaleForeignAndWrongKindHandlesFailWithoutEffect) {
    int64_t before = xmlHandleCount();
    int32_t doc = XMLCreate(u"r", u"");
    int32_t root = XMLGetRoot(doc);
    int32_t child = XMLAddChild(root, u"c", u"");
    int32_t other = XMLCreate(u"o", u"");
    EXPECT_EQ(xmlHandleCount(), before + 4);

    BoxCapture boxes;
    // wrong kinds
    EXPECT_EQ(XMLAddChild(doc, u"x", u""), 0);
    EXPECT_EQ(XMLSetAttr(doc, u"x", u""), 2);
    EXPECT_EQ(XMLGetRoot(root), 0);
    EXPECT_EQ(XMLWriteFile(child, u"/tmp/never-written.xml", 0), 2);
    EXPECT_EQ(XMLDelete(root), 1);  // a node handle deletes nothing
    EXPECT_EQ(XMLGetRoot(doc), root);
    // foreign numbers
    for (int32_t h : {-1, 0x7FFFFFFF, int32_t(0x80000000), other + 1000, 3 * other + 7}) {
        EXPECT_EQ(XMLAddChild(h, u"x", u""), 0) << h;
        EXPECT_EQ(XMLSetAttr(h, u"x", u""), 2) << h;
        EXPECT_EQ(XMLGetRoot(h), 0) << h;
        EXPECT_EQ(XMLWriteFile(h, u"/tmp/never-written.xml", 0), 2) << h;
        EXPECT_EQ(XMLDelete(h), 1) << h;
    }
    // stale
    EXPECT_EQ(XMLDelete(doc), 1);
    EXPECT_EQ(XMLDelete(doc), 1);
    EXPECT_EQ(XMLGetRoot(doc), 0);
    EXPECT_EQ(XMLAddChild(root, u"x", u""), 0);
    EXPECT_EQ(XMLAddChild(child, u"x", u""), 0);
    EXPECT_EQ(XMLSetAttr(child, u"x", u""), 2);
    EXPECT_EQ(XMLWriteFile(doc, u"/tmp/never-written.xml", 0), 2);
    EXPECT_EQ(boxes.text(), "");
    EXPECT_EQ(xmlHandleCount(), before + 1);

    // the other document is untouched, and new handles are new numbers
    int32_t again = XMLCreate(u"n", u"");
    for (int32_t old : {doc, root, child, other}) EXPECT_NE(again, old);
    EXPECT_EQ(XMLGetRoot(other) > 0, true);
    EXPECT_EQ(writeBytes(other), "<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>\r\n<o/>\r\n");
    XMLDelete(other);
    XMLDelete(again);
    EXPECT_EQ(xmlHandleCount(), before);
}

TEST(XmlFunctions, WriteFailureShowsTheCodeAndFileName) {
    int32_t doc = XMLCreate(u"r", u"");
    std::string path = xmltest::tempPath("missing/dir/out.xml");
    BoxCapture boxes;
    EXPECT_EQ(XMLWriteFile(doc, mx::fromUtf8(path).c_str(), 0), 2);
    EXPECT_EQ(boxes.text(),
              "XML-Fehler: XML-Fehler -12: Die Datei oder ihr Verzeichnis existiert nicht.\n\n" + path + "\n");
    XMLDelete(doc);
}

TEST(XmlFunctions, ExhaustedMemoryShowsItsBoxAndAnswersTheFailureResult) {
    AllocationGuard guard;
    {
        BoxCapture boxes;
        xmlFailAllocationsAfter(0);
        EXPECT_EQ(XMLCreate(u"r", u""), 0);
        xmlFailAllocationsAfter(1);  // the document, but not its root
        EXPECT_EQ(XMLCreate(u"r", u""), -1);
        xmlFailAllocationsAfter(-1);
        EXPECT_EQ(boxes.text(), kNoMemoryBox + kNoMemoryBox);
    }
    int32_t doc = XMLCreate(u"r", u"");
    int32_t root = XMLGetRoot(doc);
    BoxCapture boxes;
    xmlFailAllocationsAfter(0);
    EXPECT_EQ(XMLAddChild(root, u"a", u"t"), 0);
    EXPECT_EQ(XMLSetAttr(root, u"a", u"v"), 2);
    xmlFailAllocationsAfter(-1);
    std::string box = "XML-Fehler: XML-Fehler -2: Nicht genügend Speicher, oder ein Text lässt sich nicht umwandeln.\n";
    EXPECT_EQ(boxes.text(), box + box);
    XMLDelete(doc);
}
