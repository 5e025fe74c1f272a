// The library as a host sees it: host functions (lookup, binding against the
// signature, the callback, the sort check, a table changed between runs),
// the abort callback, the error box's text and the version the exports give.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "base/utf8.h"
#include "engine/errors.h"
#include "engine/run_context.h"
#include "macro_harness.h"

namespace {

const MX_FUNCTION_ROW kRows[] = {
    {u"Bad", 1, u"Q", u"Nothing"},       {u"Chr", 2, u"C", u"Char"},
    {u"Dbl", 3, u"D", u"Double"},        {u"Echo", 4, u"X", u"Any"},
    {u"HOSTCONST", 4711, nullptr, nullptr}, {u"LVec", 5, u"L[]", u"Vector"},
    {u"Long", 0x10006, u"L", u"Long"},   {u"RefDouble", 7, u"*D", u"Double"},
    {u"RefLong", 8, u"*L", u"Long"},     {u"RefText", 9, u"*C[]", u"Text"},
    {u"Ten", 12, u"LLLLLLLLLL", u""},   {u"Text", 10, u"C[]", u"Text"},
    {u"Two", 11, u"LL", u"A, B"},
    {nullptr, 0, nullptr, nullptr},
};

const char *kindName(const MX_VALUE *v) { return v->kind == MX_KIND_REFERENCE ? "ref" : "own"; }
const char *typeName(const MX_VALUE *v) {
    return v->type == MX_TYPE_CHAR ? "char" : v->type == MX_TYPE_LONG ? "long" : "double";
}

// Reports each call as "fn N: kind type count ..." and writes through
// by-reference arguments.
LONG CALLBACK host(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    std::string line = "fn " + std::to_string(number) + ":";
    for (LONG i = 0; i < count; ++i)
        line += std::string(" ") + kindName(args[i]) + " " + typeName(args[i]) + " " +
                std::to_string(args[i]->count);
    harnessPrint(line);
    if (number == 8) *static_cast<LONG *>(args[0]->data) = 42;
    if (number == 7) *static_cast<double *>(args[0]->data) = 2.5;
    if (number == 9 || number == 10) static_cast<char16_t *>(args[0]->data)[0] = u'Z';
    if (number == 2) harnessPrint(std::to_string(*static_cast<char16_t *>(args[0]->data)));
    if (number == 6) harnessPrint(std::to_string(*static_cast<LONG *>(args[0]->data)));
    return number * 10;
}

LONG CALLBACK printer(LONG, MX_VALUE **args, LONG, LONG_PTR) {
    const MX_VALUE *v = args[0];
    harnessPrint(v->type == MX_TYPE_LONG ? std::to_string(*static_cast<LONG *>(v->data))
                                          : mx::toUtf8(static_cast<const char16_t *>(v->data)));
    return 0;
}

// The host rows plus Print (number 99) for showing results.
std::vector<MX_FUNCTION_ROW> withPrint() {
    std::vector<MX_FUNCTION_ROW> rows(std::begin(kRows), std::end(kRows) - 1);
    rows.insert(rows.begin() + 7, MX_FUNCTION_ROW{u"Print", 99, u"X", u"Value"});
    rows.push_back({nullptr, 0, nullptr, nullptr});
    return rows;
}

LONG CALLBACK both(LONG number, MX_VALUE **args, LONG count, LONG_PTR v) {
    return number == 99 ? printer(number, args, count, v) : host(number, args, count, v);
}

MacroRun run(const std::string &body) {
    static std::vector<MX_FUNCTION_ROW> rows = withPrint();
    return runMemoryWithHost(u16(body), rows.data(), both);
}

std::string boxFor(const std::string &message) {
    return "Makrofehler: Fehler in Zeile 1 des Makros \n\n" + message + "\n\n";
}

LONG CALLBACK tableHost(LONG number, MX_VALUE **args, LONG, LONG_PTR) {
    if (number == 1) harnessPrint(std::to_string(*static_cast<LONG *>(args[0]->data)));
    return number * 10;
}

}  // namespace

TEST(HostCall, BindsEachDescriptorKind) {
    const struct {
        const char *body;
        const char *out;
    } cases[] = {
        {"int x; x = Long(3.9); Print(x);", "fn 6: own long 0\n3\n60\n"},
        {"Chr(66);", "fn 2: own char 0\n66\n"},
        {"Chr('a');", "fn 2: own char 0\n97\n"},
        {"Dbl(2);", "fn 3: own double 0\n"},
        {"int v[3]; Echo(v);", "fn 4: ref long 3\n"},
        {"Echo(\"ab\");", "fn 4: own char 3\n"},
        {"Long(1, );", "fn 6: own long 0\n1\n"},
        {"int n; RefLong(n); Print(n);", "fn 8: ref long 0\n42\n"},
        {"float f; RefDouble(f);", "fn 7: ref double 0\n"},
        {"char s[4]; s = \"abc\"; Text(s); Print(s);", "fn 10: ref char 4\nZbc\n"},
        {"char s[4]; s = \"abc\"; RefText(s); Print(s);", "fn 9: ref char 4\nZbc\n"},
        {"Text(\"abc\");", "fn 10: own char 4\n"},
        {"int v[2]; LVec(v);", "fn 5: ref long 2\n"},
        {"Echo(1,);", "fn 4: own long 0\n"},
        {"Print(HOSTCONST);", "4711\n"},
        {"int x; x = Two(1, Two(2, 3)) + 1; Print(x);", "fn 11: own long 0 own long 0\n"
                                                         "fn 11: own long 0 own long 0\n111\n"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.body);
        MacroRun r = run(c.body);
        EXPECT_EQ(r.result, 0);
        EXPECT_EQ(r.output, c.out);
    }
}

TEST(HostCall, BindingErrors) {
    const struct {
        const char *body;
        const char *message;
    } cases[] = {
        {"Long(\"a\");", "Parameter '' muß ein Skalar sein"},
        {"Text(5);", "Parameter '' muß eine Vektorvariable sein"},
        {"RefLong(5);", "Parameter '' muß eine Variable sein"},
        {"float d; RefLong(d);", "Parameter '' hat falschen Typ"},
        {"int v[2]; Text(v);", "Parameter '' hat falschen Typ"},
        {"Bad(1);", "Fehlerhafte Syntax in Funktionstabelle"},
        {"Two(1);", "Funktion 'Two' hat zu wenig Parameter"},
        {"Bad();", "Funktion 'Bad' hat zu wenig Parameter"},
        {"Two(1, 2, 3);", "Funktion 'Two' hat zu viele Parameter"},
        {"Ten(1,2,3,4,5,6,7,8,9,10,undeclared);", "Funktion 'Ten' hat zu viele Parameter"},
        {"Echo(1, 2);", "Funktion 'Echo' hat zu viele Parameter"},
        {"Echo();", "Funktion 'Echo' hat zu wenig Parameter"},
        {"Long + 1;", "Es wurde das Zeichen '(' erwartet"},
        {"Long(undeclared);", "Variable 'undeclared' ist nicht deklariert"},
        {"Echo(,1);", "Operator fehlt"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.body);
        MacroRun r = run(c.body);
        EXPECT_EQ(r.result, -1);
        EXPECT_EQ(r.output, boxFor(c.message));
    }
}

TEST(HostCall, TenArgumentsAreAccepted) {
    MacroRun r = run("Ten(1,2,3,4,5,6,7,8,9,10);");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output.substr(0, 6), "fn 12:");
}

TEST(HostCall, TheHostTableMustAscendStrictly) {
    const MX_FUNCTION_ROW equal[] = {{u"Abc", 1, u"", u""}, {u"Abc", 2, u"", u""}, {nullptr, 0, nullptr, nullptr}};
    const MX_FUNCTION_ROW unordered[] = {{u"b", 1, u"", u""}, {u"B", 2, u"", u""}, {nullptr, 0, nullptr, nullptr}};
    const MX_FUNCTION_ROW emptyName[] = {{u"", 1, u"", u""}, {nullptr, 0, nullptr, nullptr}};
    EXPECT_EQ(runMemoryWithHost(u"x = 1;", equal, host).output, boxFor("Funktionsnamen nicht aufsteigend sortiert"));
    EXPECT_EQ(runMemoryWithHost(u"x = 1;", unordered, host).result, -1);
    EXPECT_EQ(runMemoryWithHost(u"x = 1;", emptyName, host).result, -1);
    // The check comes before loading: an unsorted table fails even an empty macro file.
    EXPECT_EQ(Run_Macro(nullptr, nullptr, u"/no/such/file.mac", equal, host, nullptr, 0, 1), -1);
}

TEST(HostCall, NoTableAndNoCallbackAreHarmless) {
    EXPECT_EQ(runMemoryWithHost(u"int x; x = 1;", nullptr, nullptr).result, 0);
    MacroRun r = runMemoryWithHost(u"int x; x = Two(1, 2) + 5; if (x != 5) y = 1;", kRows, nullptr);
    EXPECT_EQ(r.result, 0);
}

TEST(HostCall, AbortEndsTheRunWithoutABox) {
    MacroRun r = runMemory(u"Print(1); Print(2); Print(3);", 1, nullptr, 2);
    EXPECT_EQ(r.result, -2);
    EXPECT_EQ(r.output, "1\n2\n");
    r = runMemory(u"Print(1);", 1, nullptr, 5);
    EXPECT_EQ(r.result, 0);
}

TEST(HostCall, AnAbortedNestedRunShowsItsBox) {
    std::string dir = scratchDir(), main = dir + "/abort.mac";
    writeFile(dir + "/sub.mac", "Macro \"Sub\" begin Print(1); Print(2); end");
    writeFile(main, "Macro \"A\" begin Call(\"" + dir + "/sub.mac\"); Print(5); end");
    MacroRun r = runFile(u16(main), 1, 2);
    EXPECT_EQ(r.result, -2);
    // The nested run is aborted after its second call and shows its box; the
    // caller's next question to the abort callback ends the whole run.
    EXPECT_EQ(r.output, "1\n2\nMakrofehler: Fehler in Zeile 1 des Makros " + main +
                            "\n\nDas Makro wurde abgebrochen\n\n");
}

// The host may change its table between two runs at the same address: a name
// whose first character no row of the first table had must be found in the
// second, and a name gone from it must not.
TEST(HostCall, AHostTableChangedBetweenRunsIsReadAfresh) {
    MX_FUNCTION_ROW rows[] = {
        {u"Print", 1, u"L", u"Value"}, {u"Zeta", 2, u"", u""}, {nullptr, 0, nullptr, nullptr},
        {nullptr, 0, nullptr, nullptr},
    };
    MacroRun first = runMemoryWithHost(u"Print(Zeta());", rows, tableHost);
    EXPECT_EQ(first.output, "20\n");
    rows[1].name = u"zeta";
    MacroRun second = runMemoryWithHost(u"Print(zeta());", rows, tableHost);
    EXPECT_EQ(second.result, 0);
    EXPECT_EQ(second.output, "20\n");
    rows[2] = {u"\u00C4rger", 3, u"", u""};
    MacroRun grown = runMemoryWithHost(u"Print(\u00C4rger());", rows, tableHost);
    EXPECT_EQ(grown.output, "30\n");
    MacroRun third = runMemoryWithHost(u"Print(Zeta());", rows, tableHost);
    EXPECT_EQ(third.result, -1);
    EXPECT_NE(third.output.find("Variable 'Zeta' ist nicht deklariert"), std::string::npos);
}

// The box names the line and the whole command of a file macro.
TEST(ErrorBox, NamesLineMacroAndMessage) {
    std::string dir = scratchDir();
    writeFile(dir + "/a.mac", "Macro \"A\" begin\n\n\n\n\n\nzahl1 = 3;\nend\n");
    MacroRun r = runFile(u16(dir + "/a.mac 1 2"));
    EXPECT_EQ(r.result, -1);
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 7 des Makros " + dir +
                            "/a.mac 1 2\n\nVariable 'zahl1' ist nicht deklariert\n\n");
    writeFile(dir + "/b.mac", "macro \"B\" begin end");
    EXPECT_EQ(runFile(u16(dir + "/b.mac")).output,
              "Makrofehler: Fehler in Zeile 1 des Makros " + dir + "/b.mac\n\nSchlüsselwort 'Macro' fehlt\n\n");
}

TEST(ErrorBox, ArgumentsAreCutAndOnlyFilledInWhenTheyFit) {
    mx::RunContext ctx;
    std::u16string longArg(200, u'a');
    mx::errSet(ctx, 125, longArg.c_str());
    EXPECT_EQ(mx::toUtf8(ctx.errorArg), std::string(127, 'a'));
    char16_t text[300];
    mx::errFormatMessage(ctx, text, 300);
    EXPECT_EQ(mx::toUtf8(text), "Variable '" + std::string(127, 'a') + "' ist nicht deklariert");
    // 156 is long enough that a 127-character argument does not fit in 200 units.
    mx::errSet(ctx, 156, longArg.c_str());
    mx::errFormatMessage(ctx, text, 300);
    EXPECT_EQ(mx::toUtf8(text), "s Die Zieldatei der Datenbankselektion  '%s'  kann nicht angelegt werden.");
    mx::errSet(ctx, 156, u"x.txt");
    mx::errFormatMessage(ctx, text, 300);
    EXPECT_EQ(mx::toUtf8(text), "s Die Zieldatei der Datenbankselektion  'x.txt'  kann nicht angelegt werden.");
    mx::errSet(ctx, 134, u"ignored");
    mx::errFormatMessage(ctx, text, 300);
    EXPECT_EQ(mx::toUtf8(text), "Division durch Null");
    mx::errSet(ctx, 5555, u"x");
    EXPECT_EQ(mx::errFormatMessage(ctx, text, 300), 0);
}

// The version words of the header, one by one, as the export answers them.
TEST(Version, TheExportAnswersTheHeadersFourWordsInOrder) {
    char16_t text[32];
    LONG n = Morvix_GetVersion(text, 32);
    unsigned v[4] = {};
    ASSERT_EQ(std::sscanf(mx::toUtf8(text).c_str(), "%u.%u.%u.%u", &v[0], &v[1], &v[2], &v[3]), 4);
    EXPECT_EQ(v[0], unsigned(MORVIX_VERSION_MAJOR));
    EXPECT_EQ(v[1], unsigned(MORVIX_VERSION_MINOR));
    EXPECT_EQ(v[2], unsigned(MORVIX_VERSION_PATCH));
    EXPECT_EQ(v[3], unsigned(MORVIX_VERSION_BUILD));
    EXPECT_EQ(n, LONG(std::u16string(text).size()));
    EXPECT_EQ(Get_MacroLib_Version(text, 4), 3) << "cut to the capacity";
    EXPECT_EQ(std::u16string(text), u16(MORVIX_VERSION_TEXT).substr(0, 3));
}
