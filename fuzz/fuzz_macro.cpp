// Feeds arbitrary bytes to the interpreter as a memory macro (each byte one
// character) with a host function table; boxes are swallowed. Any crash,
// leak, hang or sanitizer report is a fault.
//
// The built-ins that change files, profiles, the registry or start nested
// runs are hidden behind host rows of the same names (host rows are searched
// first), so that fuzzing never touches the machine; profiles and the
// registry are read from a scratch directory of their own.
#include <cstddef>
#include <cstdint>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "engine/statements.h"
#include "base/u16.h"
#include "morvix.h"
#include "platform/platform.h"

namespace {

const char16_t *const kHidden[] = {
    u"Call", u"CallWithParams", u"CopyFile", u"CreateDirectory", u"DateiKopieren", u"DateiLöschen",
    u"DateiSchreiben", u"DateiUmbenennen", u"DateiÖffnen", u"DeleteFile", u"DeleteProfileItem",
    u"DeleteProfileSection", u"DeleteRegistryItem", u"DeleteRegistryKey", u"ErzeugeDateinamenListe",
    u"GetTempFileName", u"Host", u"IniDateiSchreiben", u"MakeFilelist", u"OpenFile", u"RenameFile",
    u"ScanDirectory", u"StarteMakro", u"TraceDatei", u"TraceFile", u"TransformString",
    u"TransformiereText", u"WriteColorToRegistry", u"WriteFile", u"WriteIntToRegistry",
    u"WriteProfile", u"WriteStringToRegistry", u"XMLWriteFile",
};

std::vector<MX_FUNCTION_ROW> hostTable() {
    std::vector<const char16_t *> names(std::begin(kHidden), std::end(kHidden));
    std::sort(names.begin(), names.end(), [](auto a, auto b) { return mx::u16Cmp(a, b) < 0; });
    std::vector<MX_FUNCTION_ROW> rows;
    for (const char16_t *n : names) rows.push_back({n, 1, u"X", u""});
    rows.push_back({nullptr, 0, nullptr, nullptr});
    return rows;
}

LONG CALLBACK host(LONG, MX_VALUE **, LONG, LONG_PTR) { return 1; }
LONG CALLBACK noAbort(void) { return 0; }
void silent(const char16_t *, const char16_t *) {}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    char dir[] = "/tmp/mxfuzz.XXXXXX";
    if (mkdtemp(dir)) {
        setenv("MORVIX_WINDOWS_DIR", dir, 1);
        setenv("MORVIX_REGISTRY_DIR", dir, 1);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size > 4096) return 0;  // long inputs only slow the search down
    static const std::vector<MX_FUNCTION_ROW> table = hostTable();
    mx::mxp_SetBoxSink(silent);
    std::u16string text(data, data + size);
    mx::stFuzzTurnsLeft = 20000;
    Run_MemMacro(nullptr, nullptr, text.c_str(), table.data(), host, noAbort, 0, 49, 0);
    return 0;
}
