// What the interpreter keeps from one statement or run to the next (formula
// buffers, Value records, the initials of the function tables) must never
// change what a macro does.
#include <gtest/gtest.h>

#include <string>

#include "macro_harness.h"

namespace {

LONG CALLBACK host(LONG number, MX_VALUE **args, LONG, LONG_PTR) {
    if (number == 1) harnessPrint(std::to_string(*static_cast<LONG *>(args[0]->data)));
    return number * 10;
}

}  // namespace

// A nested run collects and evaluates formulas of its own while the caller's
// formula is half evaluated; the caller's formula must go on unharmed, on
// every turn of a loop.
TEST(Reuse, AFormulaGoesOnAfterANestedRunInsideIt) {
    std::string dir = scratchDir();
    writeFile(dir + "/sub.mac",
              "Macro \"Sub\" begin int a; a = 1; while (a < 3) begin a = a + 1; end Print(a * 100); end\n");
    writeFile(dir + "/main.mac", "Macro \"Main\" begin int i; int x; while (i < 2) begin\n"
                                 "x = Call(\"" + dir + "/sub.mac\") + 5 * (2 + i); Print(x); i = i + 1;\n"
                                 "end end\n");
    MacroRun r = runFile(u16(dir + "/main.mac"));
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "300\n10\n300\n15\n");
}

// The host may change its table between two runs at the same address: a name
// whose first character no row of the first table had must be found in the
// second, and a name gone from it must not.
TEST(Reuse, AHostTableChangedBetweenRunsIsReadAfresh) {
    MX_FUNCTION_ROW rows[] = {
        {u"Print", 1, u"L", u"Value"}, {u"Zeta", 2, u"", u""}, {nullptr, 0, nullptr, nullptr},
        {nullptr, 0, nullptr, nullptr},
    };
    MacroRun first = runMemoryWithHost(u"Print(Zeta());", rows, host);
    EXPECT_EQ(first.output, "20\n");
    rows[1].name = u"zeta";
    MacroRun second = runMemoryWithHost(u"Print(zeta());", rows, host);
    EXPECT_EQ(second.result, 0);
    EXPECT_EQ(second.output, "20\n");
    rows[2] = {u"\u00C4rger", 3, u"", u""};
    MacroRun grown = runMemoryWithHost(u"Print(\u00C4rger());", rows, host);
    EXPECT_EQ(grown.output, "30\n");
    MacroRun third = runMemoryWithHost(u"Print(Zeta());", rows, host);
    EXPECT_EQ(third.result, -1);
    EXPECT_NE(third.output.find("Variable 'Zeta' ist nicht deklariert"), std::string::npos);
}

// Names are told apart from functions by their first character: lower-case
// variables, variables with letters beyond ASCII and names that only look
// like functions in their other characters all stay variables.
TEST(Reuse, VariablesBesideFunctionNames) {
    CoreRun r = runCore(u"int strLen; int \u00E4b; int StrLen2; strLen = 2; \u00E4b = 3; StrLen2 = 4;"
                        u" Print(strLen * \u00E4b * StrLen2 + StrLen(\"ab\"));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "26\n");
}
