// Formulas: operators, precedence, type rules, assignment and their errors,
// through real memory macros.
#include <gtest/gtest.h>

#include "macro_harness.h"

namespace {

struct Case {
    const char *body;      // statements of a memory macro
    const char *printed;   // expected Print output ("" when an error is expected)
    int error;             // expected error code, 0 for success
    const char *arg;       // expected error argument (nullptr: not checked)
};

void check(const Case &c) {
    SCOPED_TRACE(c.body);
    CoreRun r = runCore(u16(c.body));
    EXPECT_EQ(r.errorCode, c.error) << r.errorArg;
    if (c.error == 0) { EXPECT_EQ(r.output, c.printed); }
    if (c.arg) { EXPECT_EQ(r.errorArg, c.arg); }
}

}  // namespace

TEST(Formula, ArithmeticAndPrecedence) {
    const Case cases[] = {
        {"int x; x = 2 + 3 * 4; Print(x);", "14\n", 0, nullptr},
        {"int x; x = (2 + 3) * 4; Print(x);", "20\n", 0, nullptr},
        {"int x; x = -2 * 3; Print(x);", "-6\n", 0, nullptr},
        {"int x; x = 7 / 2; Print(x);", "3\n", 0, nullptr},
        {"int x; x = -7 / 2; Print(x);", "-3\n", 0, nullptr},
        {"int x; x = 10 - 4 - 3; Print(x);", "3\n", 0, nullptr},
        {"int x; x = 1 < 2 < 3; Print(x);", "1\n", 0, nullptr},
        {"int x; x = 3 > 2 > 1; Print(x);", "0\n", 0, nullptr},
        {"int x; x = 1 || 0 && 0; Print(x);", "0\n", 0, nullptr},
        {"int x; x = !0 + !5; Print(x);", "1\n", 0, nullptr},
        {"int x; x = --3; Print(x);", "3\n", 0, nullptr},
        {"float f; f = 7 / 2.0; Print(f);", "3.500000\n", 0, nullptr},
        {"int x; x = 7 / 2.0; Print(x);", "3\n", 0, nullptr},
        {"int x; x = 2147483647 + 1; Print(x);", "-2147483648\n", 0, nullptr},
        {"int x; x = 2147483647; x = x + 1; Print(x);", "-2147483648\n", 0, nullptr},
        {"int x; x = 0 - 2147483647 - 1; x = x / -1; Print(x);", "-2147483648\n", 0, nullptr},
        {"int x; x = 65536 * 65536; Print(x);", "0\n", 0, nullptr},
        {"float f; f = .5 + 5. + .; Print(f);", "5.500000\n", 0, nullptr},
        {"float f; f = 12345678901; Print(f);", "12345678901.000000\n", 0, nullptr},
        {"int x; x = 1.5 < 2; Print(x);", "1\n", 0, nullptr},
        {"int x; x = 'A' + 1; Print(x);", "66\n", 0, nullptr},
        {"char c; c = 'A' + 1; Print(c);", "B\n", 0, nullptr},
        {"char c; c = 65601; Print(c);", "A\n", 0, nullptr},
        {"int x; x = 3.99; Print(x); x = -3.99; Print(x);", "3\n-3\n", 0, nullptr},
        {"int x; float f; f = 10000000000.0; x = f; Print(x);", "-2147483648\n", 0, nullptr},
    };
    for (const Case &c : cases) check(c);
}

TEST(Formula, Errors) {
    const Case cases[] = {
        {"int x; x = 1 / 0;", "", 134, ""},
        {"float f; f = 1.0 / 0.0;", "", 134, ""},
        {"float f; int x; f = 1.5; x = f && 1;", "", 135, ""},
        {"int x; x = !1.5;", "", 135, ""},
        {"int x; x = 1 2;", "", 0, nullptr},  // blanks vanish: x = 12
        {"int x; x = 1 $ 2;", "", 135, "$2"},
        {"char s[5]; int x; x = s == \"abc\";", "", 144, ""},
        {"char c; c = 'AB';", "", 147, "'AB'"},
        {"char c; c = ' ';", "", 147, "''"},
        {"int v[10]; v[10] = 1;", "", 146, "v"},
        {"int v[10]; v[-1] = 1;", "", 146, "v"},
        {"int x; x[0] = 1;", "", 145, "x"},
        {"int v[3]; int w[2]; v[w] = 1;", "", 144, nullptr},
        {"int v[3]; int x; x = v[1;", "", 120, "]"},
        {"int x; 5 = x;", "", 133, ""},
        {"int a; int b; a = b = 1;", "", 133, ""},
        {"int x; (x + 1) = 2;", "", 133, ""},
        {"int x; x = (1 + 2;", "", 127, "x=(1+2"},
        {"(1 + 2;", "", 129, "(1+2"},
        {"int x; x = 1 +;", "", 127, ""},
        {"int x; x = *2;", "", 127, "*2"},
        {"int x; x = y;", "", 125, "y"},
        {"int x; x = 1(2);", "", 119, "("},
        {"int x; x = 1.2.3;", "", 127, ""},
        {"int x; x = 12345678901234567;", "", 127, ""},
        {"char s[9]; s = \"abc\\\"\n;", "", 130, ""},
        {";", "", 128, ""},
        {"char s[4]; int v[4]; s = v;", "", 132, ""},
        {"int x; int v[4]; x = v;", "", 144, ""},
    };
    for (const Case &c : cases) {
        if (c.error == 0) continue;
        check(c);
    }
}

TEST(Formula, AssignmentStoresAndYieldsTheTarget) {
    const Case cases[] = {
        {"char s[10]; s = \"abc\"; Print(s);", "abc\n", 0, nullptr},
        {"char s[3]; s = \"abcdef\"; Print(s);", "ab\n", 0, nullptr},
        {"char s[10]; char t[10]; s = \"abcdefgh\"; t = \"xy\"; s = t; Print(s);", "xy\n", 0, nullptr},
        {"int a; int b; b = (a = 5) + 1; Print(a); Print(b);", "5\n6\n", 0, nullptr},
        {"int v[3]; int w[3]; w[1] = 7; v = w; Print(v[1]);", "7\n", 0, nullptr},
        {"float f; f = 'a'; Print(f);", "97.000000\n", 0, nullptr},
        {"char s[20]; s = \"say \\\"hi\\\"\"; Print(s);", "say \"hi\"\n", 0, nullptr},
        {"char s[20]; s = \"a\\\\b\"; Print(s);", "a\\b\n", 0, nullptr},
        {"char s[20]; s = \"a\\qb\"; Print(s);", "a\\b\n", 0, nullptr},
    };
    for (const Case &c : cases) check(c);
}

TEST(Formula, EveryFunctionCallRunsWithoutShortCircuit) {
    CoreRun r = runCore(u"int x; x = Print(1) && Print(2); Print(x);");
    EXPECT_EQ(r.errorCode, 0);
    EXPECT_EQ(r.output, "1\n2\n0\n");
}

TEST(Formula, StacksHoldNineteenEntries) {
    auto nested = [](int n) { return std::string(size_t(n), '(') + "1" + std::string(size_t(n), ')') + ";"; };
    EXPECT_EQ(runCore(u16(nested(19))).errorCode, 0);
    CoreRun r = runCore(u16(nested(20)));
    EXPECT_EQ(r.errorCode, 131);
    // The assignment's operator takes one of the nineteen places.
    EXPECT_EQ(runCore(u16("int x; x = " + nested(18))).errorCode, 0);
    EXPECT_EQ(runCore(u16("int x; x = " + nested(19))).errorCode, 131);
}
