// mxrun.exe --unattended prints what the library printed: the cases with
// dialogs and those whose run fails, each run through the real host program
// with its answers, giving the case's output, with the exit status standing
// for the run's result.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>

#include "cases/case_runner.h"

namespace fs = std::filesystem;

namespace {

// Runs a command line in the current directory with standard output and
// error both going to one pipe, so that printed lines and boxes keep their order.
std::string runCaptured(std::wstring command, DWORD *exitCode) {
    SECURITY_ATTRIBUTES sa{sizeof sa, nullptr, TRUE};
    HANDLE readEnd, writeEnd;
    if (!CreatePipe(&readEnd, &writeEnd, &sa, 0)) return "no pipe";
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW si{};
    si.cb = sizeof si;
    si.dwFlags = STARTF_USESTDHANDLES;
    si.hStdOutput = si.hStdError = writeEnd;
    si.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    PROCESS_INFORMATION pi{};
    // Wine now and then fails a process start while it is busy; try again.
    BOOL started = FALSE;
    for (int attempt = 0; attempt < 5 && !started; ++attempt) {
        if (attempt) Sleep(200);
        started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &si, &pi);
    }
    CloseHandle(writeEnd);
    std::string out;
    if (started) {
        char buf[4096];
        DWORD n;
        while (ReadFile(readEnd, buf, sizeof buf, &n, nullptr) && n) out.append(buf, n);
        WaitForSingleObject(pi.hProcess, INFINITE);
        GetExitCodeProcess(pi.hProcess, exitCode);
        CloseHandle(pi.hProcess);
        CloseHandle(pi.hThread);
    }
    CloseHandle(readEnd);
    return started ? out : "mxrun.exe did not start";
}

std::wstring besideThisProgram(const wchar_t *name) {
    wchar_t self[MAX_PATH];
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    return (fs::path(self).parent_path() / name).wstring();
}

CaseRun runMxrun(const Case &c) {
    static const std::wstring mxrun = besideThisProgram(L"mxrun.exe");
    // The answer script lives outside the case's directory.
    fs::path script = fs::temp_directory_path() / "mxrun-case.answers";
    std::ofstream(script, std::ios::binary) << c.answers;
    DWORD code = 99;
    std::string out = runCaptured(L"\"" + mxrun + L"\" --unattended --answers \"" + script.wstring() +
                                      L"\" --country " + std::to_wstring(c.country) + L" " + fs::path(c.macroFile).wstring(),
                                  &code);
    fs::remove(script);
    return {code == 0 ? 0 : code == 1 ? -1 : code == 2 ? -2 : 99, out};
}

}  // namespace

TEST(MxrunHost, PrintsWhatTheLibraryPrints) {
    std::vector<Case> cases;
    std::string error;
    ASSERT_TRUE(caseLoadAll(MX_SOURCE_DIR "/tests/cases", cases, error)) << error;
    size_t run = 0;
    for (const Case &c : cases) {
        if (c.macroFile.empty() || (c.answers.empty() && c.result == 0)) continue;
        EXPECT_EQ(caseCheck(c, runMxrun), "");
        ++run;
    }
    EXPECT_GT(run, 0u);
}
