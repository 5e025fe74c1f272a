// The syntax check: broken macros get every error, with the line and the
// words a run would report, and nothing of a checked macro runs; every
// shipped macro (examples and the macros of the case files) is clean or names exactly the
// error its run shows.
#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "base/utf8.h"
#include "engine/check.h"
#include "engine/errors.h"
#include "tools/host_common.h"
#include "cases/case_file.h"
#include "macro_harness.h"

namespace fs = std::filesystem;

namespace {

struct Found {
    int32_t line;
    int32_t code;
    std::string arg;
    std::string message;  // as the error box shows it
};

void collect(const mx::RunContext &ctx, void *user) {
    char16_t message[200];
    mx::errFormatMessage(ctx, message, 200);
    static_cast<std::vector<Found> *>(user)->push_back(
        {ctx.line, ctx.errorCode, mx::toUtf8(ctx.errorArg), mx::toUtf8(message)});
}

// The table of the example host (examples/host/host.c) with Print.
const mx::FunctionRow kExampleHost[] = {
    {u"HOST_ANSWER", 42, nullptr, nullptr},
    {u"HostLog", 1, u"C[]", u""},
    {u"Print", 3, u"X", u""},
    {u"Square", 2, u"L*L", u""},
    {},
};

// Checks a memory macro (text) or, with file set, the file it names.
std::vector<Found> check(const std::u16string &text, bool file = false,
                         const mx::FunctionRow *host = reinterpret_cast<const mx::FunctionRow *>(kHostTable)) {
    mx::RunContext ctx{};
    (file ? ctx.macroCommand : ctx.macroText) = text.c_str();
    ctx.hostTable = host;
    ctx.builtinTable = reinterpret_cast<const mx::FunctionRow *>(Get_MacroLib_InternalFunctionList());
    ctx.builtinCount = mx::kBuiltinRowCount;
    std::vector<Found> found;
    mx::ckCheckMacro(ctx, collect, &found);
    return found;
}

std::string describe(const std::vector<Found> &found) {
    std::string s;
    for (const Found &f : found) s += std::to_string(f.line) + ": " + f.message + "\n";
    return s;
}

}  // namespace

// Each broken statement gets the error, argument and line the run reports
// when it reaches it (a memory macro's body starts on line 1).
TEST(Check, SameErrorAsTheRun) {
    const char16_t *broken[] = {
        u"int a;\na = Frob(1);",         // unknown function: an undeclared name
        u"int n;\nn = StrLen(\"a\", 2);",  // too many arguments
        u"int n;\nn = StrLen();",          // too few
        u"x = 1;",                        // undeclared variable
        u"int ;",                         // declaration without a name
        u"int v[1234567890];",            // ten digits
        u"int v[3;",                      // ] missing
        u"static begin x;",               // static without a type
        u"int a\nint b;",                 // ; missing after a declaration
        u"int w;\nw = GetScreenWidth + 1;",  // function without brackets
        u"int a;\na = (1 + 2;",           // brackets
        u"int a;\na = 1 +;",              // operand missing
        u";",                             // empty statement
        u"char c;\nc = 'AB';",            // character constant
        u"int a;\nif (a == 1 a = 2;",     // condition not closed
        u"while (1) end",                 // end as a loop body
        u"int a;\na = 1 b;",              // no operand where one is due
        u"int v[3];\nv[2;",              // ] missing in an index
    };
    for (const char16_t *text : broken) {
        SCOPED_TRACE(mx::toUtf8(text));
        std::vector<Found> found = check(text);
        CoreRun run = runCore(text);
        ASSERT_EQ(run.result, -1);
        ASSERT_FALSE(found.empty());
        EXPECT_EQ(found[0].code, run.errorCode);
        EXPECT_EQ(found[0].arg, run.errorArg);
        EXPECT_EQ(found[0].line, run.line);
    }
}

TEST(Check, EveryErrorOfAMacroWithItsLine) {
    std::string path = scratchDir() + "/m.mac";
    writeFile(path, "Macro \"m\"\nbegin\n  int a;\n  a = Frob(1);\n  a = StrLen();\n  if (a) begin\n"
                    "    int a b;\n    a = 1 +;\n  end\n  a = StrLen(\"x\", 1, 2);\n  a = 2;\n"
                    "  while (a) a = b;\nend\n");
    std::vector<Found> inFile = check(u16(path), true);
    EXPECT_EQ(describe(inFile),
              "4: Variable 'Frob' ist nicht deklariert\n"
              "5: Funktion 'StrLen' hat zu wenig Parameter\n"
              "7: Es wurde das Zeichen ';' erwartet\n"
              "8: Der Ausdruck '' ist kein gültiger Operand\n"
              "10: Funktion 'StrLen' hat zu viele Parameter\n"
              "12: Variable 'b' ist nicht deklariert\n");
}

TEST(Check, UnclosedBlocksAndMissingHeader) {
    std::string dir = scratchDir();
    writeFile(dir + "/open.mac", "Macro \"m\"\nbegin\n  int a;\n  if (a) begin\n    a = 1;\nend\n");
    EXPECT_EQ(describe(check(u16(dir + "/open.mac"), true)),
              "8: Unerwartetes Dateiende beim Lesen der Datei '" + dir + "/open.mac'\n");
    writeFile(dir + "/head.mac", "macro \"m\" begin end\n");
    EXPECT_EQ(describe(check(u16(dir + "/head.mac"), true)), "1: Schlüsselwort 'Macro' fehlt\n");
    writeFile(dir + "/name.mac", "Macro m begin end\n");
    EXPECT_EQ(describe(check(u16(dir + "/name.mac"), true)), "1: Der Makroname fehlt\n");
    EXPECT_EQ(describe(check(u16(dir + "/missing.mac"), true)),
              "1: Die Datei '" + dir + "/missing.mac' existiert nicht\n");
}

// Everything is read, nothing runs: no file is deleted, no division fails,
// the loop that would never end is read once, and skipped branches are
// checked as well.
TEST(Check, ReadsEverythingRunsNothing) {
    std::string dir = scratchDir();
    writeFile(dir + "/keep.txt", "x");
    std::u16string text = u16("int a; char s[10];\nDeleteFile(\"" + dir + "/keep.txt\");\n"
                              "a = 1 / 0;\nwhile (1) a = a + 1;\n"
                              "if (0) begin s = \"x\"; a = StrLen(s, s); end\n");
    std::vector<Found> found = check(text);
    EXPECT_EQ(describe(found), "5: Funktion 'StrLen' hat zu viele Parameter\n");
    EXPECT_EQ(readFile(dir + "/keep.txt"), "x");
}

// German keywords and spellings, statics guarded by IsDeclared, constants,
// nested calls and indexes, and a variable used after its declaration
// inside a skipped block all pass.
TEST(Check, CleanMacrosPass) {
    EXPECT_EQ(describe(check(u16(
                  "zahl i; text s[20]; gleitkomma f;\n"
                  "wenn (IsDeclared(\"z\") == 0) statisch zahl z;\n"
                  "solange (i < 3) anfang i = i + 1; wenn (i == 2) abbruch; ende\n"
                  "{ f = 7 / 2.0; s[StrLen(\"ab\")] = 'x'; }\n"
                  "i = MB_OK; z = z + ABORT + STOP; stop;\n"))),
              "5: Variable 'MB_OK' ist nicht deklariert\n");
    EXPECT_EQ(describe(check(u16("int i; i = JA + NEIN; Print(i); exit;"))), "");
}

// The examples and every file macro of the cases: a macro that runs to its end is
// clean; one whose run fails with an error that reading finds names that
// error at the same line. The example host's macro is read with that host's
// names.
TEST(Check, EveryShippedMacro) {
    const auto *hostTable = reinterpret_cast<const mx::FunctionRow *>(kHostTable);
    for (auto &e : fs::recursive_directory_iterator(fs::path(MX_SOURCE_DIR) / "examples"))
        if (e.path().extension() == ".mac") {
            bool exampleHost = e.path().parent_path().filename() == "host";
            EXPECT_EQ(describe(check(u16(e.path().string()), true, exampleHost ? kExampleHost : hostTable)), "")
                << e.path();
        }
    std::vector<Case> cases;
    std::string error, dir = scratchDir();
    ASSERT_TRUE(caseLoadAll(MX_SOURCE_DIR "/tests/cases", cases, error)) << error;
    for (const Case &c : cases) {
        // Memory-macro cases try single statements, some of them on purpose
        // in branches a run skips and the check still reads.
        if (c.macroFile.empty()) continue;
        SCOPED_TRACE(c.where);
        std::string path = dir + "/" + c.macroFile;
        writeFile(path, c.fileBytes);
        std::vector<Found> found = check(u16(path), true);
        if (c.result != -1) EXPECT_EQ(describe(found), "");
        else if (!found.empty()) {
            EXPECT_NE(c.output.find(found[0].message), std::string::npos) << describe(found);
            EXPECT_NE(c.output.find("Zeile " + std::to_string(found[0].line) + " "), std::string::npos);
        }
    }
}
