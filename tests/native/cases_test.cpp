// Every case of tests/cases/ through the native host library, in this one
// process (the Windows runner in tests/win/cases/ runs the same files), and
// every implemented built-in called by some case.
#include <gtest/gtest.h>

#include <cctype>
#include <map>

#include "answers.h"
#include "base/utf8.h"
#include "builtins/table.h"
#include "cases/case_runner.h"
#include "dialogs/dialog_answers.h"
#include "engine/dispatcher.h"
#include "macro_harness.h"

namespace {

CaseRun runNative(const Case &c) {
    std::string error;
    EXPECT_TRUE(answersParse(c.answers, error)) << c.where << ": " << error;
    answersSetReport([](const std::string &line) { harnessPrint(line.substr(0, line.size() - 1)); });
    mx::dialogsSetAnswerSource(answersNext);
    MacroRun r = c.macroFile.empty() ? runMemory(u16(c.macro), c.country) : runFile(u16(c.macroFile), c.country);
    mx::dialogsSetAnswerSource(nullptr);
    answersSetReport(nullptr);
    return {r.result, r.output};
}

bool isNameChar(char c) {
    unsigned char u = static_cast<unsigned char>(c);
    return std::isalnum(u) || c == '_' || c == '.' || u >= 0x80;
}

// True when text calls name: the name, not preceded by a name character,
// followed by optional blanks and "(".
bool callsName(const std::string &text, const std::string &name) {
    for (size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
        if (at > 0 && isNameChar(text[at - 1])) continue;
        size_t after = at + name.size();
        while (after < text.size() && (text[after] == ' ' || text[after] == '\t')) ++after;
        if (after < text.size() && text[after] == '(') return true;
    }
    return false;
}

}  // namespace

TEST(Cases, EveryCaseRunsAsWritten) {
    size_t count = 0;
    for (const std::string &failure : caseCheckAll(MX_SOURCE_DIR "/tests/cases", runNative, count))
        ADD_FAILURE() << failure;
    EXPECT_GT(count, 0u);
    std::printf("%zu cases run\n", count);
}

TEST(Cases, EveryImplementedFunctionIsCalledByACase) {
    std::vector<Case> cases;
    std::string error;
    ASSERT_TRUE(caseLoadAll(MX_SOURCE_DIR "/tests/cases", cases, error)) << error;
    std::map<uint32_t, std::vector<std::string>> names;  // function number -> its row names
    const mx::FunctionRow *rows = mx::biTable();
    for (int32_t i = 0; i < mx::kBuiltinRows; ++i)
        if (rows[i].signature) names[rows[i].identifier & mx::kFunctionNumberMask].push_back(mx::toUtf8(rows[i].name));
    std::string missing;
    size_t implemented = 0;
    for (const auto &[number, spellings] : names) {
        if (!mx::dispatchImplemented(int32_t(number))) continue;
        ++implemented;
        bool found = false;
        for (const Case &c : cases)
            for (const std::string &name : spellings) found = found || callsName(c.macro, name);
        if (!found) missing += " " + std::to_string(number) + " (" + spellings.front() + ")";
    }
    EXPECT_GT(implemented, 100u);
    EXPECT_EQ(missing, "") << "implemented functions that no case calls; add a case that calls one of their names";
}
