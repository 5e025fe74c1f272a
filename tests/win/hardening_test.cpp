// Hardening through the DLL as a host uses it: macros that recurse through
// CallWithParams end with the nesting error before a 1 MB host stack runs
// out, and the stack one level of such recursion costs is measured.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "win_harness.h"

namespace {

std::u16string u(const std::wstring &s) { return std::u16string(s.begin(), s.end()); }
std::string inMacro(const std::wstring &s) {
    std::string out;
    for (wchar_t c : s) out += c == L'\\' ? std::string("\\\\") : std::string(1, char(c));
    return out;
}

// Runs f on a thread whose stack reserve is 1 MB, the default of a host's thread.
template <class F>
bool onOneMegabyteStack(F f) {
    struct Job {
        F *f;
        static DWORD WINAPI run(void *p) {
            (*static_cast<Job *>(p)->f)();
            return 0;
        }
    } job{&f};
    HANDLE t = CreateThread(nullptr, 1 << 20, Job::run, &job, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    if (!t) return false;
    WaitForSingleObject(t, INFINITE);
    DWORD code = 1;
    GetExitCodeThread(t, &code);
    CloseHandle(t);
    return code == 0;
}

// The host function StackMark() records where the host's stack stands.
std::vector<uintptr_t> gMarks;
const MX_FUNCTION_ROW kMarkTable[] = {{L"StackMark", 1, L"", L""}, {nullptr, 0, nullptr, nullptr}};
LONG CALLBACK markCallback(LONG, MX_VALUE **, LONG, LONG_PTR) {
    volatile char here = 0;
    gMarks.push_back(reinterpret_cast<uintptr_t>(&here));
    return 0;
}

}  // namespace

TEST(WinHardening, CallWithParamsRecursionEndsWithTheNestingErrorOnAOneMegabyteStack) {
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\self.mac", "Macro \"Self\" begin StackMark(); CallWithParams(\"" + inMacro(dir) +
                                          "\\\\self.mac\", \"a\", \"b\", \"c\", \"d\", \"e\"); end");
    gMarks.clear();
    WinRun r;
    ASSERT_TRUE(onOneMegabyteStack([&] { r = winRunFile(u(dir + L"\\self.mac"), 1, -1, nullptr, kMarkTable,
                                                        markCallback); }));
    EXPECT_EQ(r.result, 0);
    EXPECT_NE(r.output.find("Formelstack ist \xC3\xBC" "bergelaufen"), std::string::npos);
    ASSERT_GT(gMarks.size(), 10u);
    uintptr_t perLevel = (gMarks[1] - gMarks[gMarks.size() - 1]) / (gMarks.size() - 2);
    std::printf("CallWithParams recursion: %zu levels, %zu bytes of stack per level\n", gMarks.size(),
                size_t(perLevel));
    // The deepest legal recursion leaves the host at least 400 KB of its stack.
    EXPECT_LT(perLevel * gMarks.size(), uintptr_t(600) << 10);
}
