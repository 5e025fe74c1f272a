// mxdoc: writes the function reference to standard output.
// Usage: ./build/native/tools/mxdoc > docs/functions.md
#include <cstdio>
#include <string>

#include "tools/mxdoc_render.h"

int main() {
    std::string text = mxdoc::docRender();
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
