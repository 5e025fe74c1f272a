// Nested runs through the DLL: a failing nested macro shows its own real box
// and the caller goes on; deep nesting fails cleanly even on a host thread
// with the common 1 MB stack.
#include <gtest/gtest.h>

#include <string>

#include "win_harness.h"

namespace {
std::u16string u(const std::wstring &s) { return std::u16string(s.begin(), s.end()); }
std::string narrow(const std::wstring &s) { return std::string(s.begin(), s.end()); }
// A path inside a macro's text constant: the escape character doubled.
std::string inMacro(const std::wstring &s) {
    std::string out;
    for (wchar_t c : s) out += c == L'\\' ? std::string("\\\\") : std::string(1, char(c));
    return out;
}

// Runs f on a thread whose stack reserve is 1 MB.
template <class F>
void onSmallStack(F f) {
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
}  // namespace

TEST(WinNested, AFailedNestedMacroShowsItsOwnBox) {
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\sub.mac", "Macro \"Sub\" begin\n\nundeclared = 1;\nend");
    winWriteFile(dir + L"\\main.mac", "Macro \"Main\" begin Print(Call(\"" + inMacro(dir) +
                                          "\\\\sub.mac\")); Print(7); end");
    WinRun r = winRunFile(u(dir + L"\\main.mac"));
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 3 des Makros " + narrow(dir) +
                            "\\main.mac\n\nVariable 'undeclared' ist nicht deklariert\n\n-1\n7\n");
}

TEST(WinNested, DeepNestingFailsCleanlyOnAOneMegabyteStack) {
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\self.mac", "Macro \"Self\" begin Call(\"" + inMacro(dir) + "\\\\self.mac\"); end");
    std::u16string blocks;
    for (int i = 0; i < 5000; ++i) blocks += u"begin ";
    for (int i = 0; i < 5000; ++i) blocks += u"end ";
    WinRun recursion, nested;
    onSmallStack([&] { nested = winRunMemory(blocks); });
    EXPECT_EQ(nested.result, -1);
    EXPECT_NE(nested.output.find("Formelstack ist \xC3\xBC" "bergelaufen"), std::string::npos);
    onSmallStack([&] { recursion = winRunFile(u(dir + L"\\self.mac")); });
    EXPECT_EQ(recursion.result, 0);
    EXPECT_NE(recursion.output.find("Formelstack ist \xC3\xBC" "bergelaufen"), std::string::npos);
}
