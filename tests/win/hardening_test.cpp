// Hardening through the DLL as a host uses it: macros that recurse through
// CallWithParams end with the nesting error before a 1 MB host stack runs
// out, and the stack one level of such recursion costs is measured; device
// names are refused wherever a file is expected.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "win_harness.h"

namespace {

std::u16string u(const std::wstring &s) { return std::u16string(s.begin(), s.end()); }
std::u16string u16(const std::string &s) { return std::u16string(s.begin(), s.end()); }
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

// Device names where a file is expected: every function refuses them at once
// with its answer for a file it may not use (a console, a port or a printer
// never ends or answers like a file), and nothing is created beside them.
// Names that only resemble a device are files.
TEST(WinHardening, DeviceNamesAreRefusedWhereAFileIsExpected) {
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\src.txt", "data");
    std::string d = inMacro(dir), shown(dir.begin(), dir.end());
    auto run = [&](const std::string &name) {
        std::string at = d + "\\\\" + name;
        return winRunMemory(std::u16string(
            u"char b[20]; int x;") + u16(" Print(OpenFile(\"" + at + "\", \"r\")); Print(OpenFile(\"" + at +
            "\", \"w\")); Print(CopyFile(\"" + d + "\\\\src.txt\", \"" + at + "\")); Print(CopyFile(\"" + at +
            "\", \"" + d + "\\\\dst.txt\")); WriteProfile(\"" + at + "\", \"s\", \"k\", \"v\"); ReadProfile(\"" + at +
            "\", \"s\", \"k\", b); Print(b); x = XMLCreate(\"r\", \"UTF-8\"); Print(XMLWriteFile(x, \"" + at +
            "\", 0));"));
    };
    for (const char *device : {"CON", "NUL", "aux", "COM1", "LPT1", "con.txt", "NUL.", "nul ", "Com1 .log"}) {
        std::string f = shown + "\\" + device;
        std::string denied = "Makrofehler: Fehler in Zeile 1 des Makros \n\nDie Datei '" + f + "' ist bereits im Zugriff\n\n";
        WinRun r = run(device);
        EXPECT_EQ(r.result, 0) << device;
        EXPECT_EQ(r.output, denied + "0\n" + denied + "0\n1\n1\n\nXML-Fehler: XML-Fehler -13: Kein Zugriff auf die Datei."
                                                       "\n\n" + f + "\n2\n") << device;
        EXPECT_EQ(GetFileAttributesW((dir + L"\\dst.txt").c_str()), INVALID_FILE_ATTRIBUTES) << device;
    }
    for (std::string file : {"CON1.txt", "com10", "nul_"}) {
        WinRun r = winRunMemory(u16("Print(CopyFile(\"" + d + "\\\\src.txt\", \"" + d + "\\\\" + file + "\"));"));
        EXPECT_EQ(r.output, "0\n") << file;
        EXPECT_EQ(winReadFile(dir + L"\\" + std::wstring(file.begin(), file.end())), "data") << file;
    }
}
