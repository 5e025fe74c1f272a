// Nested runs through Call and CallWithParams, the macro's parameters, and
// the built-ins of the language itself.
#include <gtest/gtest.h>

#include "macro_harness.h"

namespace {

struct NestedRuns : ::testing::Test {
    std::string dir = scratchDir();
    std::string put(const std::string &name, const std::string &text) {
        writeFile(dir + "/" + name, text);
        return dir + "/" + name;
    }
    MacroRun run(const std::string &body) {
        return runFile(u16(put("main.mac", "Macro \"Main\" begin\n" + body + "\nend\n")));
    }
};

}  // namespace

TEST_F(NestedRuns, LocalsAreOwnStaticsAreShared) {
    put("sub.mac",
        "Macro \"Sub\" begin int local; local = 5; if (IsDeclared(\"nestShared\") == 0) static int nestShared;"
        " nestShared = nestShared + 10; Print(nestShared); exit; Print(99); end");
    MacroRun r = run("int local; local = 1; Call(\"" + dir + "/sub.mac\"); Print(local); Print(nestShared);");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "10\n1\n10\n");
    // The nested macro cannot see the caller's locals.
    put("peek.mac", "Macro \"Peek\" begin Print(local); end");
    r = run("int local; Print(Call(\"" + dir + "/peek.mac\")); Print(2);");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 1 des Makros " + dir +
                            "/main.mac\n\nVariable 'local' ist nicht deklariert\n\n-1\n2\n");
}

TEST_F(NestedRuns, MemoryMacrosHaveNoParameters) {
    MacroRun r = runMemory(u"char s[9]; s = \"keep\"; Print(GetMacroParameter(0, s)); Print(s);"
                           u" Print(GetMacroParameter(-1, s));");
    EXPECT_EQ(r.output, "1\nkeep\n1\n");
    std::string path = put("self.mac", "Macro \"S\" begin char s[99]; Print(GetMacroParameter(0, s)); Print(s);"
                                       " Print(GetMacroParameter(-3, s)); Print(s); end");
    r = runFile(u16(path + " x"));
    EXPECT_EQ(r.output, "0\n" + path + "\n0\n" + path + "\n");
}

TEST_F(NestedRuns, RecursionWithoutEndFailsInsteadOfCrashing) {
    put("self.mac", "Macro \"Self\" begin Call(\"" + dir + "/self.mac\"); end");
    MacroRun r = run("Print(Call(\"" + dir + "/self.mac\")); Print(4);");
    EXPECT_EQ(r.result, 0);
    // The deepest run fails with its box; every run above it goes on and ends.
    EXPECT_NE(r.output.find("Formelstack ist übergelaufen\n\n0\n4\n"), std::string::npos);
}

TEST_F(NestedRuns, AnAbortedNestedRunShowsItsBox) {
    put("sub.mac", "Macro \"Sub\" begin Print(1); Print(2); end");
    std::string main = put("abort.mac", "Macro \"A\" begin Call(\"" + dir + "/sub.mac\"); Print(5); end");
    MacroRun r = runFile(u16(main), 1, 2);
    EXPECT_EQ(r.result, -2);
    // The nested run is aborted after its second call and shows its box; the
    // caller's next question to the abort callback ends the whole run.
    EXPECT_EQ(r.output, "1\n2\nMakrofehler: Fehler in Zeile 1 des Makros " + main +
                            "\n\nDas Makro wurde abgebrochen\n\n");
}

TEST(LanguageBuiltins, DimIsDeclaredAndEscape) {
    const struct {
        const char16_t *body;
        const char *out;
    } cases[] = {
        {u"int v[10]; int x; Print(Dim(v)); Print(Dim(x)); Print(Dim(\"abc\"));", "9\n0\n3\n"},
        {u"int x; Print(IsDeclared(\"x\")); Print(IstDeklariert(\"nobody\"));", "0\n0\n"},
        {u"char s[9]; Print(SetStringEscape(35)); s = \"a#nb\"; Print(Dim(s)); Print(s);", "92\n8\na\nb\n"},
        {u"char s[9]; SetzeFluchtsymbol(35); s = \"a\\nb\"; Print(s);", "a\\nb\n"},
    };
    for (const auto &c : cases) {
        MacroRun r = runMemory(c.body);
        EXPECT_EQ(r.result, 0);
        EXPECT_EQ(r.output, c.out);
    }
}
