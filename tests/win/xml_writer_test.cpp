// The XML writer of morvix32w.dll, byte for byte: the worked examples and
// characters in each encoding, through macros like any host runs them. The
// native tests expect the same bytes, so both builds agree.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "win_harness.h"

namespace {

std::string crlf(const std::vector<std::string> &lines) {
    std::string out;
    for (const std::string &l : lines) out += l + "\r\n";
    return out;
}

std::u16string u16(const std::wstring &w) { return std::u16string(w.begin(), w.end()); }
std::u16string u16(const char *ascii) { return u16(std::wstring(ascii, ascii + strlen(ascii))); }

// Escapes backslashes of a Windows path for a text constant of a macro.
std::u16string macroString(const std::wstring &path) {
    std::u16string out = u"\"";
    for (wchar_t c : path) {
        if (c == L'\\') out += u'\\';
        out += char16_t(c);
    }
    return out + u"\"";
}

struct Written {
    WinRun run;
    std::string bytes;
};

// Runs statements that build document d, then writes it with flags.
Written writeWith(const std::u16string &build, int flags) {
    std::wstring path = winScratchDir() + L"\\out.xml";
    Written w;
    w.run = winRunMemory(u"int d; int r; int i;" + build + u"Print(XMLWriteFile(d, " + macroString(path) + u", " +
                         u16(std::to_string(flags).c_str()) + u")); XMLDelete(d);");
    w.bytes = winReadFile(path);
    return w;
}

const std::u16string kOrder =
    u"d = XMLCreate(\"order\", \"ISO-8859-1\"); r = XMLGetRoot(d);"
    u"XMLSetAttr(r, \"id\", \"4711\");"
    u"i = XMLAddChild(r, \"item\", \"Tom & Jerry <2>\");"
    u"XMLSetAttr(i, \"note\", \"a  \\\"b\\\"\");"
    u"XMLAddChild(i, \"qty\", \"3\");"
    u"XMLAddChild(r, \"empty\", \"\");";

}  // namespace

TEST(WinXmlWriter, WorkedExampleWithEachFlag) {
    std::vector<std::string> body = {"<order id=\"4711\">", "<item note=\"a &#x20;&#x22;b&#x22;\">",
                                     "Tom &#x26; Jerry &#x3C;2&#x3E;", "<qty>3</qty>", "</item>", "<empty/>",
                                     "</order>"};
    std::string decl = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>";
    Written indented = writeWith(kOrder, 4);
    EXPECT_EQ(indented.run.output, "1\n");
    EXPECT_EQ(indented.bytes, crlf({decl, "<order id=\"4711\">", " <item note=\"a &#x20;&#x22;b&#x22;\">",
                                    "  Tom &#x26; Jerry &#x3C;2&#x3E;", "  <qty>3</qty>", " </item>",
                                    " <empty/>", "</order>"}));
    std::vector<std::string> plain = body;
    plain.insert(plain.begin(), decl);
    EXPECT_EQ(writeWith(kOrder, 0).bytes, crlf(plain));
    std::vector<std::string> html = body;
    html[5] = "<empty></empty>";
    html.insert(html.begin(), {"<!DOCTYPE HTML>", ""});
    EXPECT_EQ(writeWith(kOrder, 1).bytes, crlf(html));
}

TEST(WinXmlWriter, HtmlExample) {
    Written w = writeWith(u"d = XMLCreate(\"html\", \"\"); i = XMLAddChild(XMLGetRoot(d), \"body\", \"\");"
                          u"XMLSetAttr(XMLAddChild(i, \"img\", \"\"), \"src\", \"a.png\");"
                          u"XMLAddChild(i, \"p\", \"Hi\"); XMLAddChild(i, \"br\", \"\");",
                          1);
    EXPECT_EQ(w.bytes, crlf({"<!DOCTYPE HTML>", "", "<html>", "<body>", "<img src=\"a.png\">", "<p>Hi</p>",
                             "<br></br>", "</body>", "</html>"}));
}

// Characters every code page holds come out as the same bytes as on the
// native build; a character without a place and without a best-fit
// character becomes "?".
TEST(WinXmlWriter, CharactersInEachEncoding) {
    struct Case {
        const char16_t *code;
        std::string bytes;
    } cases[] = {
        {u"utf8", "\xC3\xA4\xE2\x82\xAC\xD0\x96"},
        {u"ISO-8859-1", "\xE4??"},
        {u"ISO-8859-15", "\xE4\xA4?"},
        {u"WINDOWS-1252", "\xE4\x80?"},
    };
    for (const Case &c : cases) {
        Written w = writeWith(u"d = XMLCreate(\"r\", \"" + std::u16string(c.code) +
                                  u"\"); XMLAddChild(XMLGetRoot(d), \"t\", \"\u00e4\u20ac\u0416\");",
                              0);
        EXPECT_NE(w.bytes.find("<t>" + c.bytes + "</t>\r\n"), std::string::npos) << w.bytes;
    }
}

TEST(WinXmlWriter, AMissingDirectoryShowsMinusTwelve) {
    std::wstring path = winScratchDir() + L"\\missing\\out.xml";
    WinRun r = winRunMemory(u"int d; d = XMLCreate(\"r\", \"\"); Print(XMLWriteFile(d, " + macroString(path) +
                            u", 0)); XMLDelete(d);");
    std::string narrow(path.begin(), path.end());
    EXPECT_EQ(r.output, "XML-Fehler: XML-Fehler -12: Die Datei oder ihr Verzeichnis existiert nicht.\n\n" +
                            narrow + "\n2\n");
}

TEST(WinXmlWriter, DocumentsOutliveTheirRun) {
    WinRun first = winRunMemory(u"int d; d = XMLCreate(\"r\", \"utf8\"); Print(d);");
    std::string handle = first.output.substr(0, first.output.size() - 1);
    std::wstring path = winScratchDir() + L"\\later.xml";
    WinRun second = winRunMemory(u"XMLAddChild(XMLGetRoot(" + u16(handle.c_str()) + u"), \"a\", \"1\");" +
                                 u"Print(XMLWriteFile(" + u16(handle.c_str()) + u", " + macroString(path) + u", 0));");
    EXPECT_EQ(second.output, "1\n");
    EXPECT_EQ(winReadFile(path), crlf({"<?xml version=\"1.0\" encoding=\"UTF-8\"?>", "<r>", "<a>1</a>", "</r>"}));
    WinRun third = winRunMemory(u"Print(XMLDelete(" + u16(handle.c_str()) + u")); Print(XMLGetRoot(" +
                                u16(handle.c_str()) + u"));");
    EXPECT_EQ(third.output, "1\n0\n");
}
