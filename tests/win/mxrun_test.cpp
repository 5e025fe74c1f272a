// mxrun.exe --unattended prints what the native host prints: every golden
// macro run through the real host program gives its .out file, with the exit
// status standing for the run's result.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "win_harness.h"

namespace fs = std::filesystem;

namespace {

// Runs a command line in dir with standard output and error both going to one
// pipe, so that printed lines and reported boxes keep their order.
std::string runCaptured(std::wstring command, const std::wstring &dir, DWORD *exitCode) {
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
        started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                 dir.c_str(), &si, &pi);
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

}  // namespace

TEST(MxrunHost, PrintsWhatTheNativeHostPrints) {
    std::vector<fs::path> macros;
    for (auto &e : fs::recursive_directory_iterator(fs::path(MX_SOURCE_DIR) / "tests" / "macros"))
        if (e.path().extension() == ".mac") macros.push_back(e.path());
    std::sort(macros.begin(), macros.end());
    ASSERT_FALSE(macros.empty());
    std::wstring mxrun = besideThisProgram(L"mxrun.exe");
    for (const fs::path &mac : macros) {
        SCOPED_TRACE(mac.string());
        std::string text = winReadFile(mac.wstring());
        std::wstring country = L"1";
        if (text.rfind("// mx: country=", 0) == 0) country = std::wstring(1, wchar_t(text[15])) + wchar_t(text[16]);
        std::wstring dir = winScratchDir();
        fs::copy_file(mac, fs::path(dir) / mac.filename());
        // A macro with dialogs brings the answers its .out expects.
        fs::path answers = fs::path(mac).replace_extension(".answers");
        std::wstring answering = fs::exists(answers) ? L" --answers \"" + answers.wstring() + L"\"" : L"";
        DWORD code = 99;
        std::string out = runCaptured(L"\"" + mxrun + L"\" --unattended" + answering + L" --country " + country + L" " +
                                          mac.filename().wstring(),
                                      dir, &code);
        fs::remove_all(dir);
        int result = code == 0 ? 0 : code == 1 ? -1 : code == 2 ? -2 : 99;
        std::string expected = winReadFile(fs::path(mac).replace_extension(".out").wstring());
        EXPECT_EQ(out + "result: " + std::to_string(result) + "\n", expected);
    }
}
