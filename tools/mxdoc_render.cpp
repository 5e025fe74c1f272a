#include "tools/mxdoc_render.h"

#include <map>
#include <set>
#include <vector>

#include "engine/dispatcher.h"
#include "builtins/table.h"
#include "base/utf8.h"
#include "tools/function_descriptions.h"

namespace mxdoc {

namespace {

using mx::FunctionRow;
using Group = std::vector<const FunctionRow *>;

// Table cells must not hold a bar.
std::string docCell(const std::string &text) {
    std::string out;
    for (char c : text) out += c == '|' ? std::string("\\|") : std::string(1, c);
    return out;
}

std::string docCode(const char16_t *text) { return "`" + mx::toUtf8(text) + "`"; }

uint32_t docNumber(const FunctionRow *r) { return r->identifier & mx::kFunctionNumberMask; }

// The function rows by number; in each group the English rows (without the
// spelling flag) first, each part in table order.
std::map<uint32_t, Group> docGroups() {
    std::map<uint32_t, Group> groups;
    const FunctionRow *rows = mx::biTable();
    for (int pass = 0; pass < 2; ++pass)
        for (int32_t i = 0; i < mx::kBuiltinRows; ++i) {
            const FunctionRow *r = &rows[i];
            bool german = (r->identifier & mx::kSpellingFlag) != 0;
            if (r->signature && german == (pass == 1)) groups[docNumber(r)].push_back(r);
        }
    return groups;
}

// "`Name` (identifier), ..." for the rows of one function.
std::string docNames(const Group &g) {
    std::string out;
    for (const FunctionRow *r : g)
        out += (out.empty() ? "" : ", ") + docCode(r->name) + " (" + std::to_string(r->identifier) + ")";
    return out;
}

// One field of the rows, shown once when all rows agree; otherwise each
// distinct value followed by the names of the rows that have it.
template <class Show>
std::string docField(const Group &g, const char16_t *FunctionRow::*field, Show show) {
    std::vector<std::u16string> values;
    std::map<std::u16string, std::string> names;
    for (const FunctionRow *r : g) {
        std::u16string v = r->*field;
        if (!names.count(v)) values.push_back(v);
        names[v] += (names[v].empty() ? "" : ", ") + docCode(r->name);
    }
    if (values.size() == 1) return show(values[0]);
    std::string out;
    for (const std::u16string &v : values)
        out += (out.empty() ? "" : "; ") + show(v) + " (" + names[v] + ")";
    return out;
}

std::string docSignature(const std::u16string &s) {
    return s.empty() ? "(none)" : "`" + mx::toUtf8(s.c_str()) + "`";
}

std::string docParams(const std::u16string &p) { return "\"" + mx::toUtf8(p.c_str()) + "\""; }

std::string docIntro(size_t functionRows, size_t numbers, size_t constants) {
    return "# Built-in functions and named constants\n\n"
           "<!-- Generated from the built-in function table by tools/mxdoc; do not edit.\n"
           "     Regenerate with: ./build/native/tools/mxdoc > docs/functions.md -->\n\n"
           "The built-in function table holds " +
           std::to_string(functionRows + constants) + " rows: " + std::to_string(functionRows) +
           " function rows under " + std::to_string(numbers) + " function numbers, and " +
           std::to_string(constants) +
           " named constants. Names are case-sensitive. Most functions have an English and a "
           "German name; the German row's identifier is the function number plus 65536 (the "
           "spelling flag), which the interpreter ignores. Host function tables use the same "
           "row format and hide built-ins of the same name.\n\n"
           "Every function yields one long. Signature descriptors, one per parameter:\n\n"
           "| Descriptor | Parameter |\n|---|---|\n"
           "| `L` | long, by value |\n"
           "| `D` | double, by value |\n"
           "| `C` | one character, by value (a long gives its low 16 bits) |\n"
           "| `C[]` | text; a variable is passed itself, so a function may write into it |\n"
           "| `*C[]` | text variable, by reference (written up to its capacity) |\n"
           "| `*L` | long variable, by reference |\n"
           "| `*D` | double variable, by reference |\n"
           "| `X` | anything, unchecked |\n\n";
}

std::string docFunctions(const std::map<uint32_t, Group> &groups) {
    std::string out =
        "## Functions\n\n"
        "| No. | Names (identifier) | Signature | Parameters | What it does | Implemented |\n"
        "|---|---|---|---|---|---|\n";
    for (const auto &[number, g] : groups) {
        const char *what = docFunctionDescription(number);
        out += "| " + std::to_string(number) + " | " + docNames(g) + " | " +
               docCell(docField(g, &FunctionRow::signature, docSignature)) + " | " +
               docCell(docField(g, &FunctionRow::paramNames, docParams)) + " | " +
               docCell(what ? what : "(no description)") + " | " +
               (mx::dispatchImplemented(int32_t(number)) ? "yes" : "no") + " |\n";
    }
    return out;
}

std::string docConstants() {
    std::string out = "\n## Named constants\n\n| Name | Value | Meaning |\n|---|---|---|\n";
    const FunctionRow *rows = mx::biTable();
    for (int32_t i = 0; i < mx::kBuiltinRows; ++i) {
        if (rows[i].signature) continue;
        const char *what = docConstantDescription(rows[i].name);
        out += "| " + docCode(rows[i].name) + " | " + std::to_string(rows[i].identifier) + " | " +
               docCell(what ? what : "(no description)") + " |\n";
    }
    return out;
}

}  // namespace

std::string docRender() {
    std::map<uint32_t, Group> groups = docGroups();
    size_t functionRows = 0;
    for (const auto &entry : groups) functionRows += entry.second.size();
    size_t constants = size_t(mx::kBuiltinRows) - functionRows;
    return docIntro(functionRows, groups.size(), constants) + docFunctions(groups) + docConstants();
}

}  // namespace mxdoc
