// The dialogs on a machine without a desktop: the answers they give without
// an answer script, the answer script itself, the list-file and header
// formats, and the pieces the Windows dialogs share (styles, layout, the
// number IntDialog reads). The same macros with their answer scripts run on
// both builds as cases (tests/cases/dialogs.cases).
#include <gtest/gtest.h>

#include <climits>

#include "answers.h"
#include "base/utf8.h"
#include "dialogs/dialog_answers.h"
#include "dialogs/dialogs.h"
#include "helperlib/kelvane_dialogs.h"
#include "helperlib/kelvane_lists.h"
#include "macro_harness.h"

using mx::AnswerAction;
using mx::DialogKind;

namespace {

std::string u8(const std::u16string &s) { return mx::toUtf8(s.c_str()); }

// Runs a memory macro with an answer script; notes of the script join the output.
MacroRun withAnswers(const std::string &script, const std::u16string &macro) {
    std::string error;
    EXPECT_TRUE(answersParse(script, error)) << error;
    answersSetReport([](const std::string &line) { harnessPrint(line.substr(0, line.size() - 1)); });
    mx::dialogsSetAnswerSource(answersNext);
    MacroRun r = runMemory(macro);
    mx::dialogsSetAnswerSource(nullptr);
    answersSetReport(nullptr);
    return r;
}

std::vector<std::string> displays(const std::vector<mx::ListEntry> &entries) {
    std::vector<std::string> out;
    for (const mx::ListEntry &e : entries) out.push_back(u8(e.display()) + "|" + u8(e.hidden()));
    return out;
}

}  // namespace

TEST(DialogsNative, WithoutAnswersEveryDialogAnswersAsNoDesktopCan) {
    std::string dir = scratchDir();
    writeFile(dir + "/a.lst", "x\ty\n");
    MacroRun r = runMemory(u16(
        "int n; char t[20]; char a[20]; char b[20];\n"
        "n = 5; t = \"alt\"; a = \"A\"; b = \"B\";\n"
        "Print(MessageBox(\"T\", \"Text\", QUEST, YES + NO));\n"
        "Print(Alert(\"Hallo\"));\n"
        "Print(IntDialog(\"T\", \"P\", n)); Print(n);\n"
        "Print(TextDialog(\"T\", \"P\", t)); Print(t);\n"
        "Print(ListBoxDialog(\"T\", \"" + dir + "/a.lst\", -1, -1, 0, 0, 0, 0, a, b)); Print(a); Print(b);\n"
        "Print(ListViewDialog(\"T\", \"H\", \"" + dir + "/a.lst\", 3));\n"
        "Print(FilenameDialog(t, READ, \"T\", \"\")); Print(t);\n"
        "Print(DirectoryDialog(t, \"T\", 0)); Print(t);\n"));
    EXPECT_EQ(r.output,
              "T: Text\n0\n: Hallo\n0\n"   // boxes: written, no button pressed
              "1\n5\n1\nalt\n"             // the input dialog cannot be created: -1 counts as an end
              "0\nA\nB\n"                  // list box: 0, results untouched
              "-1\n"                       // list view: the failure value
              "2\nalt\n2\nalt\n");         // choosers: cancelled
}

TEST(DialogsNative, AnswerScriptLinesAndMistakes) {
    std::string error;
    EXPECT_TRUE(answersParse("\xEF\xBB\xBF# comment\r\n\r\n  ok\r\ntext  two blanks\nselect 1,3 5\nfile a b.txt\n", error));
    EXPECT_EQ(answersLeft(), 4u);
    EXPECT_EQ(answersNext(DialogKind::kMessageOk, u"T").action, AnswerAction::kOk) << "OK-only boxes use no line";
    EXPECT_EQ(answersLeft(), 4u);
    EXPECT_EQ(answersNext(DialogKind::kInput, u"T").action, AnswerAction::kOk);
    mx::DialogAnswer typed = answersNext(DialogKind::kInput, u"T");
    EXPECT_EQ(typed.action, AnswerAction::kText);
    EXPECT_EQ(typed.text, u" two blanks") << "the text is everything after the first blank";
    EXPECT_EQ(answersNext(DialogKind::kListBox, u"T").picks, (std::vector<int32_t>{1, 3, 5}));
    EXPECT_EQ(answersNext(DialogKind::kFile, u"T").text, u"a b.txt");

    struct Bad {
        const char *script;
        const char *message;
    } bad[] = {
        {"ok\nmaybe\n", "line 2: unknown answer 'maybe'"},
        {"select 1 x\n", "line 1: 'select' takes entry numbers"},
        {"select -1\n", "line 1: 'select' takes entry numbers"},
        {"file\n", "line 1: 'file' needs a path"},
        {"cancel now\n", "line 1: 'cancel' takes nothing after it"},
        {"OK\n", "line 1: unknown answer 'OK'"},
    };
    for (const Bad &b : bad) {
        EXPECT_FALSE(answersParse(b.script, error)) << b.script;
        EXPECT_EQ(error, b.message);
        EXPECT_EQ(answersLeft(), 0u) << "a broken script gives no answers";
    }
}

TEST(DialogsNative, AnswersThatDoNotFitCancelAndAreUsedUp) {
    std::string error, notes;
    ASSERT_TRUE(answersParse("text x\nok\nyes\ndir /tmp\n", error));
    static std::string *sink;
    sink = &notes;
    answersSetReport([](const std::string &line) { *sink += line; });
    EXPECT_EQ(answersNext(DialogKind::kMessageYesNo, u"Box").action, AnswerAction::kNo)
        << "a box without Cancel answers No";
    EXPECT_EQ(answersNext(DialogKind::kFile, u"Datei").action, AnswerAction::kCancel) << "ok picks no file";
    EXPECT_EQ(answersNext(DialogKind::kMessageOkCancel, u"Box").action, AnswerAction::kCancel);
    EXPECT_EQ(answersNext(DialogKind::kFile, u"Datei").action, AnswerAction::kCancel) << "dir is not a file";
    EXPECT_EQ(answersNext(DialogKind::kListView, u"Leer").action, AnswerAction::kCancel);
    answersSetReport(nullptr);
    EXPECT_EQ(notes,
              "answers: line 1 ('text') does not fit \"Box\"; cancelled\n"
              "answers: line 2 ('ok') does not fit \"Datei\"; cancelled\n"
              "answers: line 3 ('yes') does not fit \"Box\"; cancelled\n"
              "answers: line 4 ('dir') does not fit \"Datei\"; cancelled\n"
              "answers: no answer left for \"Leer\"; cancelled\n");
}

TEST(DialogsNative, ListFilesInEveryEncoding) {
    using V = std::vector<std::string>;
    // UTF-8 without a mark, CR LF, CR and LF line ends, blank lines skipped
    EXPECT_EQ(displays(mx::kelvaneParseList("a\tA\r\n\r\n  \nb\rc\td\te\n")), (V{"a|A", "b|b", "c|d\te"}));
    EXPECT_EQ(displays(mx::kelvaneParseList("\xEF\xBB\xBF\xC3\xA4\t1")), (V{"\xC3\xA4|1"}));
    EXPECT_EQ(displays(mx::kelvaneParseList(std::string("\xFF\xFE\xE4\x00\t\x00x\x00\n\x00", 10))),
              (V{"\xC3\xA4|x"}));
    // not UTF-8: code page 1252
    EXPECT_EQ(displays(mx::kelvaneParseList("\xE4pfel\t\x80")), (V{"\xC3\xA4pfel|\xE2\x82\xAC"}));
    EXPECT_TRUE(mx::kelvaneParseList("").empty());
    // binary: control characters vanish, nothing is read past the bytes
    EXPECT_EQ(displays(mx::kelvaneParseList(std::string("a\0b\x01\x02\tc", 7))), (V{"ab|c"}));
    // an overlong line keeps its first kListLineLimit units
    std::vector<mx::ListEntry> longLine = mx::kelvaneParseList(std::string(100000, 'x') + "\ny");
    ASSERT_EQ(longLine.size(), 2u);
    EXPECT_EQ(longLine[0].display().size(), size_t(mx::kListLineLimit));
    EXPECT_EQ(u8(longLine[1].display()), "y");
}

TEST(DialogsNative, HeaderColumnsAndWidths) {
    std::vector<mx::ListColumn> c = mx::kelvaneParseHeader(u"Name:120\tWert\tZeit:abc\ta:b:30\t:0");
    ASSERT_EQ(c.size(), 5u);
    EXPECT_EQ(c[0].title, u"Name");
    EXPECT_EQ(c[0].width, 120);
    EXPECT_EQ(c[1].title, u"Wert");
    EXPECT_EQ(c[1].width, 100);
    EXPECT_EQ(c[2].title, u"Zeit:abc") << "a bad width is part of the title";
    EXPECT_EQ(c[2].width, 100);
    EXPECT_EQ(c[3].title, u"a:b");
    EXPECT_EQ(c[3].width, 30);
    EXPECT_EQ(c[4].title, u"");
    EXPECT_EQ(c[4].width, 0);
    EXPECT_TRUE(mx::kelvaneParseHeader(u"").empty());
    EXPECT_TRUE(mx::kelvaneParseHeader(nullptr).empty());
}

TEST(DialogsNative, FilterTextsBecomePairs) {
    char16_t out[32];
    int32_t n = mx::kelvaneFilterToPairs(u"Texte|*.txt|Alle|*.*", out, 32);
    EXPECT_EQ(std::u16string(out, size_t(n)), std::u16string(u"Texte\0*.txt\0Alle\0*.*\0\0", 22));
    n = mx::kelvaneFilterToPairs(u"Texte|*.txt|", out, 32);
    EXPECT_EQ(std::u16string(out, size_t(n)), std::u16string(u"Texte\0*.txt\0\0", 13));
    n = mx::kelvaneFilterToPairs(u"", out, 32);
    EXPECT_EQ(std::u16string(out, size_t(n)), std::u16string(u"All\0*.*\0\0", 9));
    EXPECT_EQ(mx::kelvaneFilterToPairs(u"Texte|*.txt", out, 12), 0) << "does not fit";
    EXPECT_EQ(mx::kelvaneFilterToPairs(u"Texte|*.txt", out, 13), 13);
}

TEST(DialogsNative, StylesButtonsAndTheNumberOfIntDialog) {
    EXPECT_EQ(mx::dlgMessageStyle(33, 1, false), 0x2030u);
    EXPECT_EQ(mx::dlgMessageStyle(63, 3, false), 0x2021u);
    EXPECT_EQ(mx::dlgMessageStyle(73, 12, true), 0x1044u);
    EXPECT_EQ(mx::dlgMessageStyle(83, 14, true), 0x1013u);
    EXPECT_EQ(mx::dlgMessageStyle(0, 6, false), 0x2000u) << "no icon, only OK";
    EXPECT_EQ(mx::dlgMessageStyle(34, 2, false), 0x2000u);
    const int32_t values[][2] = {{1, 1}, {2, 2}, {6, 4}, {7, 8}, {0, 0}, {3, 0}, {-1, 0}};
    for (const auto &v : values) EXPECT_EQ(mx::dlgButtonValue(v[0]), v[1]) << v[0];

    EXPECT_EQ(mx::dlgLeadingNumber(u"12abc"), 12);
    EXPECT_EQ(mx::dlgLeadingNumber(u" \t-12x"), -12);
    EXPECT_EQ(mx::dlgLeadingNumber(u"+7"), 7);
    EXPECT_EQ(mx::dlgLeadingNumber(u"abc"), 0);
    EXPECT_EQ(mx::dlgLeadingNumber(u""), 0);
    EXPECT_EQ(mx::dlgLeadingNumber(u"- 5"), 0);
    EXPECT_EQ(mx::dlgLeadingNumber(u"99999999999"), INT_MAX);
    EXPECT_EQ(mx::dlgLeadingNumber(u"-2147483648"), INT_MIN);
    EXPECT_EQ(mx::dlgLeadingNumber(u"-99999999999"), INT_MIN);
}

TEST(DialogsNative, ListBoxLayoutAndListDialogFlags) {
    mx::ListBoxLayout l = mx::dlgListBoxLayout(600, 400, 75, 23);
    EXPECT_EQ(l.listLeft, 10);
    EXPECT_EQ(l.listTop, 10);
    EXPECT_EQ(l.listRight, 590);
    EXPECT_EQ(l.listBottom, 357);
    EXPECT_EQ(l.buttonTop, 367);
    EXPECT_EQ(l.okLeft, 222);
    EXPECT_EQ(l.cancelLeft, 302);
    // an odd remainder and a dialog narrower than its buttons: toward zero
    EXPECT_EQ(mx::dlgListBoxLayout(100, 50, 60, 20).okLeft, -12);
    EXPECT_EQ(mx::dlgListBoxLayout(156, 50, 75, 20).okLeft, 0);

    EXPECT_EQ(mx::dlgListDialogFlags(0, false), 4);
    EXPECT_EQ(mx::dlgListDialogFlags(2, false), 5) << "MULTI sorts and stays single";
    EXPECT_EQ(mx::dlgListDialogFlags(-1, true), 1);
    EXPECT_EQ(mx::dlgListDialogFlags(0, true), 0);
}

TEST(DialogsNative, BigListsLongEntriesAndSmallResults) {
    std::string dir = scratchDir();
    std::string lines;
    for (int i = 1; i <= 100000; ++i) lines += "e" + std::to_string(i) + "\th" + std::to_string(i) + "\n";
    writeFile(dir + "/big.lst", lines);
    writeFile(dir + "/long.lst", std::string(2000, 'a') + "\t" + std::string(1500, 'h') + "\nb\tc\n");
    MacroRun r = withAnswers("select 100000\nselect 1 2\nselect 1\n",
                             u16("char a[3000]; char b[3000]; char c[2];\n"
                                 "Print(ListBoxDialog(\"T\", \"" + dir + "/big.lst\", -1, -1, 0, 0, 0, 0, a, b));\n"
                                 "Print(a); Print(b);\n"
                                 "Print(ListBoxDialog(\"T\", \"" + dir + "/long.lst\", -1, -1, 0, 0, 0, MULTI, a, b));\n"
                                 "Print(StrLen(a)); Print(StrLen(b));\n"
                                 "Print(ListBoxDialog(\"T\", \"" + dir + "/long.lst\", -1, -1, 0, 0, 0, 0, c, c));\n"
                                 "Print(StrLen(c));\n"));
    // multiple selection reads each display text through 1000 units; the
    // results are cut at their capacity
    EXPECT_EQ(r.output, "100000\ne100000\nh100000\n1\n1001\n1502\n1\n1\n");
}
