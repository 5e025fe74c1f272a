// Feeds arbitrary bytes to the interpreter. Any crash, leak, hang or
// sanitizer report (undefined behaviour included) is a fault.
//
// An input that starts with a macro header ("Macro"/"Makro") is written to a
// scratch file and run through the file loader, as the seed macros are.
// Otherwise it is a memory macro; when its first byte is below 32 that byte
// chooses the options and the rest is the macro: bit 0 wide characters (byte pairs as UTF-16 units, so characters
// above 255 occur), bit 1 country 49 or 1, bits 2-4 an abort callback that
// stops the run at its 8k-th question (0: no abort callback).
//
// Host rows: Print (anything), HostText (*C[], written within its capacity),
// HOSTCONST (a named constant), and the built-ins that change files,
// profiles, the registry, start programs or nested runs, hidden behind host
// rows of the same names (host rows are searched first), so that fuzzing
// never touches the machine; profiles and the registry are read from a
// scratch directory of their own. Between inputs the process state is reset:
// static variables are released and XML documents deleted.
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/u16.h"
#include "engine/statements.h"
#include "fuzz_input.h"
#include "interface/attach.h"
#include "morvix.h"
#include "platform/platform.h"
#include "xml/xml_functions.h"
#include "xml/xml_handles.h"

namespace {

const char16_t *const kHidden[] = {
    u"Call", u"CallWithParams", u"CopyFile", u"CreateDirectory", u"CreateProcess", u"DateiKopieren",
    u"DateiLöschen", u"DateiSchreiben", u"DateiUmbenennen", u"DateiÖffnen", u"DeleteFile",
    u"DeleteProfileItem", u"DeleteProfileSection", u"DeleteRegistryItem", u"DeleteRegistryKey",
    u"ErzeugeDateinamenListe", u"ExecuteProgram", u"ExecuteProgramModal", u"GetTempFileName",
    u"IniDateiSchreiben", u"MakeFilelist", u"OpenBrowser", u"OpenFile", u"RenameFile", u"ScanDirectory",
    u"SendMail", u"ShellExecute", u"StarteMakro", u"TraceDatei", u"TraceFile", u"TransformString",
    u"TransformiereText", u"WriteColorToRegistry", u"WriteFile", u"WriteIntToRegistry", u"WriteProfile",
    u"WriteStringToRegistry", u"XMLWriteFile",
};

enum : LONG { kPrint = 1, kHostText = 2, kOther = 3 };

std::vector<MX_FUNCTION_ROW> hostTable() {
    std::vector<MX_FUNCTION_ROW> rows;
    for (const char16_t *n : kHidden) rows.push_back({n, kOther, u"X", u""});
    rows.push_back({u"HOSTCONST", 42, nullptr, nullptr});
    rows.push_back({u"HostText", kHostText, u"*C[]", u"Buffer"});
    rows.push_back({u"Print", kPrint, u"X", u"Value"});
    std::sort(rows.begin(), rows.end(), [](auto &a, auto &b) { return mx::u16Cmp(a.name, b.name) < 0; });
    rows.push_back({nullptr, 0, nullptr, nullptr});
    return rows;
}

// Reads the first and the last element of every argument, as a host may:
// an element count larger than the storage is a finding, and a vector of a
// million elements costs no more than a scalar.
LONG CALLBACK host(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    uint32_t sum = 0;
    for (LONG i = 0; i < count; ++i) {
        const MX_VALUE *v = args[i];
        LONG last = v->count ? v->count - 1 : 0;
        if (v->type == MX_TYPE_CHAR)
            sum += static_cast<const WCHAR *>(v->data)[0] + static_cast<const WCHAR *>(v->data)[last];
        else if (v->type == MX_TYPE_LONG)
            sum += uint32_t(static_cast<const LONG *>(v->data)[0]) + uint32_t(static_cast<const LONG *>(v->data)[last]);
        else
            sum += static_cast<const double *>(v->data)[0] < static_cast<const double *>(v->data)[last];
    }
    if (number == kHostText && count == 1 && args[0]->count > 0) {
        WCHAR *buf = static_cast<WCHAR *>(args[0]->data);
        LONG cap = args[0]->count;
        for (LONG k = 0; k < cap - 1 && k < 5; ++k) buf[k] = u"host!"[k];
        buf[std::min<LONG>(cap - 1, 5)] = 0;
    }
    return sum & 1;
}

long gAbortAfter = -1;
LONG CALLBACK abortAfter(void) { return gAbortAfter >= 0 && gAbortAfter-- == 0 ? 1 : 0; }
void silent(const char16_t *, const char16_t *) {}

std::string gMacroPath;

bool hasHeader(const uint8_t *data, size_t size) {
    return size >= 5 && (std::equal(data, data + 5, "Macro") || std::equal(data, data + 5, "Makro"));
}

// Everything a run may leave in the process: statics and XML documents.
void resetProcess() {
    mx::processDetach();
    mx::processAttach(nullptr);
    while (int32_t h = mx::xml::xmlHandleAnyDocument()) mx::xml::xmlDelete(h);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    char dir[] = "/tmp/mxfuzz.XXXXXX";
    if (!mkdtemp(dir)) std::abort();
    setenv("MORVIX_WINDOWS_DIR", dir, 1);
    setenv("MORVIX_REGISTRY_DIR", dir, 1);
    gMacroPath = std::string(dir) + "/input.mac";
    mx::processAttach(nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size > 8192) return 0;  // long inputs only slow the search down
    static const std::vector<MX_FUNCTION_ROW> table = hostTable();
    mx::mxp_SetBoxSink(silent);
    // Enough turns for every loop to reach its interesting states (a buffer
    // filled to its capacity takes a few dozen), few enough for thousands of
    // inputs a second.
    mx::stFuzzTurnsLeft = 2000;
    mx::stFuzzTurnsPerLoop = 100;
    if (hasHeader(data, size)) {
        FILE *f = std::fopen(gMacroPath.c_str(), "wb");
        if (!f) std::abort();
        std::fwrite(data, 1, size, f);
        std::fclose(f);
        std::u16string command(gMacroPath.begin(), gMacroPath.end());
        Run_Macro(nullptr, nullptr, command.c_str(), table.data(), host, nullptr, 0, 49);
    } else {
        FuzzInput in{data, size};
        uint8_t options = size && data[0] < 32 ? in.byte() : 2;
        std::u16string text = in.rest(options & 1);
        long abortStep = (options >> 2) & 7;
        gAbortAfter = abortStep ? abortStep * 8 : -1;
        Run_MemMacro(nullptr, nullptr, text.c_str(), table.data(), host, abortStep ? abortAfter : nullptr, 0,
                     options & 2 ? 49 : 1, 0);
    }
    resetProcess();
    return 0;
}
