// Every macro under tests/macros/ runs as a file macro from a scratch
// directory and must print exactly its .out file: the Print lines and boxes
// in order, then "result: N". The Windows tests run the same files through
// morvix32w.dll, so both builds must agree.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "answers.h"
#include "dialogs/dialog_answers.h"
#include "macro_harness.h"

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> goldenMacros() {
    std::vector<fs::path> out;
    for (auto &e : fs::recursive_directory_iterator(fs::path(MX_SOURCE_DIR) / "tests" / "macros"))
        if (e.path().extension() == ".mac") out.push_back(e.path());
    std::sort(out.begin(), out.end());
    return out;
}

// "// mx: country=49" on the first line selects the country code.
int32_t countryOf(const std::string &text) {
    auto at = text.find("country=");
    if (text.rfind("// mx:", 0) != 0 || at == std::string::npos || at > text.find('\n')) return 1;
    return std::atoi(text.c_str() + at + 8);
}

}  // namespace

TEST(Golden, EveryMacroPrintsItsExpectedOutput) {
    auto macros = goldenMacros();
    ASSERT_FALSE(macros.empty());
    char cwd[4096];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    for (const fs::path &mac : macros) {
        SCOPED_TRACE(mac.string());
        fs::path expected = fs::path(mac).replace_extension(".out");
        ASSERT_TRUE(fs::exists(expected)) << "missing " << expected;
        std::string text = readFile(mac.string());
        std::string dir = scratchDir();
        fs::copy_file(mac, fs::path(dir) / mac.filename());
        ASSERT_EQ(chdir(dir.c_str()), 0);
        // A macro with dialogs brings the answers its .out expects.
        fs::path answers = fs::path(mac).replace_extension(".answers");
        if (fs::exists(answers)) {
            std::string error;
            ASSERT_TRUE(answersLoad(u16(answers.string()), error)) << error;
            answersSetReport([](const std::string &line) { harnessPrint(line.substr(0, line.size() - 1)); });
            mx::dialogsSetAnswerSource(answersNext);
        }
        MacroRun r = runFile(u16(mac.filename().string()), countryOf(text));
        mx::dialogsSetAnswerSource(nullptr);
        answersSetReport(nullptr);
        ASSERT_EQ(chdir(cwd), 0);
        fs::remove_all(dir);
        EXPECT_EQ(r.output + "result: " + std::to_string(r.result) + "\n", readFile(expected.string()));
    }
}
