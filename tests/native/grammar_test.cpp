// The editors' grammar (editors/morvix.tmLanguage.json) is the generated one,
// and every built-in name and every keyword, in both spellings, stands as a
// whole alternative of the pattern of its scope.
#include <gtest/gtest.h>

#include <set>

#include "base/utf8.h"
#include "builtins/table.h"
#include "engine/reader.h"
#include "macro_harness.h"
#include "tools/mxgrammar_render.h"

namespace {

// The alternatives of the \b(a|b|c)\b pattern of the rule named key.
std::set<std::string> alternatives(const std::string &grammar, const std::string &key) {
    size_t rule = grammar.find("\"" + key + "\": {");
    size_t match = grammar.find("\"match\": \"\\\\b(", rule);
    if (rule == std::string::npos || match == std::string::npos) return {};
    size_t begin = match + 14, end = grammar.find(")\\\\b\"", begin);
    std::set<std::string> out;
    for (size_t p = begin; p < end;) {
        size_t bar = std::min(grammar.find('|', p), end);
        out.insert(grammar.substr(p, bar - p));
        p = bar + 1;
    }
    return out;
}

}  // namespace

TEST(Grammar, CheckedInFileIsTheGeneratedOne) {
    EXPECT_TRUE(readFile(std::string(MX_SOURCE_DIR) + "/editors/morvix.tmLanguage.json") ==
                mxdoc::grammarRender())
        << "editors/morvix.tmLanguage.json is out of date; regenerate it with "
           "./build/native/tools/mxgrammar > editors/morvix.tmLanguage.json";
}

TEST(Grammar, EveryBuiltinNameAndKeyword) {
    std::string grammar = readFile(std::string(MX_SOURCE_DIR) + "/editors/morvix.tmLanguage.json");
    std::set<std::string> functions = alternatives(grammar, "function");
    std::set<std::string> constants = alternatives(grammar, "constant");
    const mx::FunctionRow *rows = mx::biTable();
    for (int32_t i = 0; i < mx::kBuiltinRows; ++i) {
        std::string name = mx::toUtf8(rows[i].name);
        EXPECT_EQ((rows[i].signature ? functions : constants).count(name), 1u) << name;
    }
    EXPECT_EQ(functions.size() + constants.size(), size_t(mx::kBuiltinRows));
    // Every word of the keyword scopes is a keyword of the reader, and all
    // twenty spellings are there.
    std::set<std::string> keywords;
    for (const char *key : {"keyword", "type", "modifier"})
        for (const std::string &w : alternatives(grammar, key)) {
            EXPECT_NE(mx::rdKeyword(u16(w).c_str()), 0) << w;
            keywords.insert(w);
        }
    EXPECT_EQ(keywords.size(), 20u);
    EXPECT_NE(grammar.find("\"match\": \"^\\\\s*(Macro|Makro)\\\\b\""), std::string::npos);
}
