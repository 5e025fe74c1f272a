// The TextMate grammar of the macro language (editors/morvix.tmLanguage.json)
// as text, produced from the built-in function table and the keyword list,
// so that every built-in name and keyword highlights.
#pragma once
#include <string>
#include <vector>

namespace mxdoc {

// The keywords by grammar scope, each list English spellings then German.
struct GrammarWords {
    const char *scope;
    std::vector<std::string> words;
};
const std::vector<GrammarWords> &grammarKeywords();

// The whole grammar as JSON (UTF-8, "\n" line ends). No side effects.
std::string grammarRender();

}  // namespace mxdoc
