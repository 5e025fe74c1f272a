// Programs, the shell's associations, the browser and the environment under
// Wine. The test registers ".txt" in its own prefix to writecmd.exe, which
// writes its command line next to the file it was given.
#include <gtest/gtest.h>

#include <cstdlib>

#include "test_desktop.h"
#include "win_harness.h"

namespace {

struct Processes : ::testing::Test {
    const TestDesktop &d = testDesktop();
    std::wstring dir = winScratchDir();
    std::string run(const std::string &text) { return runIn(d.frame, text); }

    static void SetUpTestSuite() {
        // HKEY_CLASSES_ROOT\.txt -> MorvixTest.txt -> writecmd.exe "%1".
        std::wstring command = L"\"" + binDir() + L"\\writecmd.exe\" \"%1\"";
        RegSetKeyValueW(HKEY_CLASSES_ROOT, L".txt", nullptr, REG_SZ, L"MorvixTest.txt", sizeof L"MorvixTest.txt");
        RegSetKeyValueW(HKEY_CLASSES_ROOT, L"MorvixTest.txt\\shell\\open\\command", nullptr, REG_SZ, command.c_str(),
                        DWORD((command.size() + 1) * sizeof(wchar_t)));
    }

    // The command line writecmd.exe wrote for file, waiting for it up to 60 s
    // (a start through the shell is slow on a loaded machine).
    static std::string written(const std::wstring &file) {
        std::wstring out = file + L".cmdline";
        for (int i = 0; i < 1200 && GetFileAttributesW(out.c_str()) == INVALID_FILE_ATTRIBUTES; ++i) Sleep(50);
        return winReadFile(out);
    }
};

std::string lower(std::string s) {
    for (char &c : s) c = char(tolower(static_cast<unsigned char>(c)));
    return s;
}

}  // namespace

// ExecuteProgramModal waits for the exit code; neither it nor CreateProcess
// leaves a process or thread handle open.
TEST_F(Processes, ExecuteProgramModalWaitsForTheExitCodeAndNoHandleIsLeftOpen) {
    std::string exit3 = macroPath(binDir() + L"\\exit3.exe");
    EXPECT_EQ(run("int rc; rc = -7; Print(ExecuteProgramModal(\"" + exit3 + "\", 0, rc)); Print(rc); rc = -7;"
                  "Print(ExecuteProgramModal(\"C:\\\\windows\\\\nosuchprogram.exe\", 1, rc)); Print(rc);"
                  "Print(ExecuteProgramModal(\"nosuchprogram_x\", 1, rc)); Print(rc);"
                  "Print(ExecuteProgramModal(\"\", 1, rc) != 0); Print(rc);"),
              "0\n3\n2\n-7\n2\n-7\n1\n-7\n");
    DWORD before = 0, after = 0;
    GetProcessHandleCount(GetCurrentProcess(), &before);
    run("int rc; int i; i = 0; while (i < 5) begin ExecuteProgramModal(\"" + exit3 + "\", 0, rc);"
        "CreateProcess(\"" + exit3 + "\", 0, 0); i = i + 1; end");
    GetProcessHandleCount(GetCurrentProcess(), &after);
    EXPECT_EQ(after, before);
}

TEST_F(Processes, ALongCommandLineReachesTheProgramWhole) {
    std::wstring target = dir + L"\\long";
    std::string arg(4000, 'x');
    // Built in pieces: one formula may not hold 4000 characters.
    std::string pieces = "char c[4300]; int rc; c = \"\\\"" + macroPath(binDir() + L"\\writecmd.exe") + "\\\" " +
                         macroPath(target) + " \";";
    for (int i = 0; i < 20; ++i) pieces += "StrCat(c, \"" + arg.substr(0, 200) + "\");";
    EXPECT_EQ(run(pieces + "Print(ExecuteProgramModal(c, 0, rc)); Print(rc);"), "0\n0\n");
    std::string got = written(target);
    EXPECT_EQ(got, "\"" + utf8(binDir()) + "\\writecmd.exe\" " + utf8(target) + " " + arg);
}

TEST_F(Processes, CreateProcessStartsWithoutWaiting) {
    std::wstring target = dir + L"\\started";
    std::string writecmd = macroPath(binDir() + L"\\writecmd.exe");
    EXPECT_EQ(run("Print(CreateProcess(\"" + writecmd + " " + macroPath(target) + " one\", 1, 0));"
                  "Print(CreateProcess(\"C:\\\\no\\\\such.exe\", 1, 0)); Print(CreateProcess(\"\", 1, 0));"
                  "Print(StarteProgrammNM(\"" + writecmd + " " + macroPath(target) + "2 two\", 0));"),
              "0\n-1\n-1\n0\n");
    EXPECT_EQ(written(target), utf8(binDir() + L"\\writecmd.exe") + " " + utf8(target) + " one");
    EXPECT_NE(written(target + L"2").find(" two"), std::string::npos);
}

TEST_F(Processes, TheShellFindsAndRunsTheRegisteredProgram) {
    std::wstring file = dir + L"\\a.txt";
    winWriteFile(file, "text");
    winWriteFile(dir + L"\\b.nosuchext", "x");
    std::string f = macroPath(file);
    std::string out = run("char p[260]; char small[6]; p = \"keep\";"
                          "Print(FindExecutable(\"" + f + "\", p)); Print(p); Print(FindExecutable(\"" + f + "\", small));"
                          "Print(small); p = \"keep\";"
                          "Print(FindExecutable(\"" + macroPath(dir + L"\\b.nosuchext") + "\", p)); Print(p);"
                          "Print(ShellExecute(\"" + f + "\", \"nosuchverb\", 1));"
                          "Print(ShellExecute(\"" + macroPath(dir + L"\\missing.txt") + "\", \"open\", 1));"
                          "Print(ShellExecute(\"" + f + "\", \"open\", 1));");
    std::vector<std::string> lines;
    for (size_t at = 0, end; (end = out.find('\n', at)) != std::string::npos; at = end + 1)
        lines.push_back(out.substr(at, end - at));
    ASSERT_EQ(lines.size(), 9u) << out;
    EXPECT_EQ(lines[0], "0");
    EXPECT_NE(lower(lines[1]).find("writecmd.exe"), std::string::npos) << lines[1];
    EXPECT_EQ(lines[2], "0");
    EXPECT_EQ(lines[3], lines[1].substr(0, 5));  // cut at the capacity
    EXPECT_EQ(std::vector<std::string>(lines.begin() + 4, lines.end()),
              (std::vector<std::string>{"-1", "keep", "-1", "-1", "0"}));
    std::string got = written(file);
    EXPECT_NE(got.find("a.txt"), std::string::npos) << got;
}

TEST_F(Processes, OpenBrowserHandsTheAddressToTheShellsHandler) {
    std::wstring page = dir + L"\\page.txt";
    winWriteFile(page, "<html/>");
    EXPECT_EQ(run("Print(OpenBrowser(\"" + macroPath(page) + "\", 0)); Print(OpenBrowser(\"\", 0));"), "0\n-1\n");
    EXPECT_NE(written(page).find("page.txt"), std::string::npos);
}

TEST_F(Processes, EnvironmentVariablesSetUnsetAndCut) {
    _wputenv(L"MX_WINE_VAR=Wert \x20AC 42");
    _wputenv(L"MX_WINE_UNSET=");
    EXPECT_EQ(run("char v[30]; char s[5]; v = \"keep\";"
                  "Print(GetEnvironment(\"MX_WINE_VAR\", v)); Print(v); Print(GibEnvironment(\"MX_WINE_UNSET\", v));"
                  "Print(v); Print(GetEnvironment(\"MX_WINE_VAR\", s)); Print(s);"),
              "0\nWert \xE2\x82\xAC 42\n-1\nWert \xE2\x82\xAC 42\n0\nWert\n");
}
