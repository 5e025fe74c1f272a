// Feeds arbitrary bytes to the interpreter as a memory macro (each byte one
// character) with a host function table; boxes are swallowed. Any crash,
// leak, hang or sanitizer report is a fault.
#include <cstddef>
#include <cstdint>
#include <string>

#include "morvix.h"
#include "engine/statements.h"
#include "platform/platform.h"

namespace {
LONG CALLBACK host(LONG, MX_VALUE **, LONG, LONG_PTR) { return 1; }
LONG CALLBACK noAbort(void) { return 0; }
const MX_FUNCTION_ROW kHost[] = {
    {u"Host", 1, u"X", u"Value"}, {u"HostL", 2, u"L*C[]", u"N, Text"}, {nullptr, 0, nullptr, nullptr}};
void silent(const char16_t *, const char16_t *) {}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size > 4096) return 0;  // long inputs only slow the search down
    mx::mxp_SetBoxSink(silent);
    std::u16string text(data, data + size);
    mx::stFuzzTurnsLeft = 20000;
    Run_MemMacro(nullptr, nullptr, text.c_str(), kHost, host, noAbort, 0, 49, 0);
    return 0;
}
