// Every implemented built-in must be exercised by a golden macro: some file
// under tests/macros/ calls one of its names (the name followed by "(").
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "engine/dispatcher.h"
#include "builtins/table.h"
#include "base/utf8.h"
#include "macro_harness.h"

namespace fs = std::filesystem;

namespace {

// Macro files are 8-bit text: a name is searched as its Latin-1 bytes.
std::string latin1(const char16_t *name) {
    std::string out;
    for (; *name; ++name) out += char(*name <= 0xFF ? *name : '?');
    return out;
}

bool isNameChar(char c) {
    unsigned char u = static_cast<unsigned char>(c);
    return std::isalnum(u) || c == '_' || c == '.' || u >= 0xC0;
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

std::vector<std::string> goldenTexts() {
    std::vector<std::string> texts;
    for (auto &e : fs::recursive_directory_iterator(fs::path(MX_SOURCE_DIR) / "tests" / "macros"))
        if (e.path().extension() == ".mac") texts.push_back(readFile(e.path().string()));
    return texts;
}

// Function number -> the names of its rows.
std::map<uint32_t, std::vector<const char16_t *>> namesByNumber() {
    std::map<uint32_t, std::vector<const char16_t *>> out;
    const mx::FunctionRow *rows = mx::biTable();
    for (int32_t i = 0; i < mx::kBuiltinRows; ++i)
        if (rows[i].signature) out[rows[i].identifier & mx::kFunctionNumberMask].push_back(rows[i].name);
    return out;
}

}  // namespace

TEST(Coverage, CallsAreFoundOnlyAsWholeNamesBeforeABracket) {
    EXPECT_TRUE(callsName("x = StrLen(s);", "StrLen"));
    EXPECT_TRUE(callsName("StrLen (s);", "StrLen"));
    EXPECT_FALSE(callsName("x = StrLen;", "StrLen"));
    EXPECT_FALSE(callsName("MyStrLen(s);", "StrLen"));
    EXPECT_FALSE(callsName("StrLenX(s);", "StrLen"));
    EXPECT_TRUE(callsName("MyStrLen(s); StrLen(t);", "StrLen"));
    EXPECT_TRUE(callsName("x = Text\xC4nderung(1);", "Text\xC4nderung"));
}

TEST(Coverage, EveryImplementedFunctionHasAGoldenMacro) {
    std::vector<std::string> texts = goldenTexts();
    std::string missing;
    for (const auto &[number, names] : namesByNumber()) {
        if (!mx::dispatchImplemented(int32_t(number))) continue;
        bool found = false;
        for (const std::string &text : texts)
            for (const char16_t *name : names) found = found || callsName(text, latin1(name));
        if (!found) missing += " " + std::to_string(number) + " (" + mx::toUtf8(names.front()) + ")";
    }
    EXPECT_EQ(missing, "") << "implemented functions that no macro under tests/macros/ calls;"
                              " add a golden macro that calls one of their names";
}
