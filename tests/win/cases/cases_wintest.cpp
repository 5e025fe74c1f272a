// Every case of tests/cases/ through morvix32w.dll, loaded as a host loads
// it, in this one process: the same files and expected text as the native
// runner. Dialogs are answered in the real windows by the answer hook.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>

#include "answer_hook.h"
#include "answers.h"
#include "base/utf8.h"
#include "cases/case_runner.h"
#include "host_common.h"

namespace {

std::string captured;

LONG CALLBACK capturePrint(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    if (number == 1 && count == 1) captured += hostFormatValue(args[0]) + "\n";
    return 0;
}

void captureLine(const std::string &line) { captured += line; }

HMODULE library() {
    static HMODULE dll = LoadLibraryW(L"morvix32w.dll");
    return dll;
}

template <class T>
T entry(const char *name) {
    return reinterpret_cast<T>(GetProcAddress(library(), name));
}

const WCHAR *wide(const std::u16string &s) { return reinterpret_cast<const WCHAR *>(s.c_str()); }

CaseRun runWindows(const Case &c) {
    static auto runMacro = entry<decltype(&Run_Macro)>("Run_Macro");
    static auto runMem = entry<decltype(&Run_MemMacroExt)>("Run_MemMacroExt");
    std::string error;
    EXPECT_TRUE(answersParse(c.answers, error)) << c.where << ": " << error;
    answersSetReport(captureLine);
    captured.clear();
    HINSTANCE self = GetModuleHandleW(nullptr);
    std::u16string text = mx::fromUtf8(c.macroFile.empty() ? c.macro : c.macroFile);
    LONG result = c.macroFile.empty()
                      ? runMem(self, nullptr, wide(text), nullptr, kHostTable, capturePrint, nullptr, 0, c.country, 0)
                      : runMacro(self, nullptr, wide(text), kHostTable, capturePrint, nullptr, 0, c.country);
    answersSetReport(nullptr);
    return {int(result), captured};
}

}  // namespace

TEST(WinCases, EveryCaseRunsAsWritten) {
    ASSERT_NE(library(), nullptr);
    ASSERT_TRUE(answerHookStart(captureLine));
    size_t count = 0;
    for (const std::string &failure : caseCheckAll(MX_SOURCE_DIR "/tests/cases", runWindows, count))
        ADD_FAILURE() << failure;
    answerHookStop();
    EXPECT_GT(count, 0u);
    std::printf("%zu cases run\n", count);
}

// The case "case mapping checksum" folds the library's case mapping of every
// UTF-16 unit into two numbers; the platform's own table must give the same.
TEST(WinCases, CaseMappingChecksumIsThePlatformsOwn) {
    std::vector<Case> cases;
    std::string error;
    ASSERT_TRUE(caseLoadAll(MX_SOURCE_DIR "/tests/cases", cases, error)) << error;
    auto c = std::find_if(cases.begin(), cases.end(), [](const Case &x) { return x.name == "case mapping checksum"; });
    ASSERT_NE(c, cases.end());
    long upper = 0, lower = 0;
    for (long unit = 0; unit < 65536; ++unit) {
        WCHAR u = WCHAR(unit), l = WCHAR(unit);
        CharUpperBuffW(&u, 1);
        CharLowerBuffW(&l, 1);
        upper = (upper * 31 + u) % 1000003;
        lower = (lower * 31 + l) % 1000003;
    }
    EXPECT_EQ(std::to_string(upper) + "\n" + std::to_string(lower) + "\n", c->output);
}
