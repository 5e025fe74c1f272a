// The desktop functions natively: title patterns, the answers of a machine
// without a desktop (windows, MDI, clipboard, button bar, command line),
// the environment and real processes.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "desktop/command_words.h"
#include "desktop/title_pattern.h"
#include "macro_harness.h"

namespace fs = std::filesystem;
using namespace mx;

namespace {
MacroRun run(const std::string &text) { return runMemory(u16(text)); }
}  // namespace

TEST(DesktopTitles, ExactTitlesAndPrefixPatterns) {
    EXPECT_TRUE(dskTitleMatches(u"Editor - a.txt", u"Editor - ?*"));
    EXPECT_FALSE(dskTitleMatches(u"Editor", u"Editor - ?*"));
    EXPECT_TRUE(dskTitleMatches(u"Editor", u"Editor"));
    EXPECT_FALSE(dskTitleMatches(u"Editor - a.txt", u"Editor"));  // exact unless "?*"
    EXPECT_FALSE(dskTitleMatches(u"Editor", u"editor"));          // case counts
    EXPECT_FALSE(dskTitleMatches(u"Edit", u"Editor"));
    // "?*" alone matches every title, the empty one too; text after it is ignored.
    EXPECT_TRUE(dskTitleMatches(u"", u"?*"));
    EXPECT_TRUE(dskTitleMatches(u"Editor - a.txt", u"Editor?*never looked at"));
    // "?" or "*" alone are ordinary characters.
    EXPECT_FALSE(dskTitleMatches(u"Editor x", u"Editor ?"));
    EXPECT_TRUE(dskTitleMatches(u"Editor ?", u"Editor ?"));
    EXPECT_TRUE(dskTitleMatches(u"", u""));
    EXPECT_FALSE(dskTitleMatches(u"x", u""));
}

TEST(DesktopNative, WithoutADesktopTheClipboardCannotBeOpened) {
    MacroRun r = run("char t[20]; t = \"keep\"; Print(WriteClipboard(\"x\", 0)); Print(ReadClipboard(t, 0)); Print(t);");
    EXPECT_EQ(r.output, "1\n1\nkeep\n");
}

TEST(DesktopNative, EnvironmentVariablesAreReadWithinTheCapacity) {
    setenv("MX_DESKTOP_TEST", "Stra\xC3\x9F" "e 12", 1);
    unsetenv("MX_DESKTOP_UNSET");
    std::string long100(100, 'N');
    setenv(long100.substr(0, 99).c_str(), "cut name", 1);  // the name is cut to 99
    MacroRun r = run(
        "char v[40]; char small[4]; v = \"keep\";"
        "Print(GetEnvironment(\"MX_DESKTOP_TEST\", v)); Print(v);"
        "Print(GibEnvironment(\"MX_DESKTOP_UNSET\", v)); Print(v);"
        "Print(GetEnvironment(\"MX_DESKTOP_TEST\", small)); Print(small);"
        "Print(GetEnvironment(\"" + long100 + "\", v)); Print(v);");
    EXPECT_EQ(r.output, "0\nStra\xC3\x9F" "e 12\n-1\nStra\xC3\x9F" "e 12\n0\nStr\n0\ncut name\n");
}

TEST(DesktopNative, CommandLinesSplitIntoWordsWithQuotes) {
    EXPECT_EQ(dskCommandWords(u"  prog  a\t\"b c\" d\\\"e \"\" "),
              (std::vector<std::string>{"prog", "a", "b c", "d\"e", ""}));
    EXPECT_TRUE(dskCommandWords(u"").empty());
    EXPECT_TRUE(dskCommandWords(u" \t ").empty());
    EXPECT_EQ(dskCommandWords(u"x\"y z\"w"), (std::vector<std::string>{"xy zw"}));
}

TEST(DesktopNative, ExecuteProgramModalWaitsAndReportsTheExitCode) {
    MacroRun r = run(
        "int rc; char cmd[4100]; int i; rc = -7;"
        "Print(ExecuteProgramModal(\"sh -c \\\"exit 3\\\"\", 0, rc)); Print(rc); rc = -7;"
        "Print(ExecuteProgramModal(\"/no/such/program x\", 1, rc)); Print(rc);"
        "Print(ExecuteProgramModal(\"\", 1, rc)); Print(rc);"
        "Print(ExecuteProgramModal(\"sh -c \\\"kill -9 $$\\\"\", 1, rc)); Print(rc);"
        "cmd = \"true \"; i = 0;"
        "while (i < 400) begin StrCat(cmd, \"aaaaaaaaaa\"); i = i + 1; end "
        "Print(StrLen(cmd)); Print(ExecuteProgramModal(cmd, 1, rc)); Print(rc);");
    EXPECT_EQ(r.output, "0\n3\n2\n-7\n2\n-7\n0\n137\n4005\n0\n0\n");
}

TEST(DesktopNative, CreateProcessStartsWithoutWaitingAndLeavesNoChild) {
    std::string dir = scratchDir();
    std::string marker = dir + "/started";
    MacroRun r = run("Print(CreateProcess(\"sh -c \\\"sleep 1; echo $0 > " + marker +
                     "\\\" ran\", 1, 0)); Print(CreateProcess(\"/no/such/program\", 1, 0));"
                     "Print(CreateProcess(\"\", 1, 0)); Print(ExecuteProgram(\"/no/such/program\", 0));");
    EXPECT_EQ(r.output, "0\n-1\n-1\n0\n");
    EXPECT_FALSE(fs::exists(marker));  // not waited for
    for (int i = 0; i < 200 && readFile(marker).empty(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(readFile(marker), "ran\n");
    // The started program was handed on, so this process has no child left.
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    fs::remove_all(dir);
}

TEST(DesktopNative, TheShellHasNoAssociationsWithoutADesktop) {
    MacroRun r = run("char p[50]; p = \"keep\"; Print(ShellExecute(\"a.txt\", \"open\", 1));"
                     "Print(FindExecutable(\"a.txt\", p)); Print(p);");
    EXPECT_EQ(r.output, "-1\n-1\nkeep\n");
}
