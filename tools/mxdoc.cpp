// mxdoc: writes the function reference to standard output.
// Usage: ./build/native/tools/mxdoc > docs/functions.md
#include <cstdio>
#include <string>

#include "morvix.h"
#include "tools/mxdoc_render.h"

int main() {
    // Referencing an export links the library's entry points, whose native
    // attach installs the families: only then does the reference know which
    // functions are implemented.
    (void)Morvix_GetInstance();
    std::string text = mxdoc::docRender();
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
