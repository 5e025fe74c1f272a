// The DLL as a host sees it: every export and the built-in table through
// it, the real error box with its owner, and deep nesting on a host
// thread's 1 MB stack. (mxrun.exe itself runs the dialog and failing cases.)
#include <gtest/gtest.h>

#include <set>

#include "unattended.h"
#include "win_harness.h"

namespace {

std::wstring text(const WCHAR *s) { return s; }

TEST(WinHost, EveryExportAnswers) {
    const WinExports &e = dll();
    ASSERT_NE(e.dll, nullptr);
    WCHAR buf[64];
    // The version resource says what the header says.
    const std::string version = MORVIX_VERSION_TEXT;
    const std::wstring wide(version.begin(), version.end());
    EXPECT_EQ(e.getVersion(buf, 64), LONG(wide.size()));
    EXPECT_EQ(text(buf), wide);
    EXPECT_EQ(e.getMacroLibVersion(buf, 64), LONG(wide.size()));
    EXPECT_EQ(text(buf), wide);
    EXPECT_EQ(e.getTlxModuleName(buf, 64), 9);
    EXPECT_EQ(text(buf), L"MORVIXDLL");
    EXPECT_EQ(e.getTlxModuleName(buf, 4), 3);
    EXPECT_EQ(text(buf), L"MOR");
    EXPECT_EQ(e.getInstance(), e.dll);
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\t.mac", "Macro \"Test\" begin end");
    EXPECT_EQ(e.getMacroHeader((dir + L"\\missing.mac").c_str(), buf, 50), -2);
    EXPECT_EQ(e.getMacroHeader((dir + L"\\t.mac").c_str(), buf, 3), 0);
    EXPECT_EQ(text(buf), L"Te");
}

// The table as a host walks it: sorted, 318 rows, the all-zero end row,
// and the fields of a row as wide pointers.
TEST(WinHost, TheFunctionTableThroughTheExport) {
    const MX_FUNCTION_ROW *rows = dll().getFunctionList(), *open = nullptr;
    ASSERT_NE(rows, nullptr);
    size_t n = 0, constants = 0;
    std::set<DWORD> numbers;
    for (; rows[n].name && n < 1000; ++n) {
        if (n > 0) EXPECT_LT(std::wstring(rows[n - 1].name), std::wstring(rows[n].name)) << n;
        if (!rows[n].signature) ++constants;
        else numbers.insert(rows[n].identifier & 0xFFFF);
        if (std::wstring(rows[n].name) == L"Datei\u00D6ffnen") open = &rows[n];
    }
    EXPECT_EQ(n, 318u);
    EXPECT_EQ(constants, 32u);
    EXPECT_EQ(numbers.size(), 196u);
    EXPECT_TRUE(rows[n].identifier == 0 && !rows[n].signature && !rows[n].paramNames);
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(open->identifier, 65538u);
    EXPECT_EQ(std::wstring(open->signature), L"C[]C[]");
    EXPECT_EQ(std::wstring(open->paramNames), L"Dateiname,ModusText");
}

// The box is a real message box owned by the top-level ancestor of the
// window the host passed.
TEST(WinHost, TheErrorBoxIsRealAndOwnedByTheTopLevelAncestor) {
    HWND top = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr, nullptr,
                               GetModuleHandleW(nullptr), nullptr);
    HWND middle = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 100, 50, top, nullptr, nullptr, nullptr);
    HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 50, 20, middle, nullptr, nullptr, nullptr);
    WinRun r = winRunMemory(u"int x;\nx = 1 / 0;", L"Startup", -1, child);
    EXPECT_EQ(r.result, -1);
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 2 des Makros Startup\n\nDivision durch Null\n\n");
    EXPECT_EQ(unattendedLastOwner(), top);
    DestroyWindow(top);
}

// Runs f on a thread whose stack reserve is 1 MB, the default of a host's thread.
template <class F>
void onOneMegabyteStack(F f) {
    struct Job {
        F *f;
        static DWORD WINAPI run(void *p) {
            (*static_cast<Job *>(p)->f)();
            return 0;
        }
    } job{&f};
    HANDLE t = CreateThread(nullptr, 1 << 20, Job::run, &job, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    ASSERT_NE(t, nullptr);
    WaitForSingleObject(t, INFINITE);
    DWORD code = 1;
    GetExitCodeThread(t, &code);
    CloseHandle(t);
    EXPECT_EQ(code, 0u);
}

// Nesting is bounded before a host thread's 1 MB stack runs out (recursion
// through nested runs is the hardening tests' business).
TEST(WinHost, DeepNestingFailsCleanlyOnAOneMegabyteStack) {
    std::u16string blocks;
    for (int i = 0; i < 5000; ++i) blocks += u"begin ";
    for (int i = 0; i < 5000; ++i) blocks += u"end ";
    WinRun nested;
    onOneMegabyteStack([&] { nested = winRunMemory(blocks); });
    EXPECT_EQ(nested.result, -1);
    EXPECT_NE(nested.output.find("Formelstack ist \xC3\xBC" "bergelaufen"), std::string::npos);
}

}  // namespace
