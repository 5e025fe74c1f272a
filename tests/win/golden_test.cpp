// The golden macros of tests/macros/ through morvix32w.dll: the same output
// as the native build, byte for byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "win_harness.h"

namespace fs = std::filesystem;

namespace {
int countryOf(const std::string &text) {
    auto at = text.find("country=");
    if (text.rfind("// mx:", 0) != 0 || at == std::string::npos || at > text.find('\n')) return 1;
    return std::atoi(text.c_str() + at + 8);
}
}  // namespace

TEST(WinGolden, EveryMacroPrintsItsExpectedOutput) {
    std::vector<fs::path> macros;
    for (auto &e : fs::recursive_directory_iterator(fs::path(MX_SOURCE_DIR) / "tests" / "macros"))
        if (e.path().extension() == ".mac") macros.push_back(e.path());
    std::sort(macros.begin(), macros.end());
    ASSERT_FALSE(macros.empty());
    wchar_t cwd[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, cwd);
    for (const fs::path &mac : macros) {
        SCOPED_TRACE(mac.string());
        // Macros with dialogs need their answer script: the host test runs
        // them through mxrun.exe --answers.
        if (fs::exists(fs::path(mac).replace_extension(".answers"))) continue;
        std::string text = winReadFile(mac.wstring());
        std::wstring dir = winScratchDir();
        fs::copy_file(mac, fs::path(dir) / mac.filename());
        SetCurrentDirectoryW(dir.c_str());
        std::wstring name = mac.filename().wstring();
        WinRun r = winRunFile(std::u16string(name.begin(), name.end()), countryOf(text));
        SetCurrentDirectoryW(cwd);
        fs::remove_all(dir);
        std::string expected = winReadFile(fs::path(mac).replace_extension(".out").wstring());
        EXPECT_EQ(r.output + "result: " + std::to_string(r.result) + "\n", expected);
    }
}
