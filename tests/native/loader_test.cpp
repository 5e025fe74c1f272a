// Loading macros: the normalising state machine, the file and memory
// loaders, the header, and Get_MacroHeader.
#include <gtest/gtest.h>

#include <string>

#include "engine/loader.h"
#include "base/utf8.h"
#include "engine/run_driver.h"
#include "macro_harness.h"

namespace {

// The normalised text of a memory macro.
std::string loadedMemory(const std::u16string &text) {
    mx::RunContext ctx;
    ctx.macroText = text.c_str();
    EXPECT_EQ(mx::ldLoad(ctx), 0);
    std::string s = mx::toUtf8(ctx.text, ctx.length);
    mx::ldRelease(ctx);
    return s;
}

struct FileFixture : ::testing::Test {
    std::string dir = scratchDir();
    std::u16string put(const std::string &name, const std::string &bytes) {
        writeFile(dir + "/" + name, bytes);
        return u16(dir + "/" + name);
    }
};

}  // namespace

TEST(Loader, NormalisesCommentsAndQuotes) {
    const struct {
        const char16_t *in;
        const char *out;
    } cases[] = {
        {u"Beep();", "Macro \"Mem\" begin Beep();\nend\n"},
        {u"x = 1; // comment \"\ny = 2;", "Macro \"Mem\" begin x = 1; \ny = 2;\nend\n"},
        {u"s = \"a // b\";", "Macro \"Mem\" begin s = \"a // b\";\nend\n"},
        {u"s = \"abc\nt = 'x", "Macro \"Mem\" begin s = \"abc\"\nt = 'x'\nend\n"},
        {u"a = 4 / 2; b = 1/", "Macro \"Mem\" begin a = 4 / 2; b = 1\nend\n"},
        {u"// only a comment", "Macro \"Mem\" begin \nend\n"},
        {u"c = '\"'; d = \"'\";", "Macro \"Mem\" begin c = '\"'; d = \"'\";\nend\n"},
    };
    for (const auto &c : cases) EXPECT_EQ(loadedMemory(c.in), c.out) << mx::toUtf8(c.in);
}

TEST(Loader, MemoryMacrosTurnDosLettersOutsideQuotes) {
    std::u16string text = u"x\x84 = \"\x84\x94\"; // \x81\n\x99\x9A\xE1\x8E\x81\x100;";
    std::string out = loadedMemory(text);
    EXPECT_EQ(out, mx::toUtf8(u"Macro \"Mem\" begin x\xE4 = \"\x84\x94\"; \n\xD6\xDC\xDF\xC4\xFC\x100;\nend\n"));
}

TEST_F(FileFixture, FileErrorsNameThePath) {
    std::u16string empty = put("empty.mac", "");
    CoreRun r = runCore(empty, true);
    EXPECT_EQ(r.errorCode, 118);
    EXPECT_EQ(r.errorArg, dir + "/empty.mac");
    r = runCore(u16(dir + "/missing.mac"), true);
    EXPECT_EQ(r.errorCode, 113);
    EXPECT_EQ(r.errorArg, dir + "/missing.mac");
    r = runCore(u16(" " + dir + "/missing.mac"), true);  // empty first word
    EXPECT_EQ(r.errorCode, 113);
    EXPECT_EQ(r.errorArg, "");
    r = runCore(u16(dir), true);  // a directory cannot be read
    EXPECT_EQ(r.errorCode, 115);
}

TEST_F(FileFixture, HeaderAndBody) {
    const struct {
        const char *text;
        int error;
        const char *printed;
    } cases[] = {
        {"  \n \n", 118, ""},
        {"macro \"x\" begin end", 117, ""},
        {"Makro \"x\" anfang Print(1); ende", 0, "1\n"},
        {"Macro x begin end", 151, ""},
        {"Macro \"x\nbegin Print(8); end", 0, "8\n"},
        {"Macro \"x\" begin exit; end", 0, ""},
        {"Macro \"x\" Print(2);", 0, "2\n"},
        {"Macro \"x\" begin Print(3); end this is ( not \" a macro", 0, "3\n"},
        {"Macro \"x\"\r\nbegin\r\n  Print(4);\r\nend\r\n", 0, "4\n"},
        {"Macro \"x\" begin Print(5); end\x1A garbage", 0, "5\n"},
        {"Macro \"x\" begin Print(6);\n// \"\nend", 0, "6\n"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        CoreRun r = runCore(put("m.mac", c.text), true);
        EXPECT_EQ(r.errorCode, c.error);
        EXPECT_EQ(r.output, c.printed);
        if (c.error == 117) { EXPECT_EQ(r.errorArg, "Macro"); }
    }
}

TEST_F(FileFixture, CommandWordsAndQuotedPaths) {
    writeFile(dir + "/my macro.mac", "Macro \"spaced\" begin Print(7); end");
    CoreRun r = runCore(u16("\"" + dir + "/my macro.mac\" 5 x"), true);
    EXPECT_EQ(r.errorCode, 0);
    EXPECT_EQ(r.output, "7\n");
}

TEST_F(FileFixture, GetMacroHeader) {
    std::u16string path = put("h.mac", "Macro \"Test\" begin end");
    char16_t name[50];
    EXPECT_EQ(Get_MacroHeader(path.c_str(), name, 50), 0);
    EXPECT_EQ(mx::toUtf8(name), "Test");
    EXPECT_EQ(Get_MacroHeader(path.c_str(), name, 3), 0);
    EXPECT_EQ(mx::toUtf8(name), "Te");
    EXPECT_EQ(Get_MacroHeader(u16(dir + "/none.mac").c_str(), name, 50), -2);
    EXPECT_EQ(Get_MacroHeader(put("n.mac", "Macro begin end").c_str(), name, 50), -1);
    EXPECT_EQ(Get_MacroHeader(put("w.mac", "Makro \"Zwei\"").c_str(), name, 50), 0);
    EXPECT_EQ(Get_MacroHeader(put("m.mac", "Macros \"x\"").c_str(), name, 50), -1);
    char16_t untouched[1] = {u'Z'};
    EXPECT_EQ(Get_MacroHeader(path.c_str(), untouched, 0), 0);
    EXPECT_EQ(untouched[0], u'Z');
}

TEST_F(FileFixture, TooLargeAfterNormalisingFails) {
    // Every line feed inside an open quote grows into a quote and a line feed.
    std::string text = "Macro \"x\" begin\n";
    for (int i = 0; i < 40; ++i) text += "\"\n";
    CoreRun r = runCore(put("big.mac", text), true);
    EXPECT_EQ(r.errorCode, 152);
    EXPECT_EQ(r.errorArg, dir + "/big.mac");
}

TEST(Loader, MemoryMacrosTooLargeAfterNormalisingFailWithoutArgument) {
    std::u16string text;
    for (int i = 0; i < 40; ++i) text += u"\"\n";
    CoreRun r = runCore(text);
    EXPECT_EQ(r.errorCode, 152);
    EXPECT_EQ(r.errorArg, "");
}

TEST(Loader, TooLargeIsCheckedBeforeEachByteOnly) {
    // Every line's open quote is closed by the loader, so the text grows by
    // one unit per line: ten such lines fill the buffer to capacity - 10
    // exactly at the end of the file, which is no byte and no error.
    std::string dir = scratchDir();
    std::string text;
    for (int i = 0; i < 10; ++i) text += "\"\n";
    writeFile(dir + "/grow.mac", text);
    EXPECT_NE(runCore(u16(dir + "/grow.mac"), true).errorCode, 152);
    // Two more, and the last line feed meets the limit.
    writeFile(dir + "/grow.mac", text + "\"\n\"\n");
    EXPECT_EQ(runCore(u16(dir + "/grow.mac"), true).errorCode, 152);
}
