// What needs more than one run or generated text: statics across runs,
// many variables, nesting limits (the statements themselves are cases in
// tests/cases/statements.cases).
#include <gtest/gtest.h>

#include "engine/process_state.h"
#include "interface/attach.h"
#include "macro_harness.h"

TEST(Statement, StaticsOutliveRunsAndLocalsDoNot) {
    const char16_t *counter =
        u"if (IsDeclared(\"runsSeen\") == 0) static int runsSeen; runsSeen = runsSeen + 1; Print(runsSeen);";
    CoreRun first = runCore(counter);
    CoreRun second = runCore(counter);
    EXPECT_EQ(first.errorCode, 0);
    EXPECT_EQ(second.errorCode, 0);
    EXPECT_EQ(std::stoi(second.output), std::stoi(first.output) + 1);
    EXPECT_EQ(runCore(u"static int onceOnly;").errorCode, 0);
    CoreRun again = runCore(u"static int onceOnly;");
    EXPECT_EQ(again.errorCode, 124);
    EXPECT_EQ(again.errorArg, "onceOnly");
    EXPECT_EQ(runCore(u"int localOnly;").errorCode, 0);
    EXPECT_EQ(runCore(u"localOnly = 1;").errorCode, 125);
    // A local hides a static of the same name.
    EXPECT_EQ(runCore(u"static int shadowed; shadowed = 7;").errorCode, 0);
    EXPECT_EQ(runCore(u"int shadowed; Print(shadowed);").output, "0\n");
}

// Past the name index's first sizes: every variable keeps its own value, a
// second declaration of any of them is refused, a local hides a static.
TEST(Statement, ManyVariablesKeepTheirValuesAndNames) {
    std::string macro = "if (IsDeclared(\"many7\") == 0) static int many7; many7 = 5; ", sum = "int s; ";
    for (int k = 0; k < 300; ++k) {
        macro += "int m" + std::to_string(k) + "; m" + std::to_string(k) + " = " + std::to_string(k) + "; ";
        sum += "s = s + m" + std::to_string(k) + "; ";
    }
    CoreRun all = runCore(u16(macro + "int many7; " + sum + "Print(s + many7);"));
    EXPECT_EQ(all.errorCode, 0);
    EXPECT_EQ(all.output, "44850\n");
    CoreRun twice = runCore(u16(macro + "int m299;"));
    EXPECT_EQ(twice.errorCode, 124);
    EXPECT_EQ(twice.errorArg, "m299");
}

TEST(Statement, NestingIsLimitedInsteadOfExhaustingTheStack) {
    auto blocks = [](int n) {
        std::string s;
        for (int i = 0; i < n; ++i) s += "begin ";
        s += "Print(1); ";
        for (int i = 0; i < n; ++i) s += "end ";
        return s;
    };
    EXPECT_EQ(runCore(u16(blocks(1900))).output, "1\n");
    CoreRun deep = runCore(u16(blocks(5000)));
    EXPECT_EQ(deep.errorCode, 131);
    EXPECT_EQ(deep.output, "");
}

TEST(Statement, DetachReleasesTheStatics) {
    ASSERT_EQ(runCore(u"static int detachedSoon; detachedSoon = 4;").errorCode, 0);
    mx::processDetach();
    mx::processAttach(nullptr);
    // Gone: declaring it again succeeds and it reads as a new variable.
    CoreRun r = runCore(u"static int detachedSoon; Print(detachedSoon);");
    EXPECT_EQ(r.errorCode, 0);
    EXPECT_EQ(r.output, "0\n");
}
