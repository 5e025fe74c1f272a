// mxgrammar: writes the editors' grammar to standard output.
// Usage: ./build/native/tools/mxgrammar > editors/morvix.tmLanguage.json
#include <cstdio>
#include <string>

#include "tools/mxgrammar_render.h"

int main() {
    std::string text = mxdoc::grammarRender();
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
