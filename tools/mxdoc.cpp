// mxdoc: writes the function reference to standard output.
// Usage: ./build/native/tools/mxdoc > docs/functions.md
#include <cstdio>
#include <string>

#include "interface/families.h"
#include "tools/mxdoc_render.h"

int main() {
    // The library is not attached here: install the families so that the
    // reference can tell which numbers are implemented.
    mx::installBuiltinFamilies();
    std::string text = mxdoc::docRender();
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
