// Character vectors filled to their last element carry no terminator. Every
// family that reads a text argument must stop at the vector's capacity: under
// the address sanitizer a read past it fails the test, and the results below
// show that exactly the vector's characters were used.
#include <gtest/gtest.h>

#include "macro_harness.h"

namespace {

// Declares char NAME[n] holding exactly the n characters of text, no zero.
std::string full(const std::string &name, const std::string &text) {
    std::string head = text.substr(0, text.size() - 1);
    return "char " + name + "[" + std::to_string(text.size()) + "]; " + name + " = \"" + head + "\"; " + name +
           "[" + std::to_string(text.size() - 1) + "] = '" + text.back() + "'; ";
}

MacroRun run(const std::string &body) { return runMemory(u16(body)); }

}  // namespace

TEST(UnterminatedText, LanguageFamily) {
    std::string dir = scratchDir();
    MacroRun r = run(full("u", "xy") + "static int xy; Print(IsDeclared(u));");
    EXPECT_EQ(r.output, "1\n");

    r = run(full("u", dir + "/none.mac") + "Print(Call(u));");
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 1 des Makros \n\nDie Datei '" + dir +
                            "/none.mac' existiert nicht\n\n-1\n");

    r = run(full("u", dir + "/p.mac") + full("v", "b") + "Print(CallWithParams(u, v, v, v, v, v));");
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 1 des Makros \n\nDie Datei '" + dir +
                            "/p.mac' existiert nicht\n\n-1\n");
    writeFile(dir + "/p.mac",
              "Macro \"P\" begin char s[20]; GetMacroParameter(1, s); Print(s); GetMacroParameter(5, s); Print(s); end");
    r = run(full("u", dir + "/p.mac") + full("v", "bc") + "Print(CallWithParams(u, v, v, v, v, v));");
    EXPECT_EQ(r.output, "bc\nbc\n0\n");
}

TEST(UnterminatedText, TraceFileNameAndShownText) {
    std::string dir = scratchDir();
    MacroRun r = run(full("f", dir + "/t.log") + full("u", "xy") +
                     "TraceFile(f); TraceFunction(1); StrLen(u); TraceFunction(0);");
    EXPECT_EQ(r.result, 0);
    EXPECT_NE(readFile(dir + "/t.log").find("StrLen (\"xy\")    Funktionswert: 2\r\n"), std::string::npos);
}

TEST(UnterminatedText, TextFamily) {
    MacroRun r = run(full("u", "xy") + "char d[10]; Print(StrLen(u)); Print(StrCmp(u, \"xy\")); Print(StrStr(u, \"y\"));"
                                       " Print(FindString(u, \"y\", 0)); LeftString(u, 5, d); Print(d);"
                                       " StrCat(d, u); Print(d); Print(IsStringWhite(u)); Print(IsDigitString(u));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "2\n0\n1\n2\nxy\nxyxy\n0\n0\n");
}

TEST(UnterminatedText, NumberFamily) {
    MacroRun r = run(full("u", "42") + full("d", "03.02.2001") + "float f; int a; int b; int c;"
                     " Print(StringToInt(u)); StringToFloat(u, f); Print(f); Print(DateToInt(d));"
                     " DisassembleDate(d, a, b, c); Print(a); Print(b); Print(c);");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "42\n42.000000\n730519\n3\n2\n2001\n");
}

TEST(UnterminatedText, FileFamily) {
    std::string dir = scratchDir();
    MacroRun r = run(full("p", dir + "/a.ini") + full("s", "sec") + full("k", "key") + full("v", "val") +
                     "char out[10]; Print(WriteProfile(p, s, k, v)); ReadProfile(p, s, k, out); Print(out);" +
                     full("n", dir + "/f.txt") + full("m", "w") +
                     "int h; h = OpenFile(n, m); Print(h > 0); WriteFile(h, v); CloseFile(h);");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output.substr(r.output.size() - 6), "val\n1\n");
    EXPECT_EQ(readFile(dir + "/f.txt"), "val");
}

TEST(UnterminatedText, XmlFamily) {
    std::string dir = scratchDir();
    MacroRun r = run(full("n", "root") + full("e", "utf8") + full("p", dir + "/x.xml") + full("a", "k") +
                     "int d; d = XMLCreate(n, e); XMLSetAttr(XMLGetRoot(d), a, n); XMLAddChild(XMLGetRoot(d), a, e);"
                     " Print(XMLWriteFile(d, p, 0)); XMLDelete(d);");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "1\n");
    std::string xml = readFile(dir + "/x.xml");
    EXPECT_NE(xml.find("<root k=\"root\">"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<k>utf8</k>"), std::string::npos) << xml;
}
