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
    int32_t r = xmlWriteFile(doc, mx::fromUtf8(path).c_str(), flags);
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
        int32_t doc = xmlCreate(u"r", c.code);
        ASSERT_GT(doc, 0);
        EXPECT_EQ(writeBytes(doc), std::string("<?xml version=\"1.0\" encoding=\"") + c.declared +
                                       "\"?>\r\n<r/>\r\n");
        xmlDelete(doc);
    }
}

TEST(XmlFunctions, RootHandleIsStableAndChildrenGetNewHandles) {
    int32_t doc = xmlCreate(u"r", u"UTF-8");
    int32_t root = xmlGetRoot(doc);
    EXPECT_NE(root, 0);
    EXPECT_NE(root, doc);
    EXPECT_EQ(xmlGetRoot(doc), root);
    int32_t a = xmlAddChild(root, u"a", u"1");
    int32_t b = xmlAddChild(root, u"b", u"2");
    EXPECT_NE(a, 0);
    EXPECT_NE(a, b);
    EXPECT_EQ(xmlSetAttr(a, u"k", u"v"), 1);
    EXPECT_EQ(xmlSetAttr(a, u"k", u"w"), 1);
    int32_t unnamed = xmlAddChild(a, u"", u"kept but not written");
    EXPECT_NE(unnamed, 0);
    EXPECT_NE(unnamed, b);
    EXPECT_EQ(writeBytes(doc), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r>\r\n<a k=\"w\">\r\n1\r\n"
                               "</a>\r\n<b>2</b>\r\n</r>\r\n");
    EXPECT_EQ(xmlDelete(doc), 1);
}

TEST(XmlFunctions, ZeroHandlesFailQuietly) {
    BoxCapture boxes;
    EXPECT_EQ(xmlAddChild(0, u"a", u"b"), 0);
    EXPECT_EQ(xmlSetAttr(0, u"a", u"b"), 2);
    EXPECT_EQ(xmlDelete(0), 1);
    EXPECT_EQ(xmlGetRoot(0), 0);
    EXPECT_EQ(xmlWriteFile(0, mx::fromUtf8(xmltest::tempPath("zero.xml")).c_str(), 0), 2);
    EXPECT_EQ(boxes.text(), "");
    EXPECT_EQ(readFile(xmltest::tempPath("zero.xml")), "");  // nothing created
}

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
    AllocationGuard guard;
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
