// What the interpreter keeps from one statement or run to the next (formula
// buffers, Value records, the initials of the function tables) must never
// change what a macro does.
#include <gtest/gtest.h>

#include <string>

#include "macro_harness.h"


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

// Names are told apart from functions by their first character: lower-case
// variables, variables with letters beyond ASCII and names that only look
// like functions in their other characters all stay variables.
TEST(Reuse, VariablesBesideFunctionNames) {
    CoreRun r = runCore(u"int strLen; int \u00E4b; int StrLen2; strLen = 2; \u00E4b = 3; StrLen2 = 4;"
                        u" Print(strLen * \u00E4b * StrLen2 + StrLen(\"ab\"));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "26\n");
}
