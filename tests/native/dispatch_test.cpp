// The call path into the built-ins: binding against real rows of the table,
// numbers without implementation, and shared function numbers.
#include <gtest/gtest.h>

#include "engine/dispatcher.h"
#include "engine/run_context.h"
#include "macro_harness.h"

namespace {
std::string box(const std::string &message) {
    return "Makrofehler: Fehler in Zeile 1 des Makros \n\n" + message + "\n\n";
}
}  // namespace

TEST(Dispatch, BindingAgainstBuiltinRows) {
    const struct {
        const char16_t *body;
        const char *message;
    } cases[] = {
        {u"char s[9]; StrCat(s, 5);", "Parameter '' muß eine Vektorvariable sein"},
        {u"int v[3]; StrLen(v);", "Parameter '' hat falschen Typ"},
        {u"int m; int d; GetCurrentDate(2024, m, d);", "Parameter '' muß eine Variable sein"},
        {u"char s[9]; IsAlpha(s);", "Parameter '' muß ein Skalar sein"},
        {u"RtfDialog(\"a\");", "Funktion 'RtfDialog' hat zu wenig Parameter"},
        {u"GetScreenWidth(1);", "Funktion 'GetScreenWidth' hat zu viele Parameter"},
        {u"int x; x = GetScreenWidth + 1;", "Es wurde das Zeichen '(' erwartet"},
        {u"int x; x = strlen(\"abc\");", "Variable 'strlen' ist nicht deklariert"},
    };
    for (const auto &c : cases) {
        MacroRun r = runMemory(c.body);
        EXPECT_EQ(r.result, -1);
        EXPECT_EQ(r.output, box(c.message));
    }
}

TEST(Dispatch, RowsWithoutImplementationYieldZero) {
    MacroRun r = runMemory(u"Print(RtfDialog(\"a\", \"b\", 1, 2, 3, 4, 5)); Print(ScanBufferForRegExp(\"x\", 1, \"y\", 0, 0, 0));");
    EXPECT_EQ(r.result, -1);  // ScanBufferForRegExp's *L needs a variable
    r = runMemory(u"int n; Print(RtfDialog(\"a\", \"b\", 1, 2, 3, 4, 5)); Print(ScanBufferForRegExp(\"x\", 1, \"y\", 0, n, 0));"
                  u" Print(AbbLoadButtonsFromProfile(\"p\", \"s\", 0));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "0\n0\n0\n");
    mx::RunContext ctx;
    for (int32_t n : {0, -1, 94, 150, 151, 160, 161, 307, 8999, 9002, 65536})
        EXPECT_EQ(mx::dispatchCall(ctx, n, nullptr, 0), 0) << n;
    for (int32_t n : {94, 150, 151, 160, 161}) EXPECT_FALSE(mx::dispatchImplemented(n)) << n;
}

TEST(Dispatch, EveryNameOfAFunctionNumberBehavesTheSame) {
    MacroRun r = runMemory(u"int v[4]; Print(Dim(v)); Print(IstDeklariert(\"nothingHere\")); Print(IsDeclared(\"nothingHere\"));");
    EXPECT_EQ(r.output, "3\n0\n0\n");
}
