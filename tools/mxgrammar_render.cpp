#include "tools/mxgrammar_render.h"

#include <algorithm>

#include "base/utf8.h"
#include "builtins/table.h"

namespace mxdoc {

namespace {

// A JSON string holding a regular expression: backslashes and quotes escaped.
std::string jsonText(const std::string &s) {
    std::string out = "\"";
    for (char c : s) {
        if (c == '\\' || c == '"') out += '\\';
        out += c;
    }
    return out + "\"";
}

// \b(a|b|c)\b, the longer of two names sharing a start first.
std::string wordPattern(std::vector<std::string> words) {
    std::sort(words.begin(), words.end(), [](const std::string &a, const std::string &b) {
        return a.size() != b.size() ? a.size() > b.size() : a < b;
    });
    std::string alternatives;
    for (const std::string &w : words) alternatives += (alternatives.empty() ? "" : "|") + w;
    return "\\b(" + alternatives + ")\\b";
}

std::string rule(const std::string &key, const std::string &scope, const std::string &match) {
    return "    " + jsonText(key) + ": {\n      \"name\": " + jsonText(scope) +
           ",\n      \"match\": " + jsonText(match) + "\n    }";
}

// The built-in names: functions (rows with a signature) or named constants.
std::vector<std::string> tableNames(bool functions) {
    std::vector<std::string> names;
    const mx::FunctionRow *rows = mx::biTable();
    for (int32_t i = 0; i < mx::kBuiltinRows; ++i)
        if ((rows[i].signature != nullptr) == functions) names.push_back(mx::toUtf8(rows[i].name));
    return names;
}

}  // namespace

const std::vector<GrammarWords> &grammarKeywords() {
    static const std::vector<GrammarWords> words = {
        {"keyword.control.morvix",
         {"begin", "end", "if", "while", "break", "exit", "anfang", "ende", "wenn", "solange",
          "abbruch", "stop"}},
        {"storage.type.morvix", {"char", "int", "float", "text", "zahl", "gleitkomma"}},
        {"storage.modifier.morvix", {"static", "statisch"}},
    };
    return words;
}

std::string grammarRender() {
    std::string repository;
    std::string includes;
    auto add = [&](const std::string &key, const std::string &body) {
        repository += (repository.empty() ? "" : ",\n") + body;
        includes += std::string(includes.empty() ? "" : ",\n") + "    { \"include\": \"#" + key + "\" }";
    };
    add("comment", rule("comment", "comment.line.double-slash.morvix", "//.*$"));
    add("header", rule("header", "keyword.other.header.morvix", "^\\s*(Macro|Makro)\\b"));
    // A text ends at its quote or, as the loader closes it, at the line's end;
    // an escaped quote stays inside.
    add("text",
        "    \"text\": {\n      \"name\": \"string.quoted.double.morvix\",\n"
        "      \"begin\": \"\\\"\",\n      \"end\": \"\\\"|$\",\n      \"patterns\": [\n"
        "        { \"name\": \"constant.character.escape.morvix\", \"match\": " +
            jsonText("\\\\.") + " }\n      ]\n    }");
    add("character", rule("character", "string.quoted.single.morvix", "'[^']'"));
    const char *keys[] = {"keyword", "type", "modifier"};
    for (size_t i = 0; i < grammarKeywords().size(); ++i)
        add(keys[i], rule(keys[i], grammarKeywords()[i].scope, wordPattern(grammarKeywords()[i].words)));
    add("constant", rule("constant", "support.constant.morvix", wordPattern(tableNames(false))));
    add("function", rule("function", "support.function.morvix", wordPattern(tableNames(true))));
    add("number", rule("number", "constant.numeric.morvix", "\\b[0-9]+(\\.[0-9]*)?\\b|\\.[0-9]+\\b"));
    add("operator", rule("operator", "keyword.operator.morvix", "<=|>=|!=|==|&&|\\|\\||[-+*/<>=!]"));
    return "{\n  \"name\": \"Morvix macro\",\n  \"scopeName\": \"source.morvix\",\n"
           "  \"fileTypes\": [\"mac\"],\n  \"patterns\": [\n" +
           includes + "\n  ],\n  \"repository\": {\n" + repository + "\n  }\n}\n";
}

}  // namespace mxdoc
