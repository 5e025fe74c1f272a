// The text built-ins called from real macros: the binding hands each
// implementation the caller's variables, so writes land in them.
#include <gtest/gtest.h>

#include "macro_harness.h"

namespace {

struct MacroCase {
    const char *name;
    const char16_t *body;
    const char *output;
};

void runAll(const std::vector<MacroCase> &cases, int32_t country = 1) {
    for (const MacroCase &c : cases) {
        MacroRun r = runMemory(c.body, country);
        EXPECT_EQ(r.result, 0) << c.name << "\n" << r.output;
        EXPECT_EQ(r.output, c.output) << c.name;
    }
}

TEST(TextMacro, CuttingAndPadding) {
    runAll({
        {"MidString", u"char d[4]; MidString(\"abcdef\", 0, 2, d); Print(d); LeftString(\"abcdef\", 10, d); Print(d);",
         "ab\nabc\n"},
        {"German names", u"text d[10]; LinkerText(\"abcdef\", 2, d); Print(d); RechterText(\"abcdef\", 2, d); Print(d);",
         "ab\nef\n"},
        {"Fill", u"char s[10]; s = \"42\"; FillStringLeft(s, 6, '0'); Print(s); FillStringRight(s, 8, '*'); Print(s);",
         "000042\n000042**\n"},
        {"Fill cut", u"char s[10]; s = \"abcdefgh\"; FillStringLeft(s, 6, 48); Print(s);", "cdefgh\n"},
        {"StrCat full", u"char s[3]; s = \"ab\"; Print(StrCat(s, \"x\")); Print(s); char t[4]; t = \"a\"; "
                          u"Print(StrCat(t, \"bcd\")); Print(t);",
         "0\nab\n1\nabc\n"},
        {"Trim changes the variable", u"char s[10]; s = \"ab  \"; TrimRight(s, 32); Print(StrLen(s)); "
                                      u"s = \"0042\"; TrimLeft(s, 48); Print(s);",
         "2\n42\n"},
    });
}

TEST(TextMacro, SearchingSplittingAndCase) {
    runAll({
        {"StrCmp", u"Print(StrCmp(\"a\", \"B\")); Print(TextVergleich(\"a\", \"a\"));", "1\n0\n"},
        {"StrStr", u"Print(StrStr(\"abc\", \"c\")); Print(FindString(\"abc\", \"c\", 0)); Print(StrStr(\"abc\", \"x\"));",
         "2\n3\n-1\n"},
        {"StrDelim", u"char s[10]; char p[10]; s = \"a;b\"; Print(StrDelim(s, p, 59)); Print(p); Print(s); "
                     u"Print(StrDelim(s, p, 59)); Print(p); Print(StrLen(s)); Print(StrDelim(s, p, 0));",
         "1\na\nb\n0\nb\n0\n-1\n"},
        {"GetSubString", u"char r[10]; GetSubString(\"a\\t\\tb\", 1, r); Print(r); GetSubString(\"a\\tb\", 2, r); "
                         u"Print(StrLen(r));",
         "b\n0\n"},
        {"Case", u"char s[20]; s = \"Stra\xdf" u"e \xe4x\"; StringToUpper(s); Print(s); Print(ToUpper('a')); "
                 u"Print(ToLower(65)); Print(IsAlpha(65.9)); Print(IsAlphaNumeric('-'));",
         "STRA\xc3\x9f" "E \xc3\x84X\n65\n97\n1\n0\n"},
    });
}

TEST(TextMacro, FormattingAndHelpers) {
    runAll({
        {"MakeText2", u"char r[10]; Print(MakeText2(r, \"%s-%s\", \"a\", \"b\")); Print(r); char q[3]; "
                      u"Print(MakeText2(q, \"%s-%s\", \"a\", \"b\")); Print(q);",
         "3\na-b\n-1\na-\n"},
        {"MakeTextInt", u"char r[20]; MakeTextInt(r, \"[%05d|%x]\", 255); Print(r); MakeTextInt(r, \"%s %n %d\", 7); "
                        u"Print(r);",
         "[00255|%x]\n7  %d\n"},
        {"ReplaceString", u"char s[12]; s = \"a.b.c\"; Print(ReplaceString(s, \".\", \"--\", 0)); Print(s);",
         "0\na--b--c\n"},
        {"DecodeString", u"char s[12]; s = \"a%20b\"; Print(DecodeString(s)); Print(s);", "1\na b\n"},
    });
}

TEST(TextMacro, TransformStringReadsTheFile) {
    std::string dir = scratchDir();
    writeFile(dir + "/map.txt", "Herr\tMr.\t\nFrau\tMrs.\t\n");
    std::u16string path = u16(dir + "/map.txt");
    MacroRun r = runMemory(u"char d[20]; Print(TransformString(\"" + path + u"\", \"Frau\", d)); Print(d); "
                           u"Print(TransformString(\"" + path + u"\", \"Kind\", d)); Print(d);");
    EXPECT_EQ(r.result, 0) << r.output;
    EXPECT_EQ(r.output, "0\nMrs.\n-1\nKind\n");
}

}  // namespace
