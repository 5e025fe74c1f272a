// The macro authors' guide (docs/guide.md) keeps its promise: every `mac`
// example prints exactly the `output` block after it, and reading it with
// the check finds nothing in the examples that run cleanly.
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "base/utf8.h"
#include "engine/check.h"
#include "tools/host_common.h"
#include "macro_harness.h"

namespace {

struct Example {
    std::string macro;
    std::string output;
};

// Pairs of ```mac and the ```output block that follows it.
std::vector<Example> guideExamples(const std::string &doc) {
    std::vector<Example> out;
    std::istringstream in(doc);
    std::string line, block, kind;
    bool inside = false;
    while (std::getline(in, line)) {
        if (!inside && line.rfind("```", 0) == 0) {
            inside = true, kind = line.substr(3), block.clear();
        } else if (inside && line == "```") {
            inside = false;
            if (kind == "mac") out.push_back({block, ""});
            else if (kind == "output" && !out.empty() && out.back().output.empty()) out.back().output = block;
        } else if (inside) {
            block += line + "\n";
        }
    }
    return out;
}

// Lines without trailing blanks, which editors of the guide may drop.
std::string trimLines(const std::string &text) {
    std::istringstream in(text);
    std::string line, out;
    while (std::getline(in, line)) {
        while (!line.empty() && line.back() == ' ') line.pop_back();
        out += line + "\n";
    }
    return out;
}

void countError(const mx::RunContext &, void *user) { ++*static_cast<int *>(user); }

int checkErrors(const std::u16string &text) {
    mx::RunContext ctx{};
    ctx.macroText = text.c_str();
    ctx.hostTable = reinterpret_cast<const mx::FunctionRow *>(kHostTable);
    ctx.builtinTable = reinterpret_cast<const mx::FunctionRow *>(Get_MacroLib_InternalFunctionList());
    ctx.builtinCount = mx::kBuiltinRowCount;
    int errors = 0;
    mx::ckCheckMacro(ctx, countError, &errors);
    return errors;
}

}  // namespace

TEST(Guide, EveryExamplePrintsItsOutput) {
    std::vector<Example> examples = guideExamples(readFile(std::string(MX_SOURCE_DIR) + "/docs/guide.md"));
    ASSERT_GE(examples.size(), 6u);
    for (const Example &e : examples) {
        SCOPED_TRACE(e.macro);
        ASSERT_FALSE(e.output.empty()) << "a mac block without its output block";
        MacroRun r = runMemory(u16(e.macro));
        EXPECT_EQ(trimLines(r.output), trimLines(e.output));
        bool failing = e.output.find("Makrofehler") != std::string::npos;
        EXPECT_EQ(r.result, failing ? -1 : 0);
        EXPECT_EQ(checkErrors(u16(e.macro)), failing ? 1 : 0);
    }
}
