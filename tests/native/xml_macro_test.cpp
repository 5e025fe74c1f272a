// The XML built-ins called from macros: documents that outlive their run
// and texts read from character vectors.
#include <gtest/gtest.h>

#include "xml_test_util.h"

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
