#include "macro_harness.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "base/utf8.h"
#include "engine/arg_reads.h"
#include "platform/platform.h"
#include "tools/host_common.h"

namespace {
std::string captured;

void captureBox(const char16_t *title, const char16_t *text) {
    captured += mx::toUtf8(title) + ": " + mx::toUtf8(text) + "\n";
}

LONG CALLBACK capturePrint(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    if (number == 1 && count == 1) captured += hostFormatValue(args[0]) + "\n";
    return 0;
}

template <class F>
MacroRun capture(F run) {
    captured.clear();
    mx::argReadFaults();  // only this run's misfits count
    mx::mxp_SetBoxSink(captureBox);
    MacroRun r;
    r.result = run();
    mx::mxp_SetBoxSink(nullptr);
    // A handler that reads an argument otherwise than its entry says shows
    // up in the output, so that the run fails its expectation.
    r.output = captured + mx::argReadFaults();
    return r;
}
}  // namespace

void harnessPrint(const std::string &line) { captured += line + "\n"; }

MacroRun runMemory(const std::u16string &text, int32_t country, const char16_t *title, long abortAfter) {
    hostSetAbortAfter(abortAfter);
    MX_ABORT_CALLBACK abort = abortAfter >= 0 ? hostAbort : nullptr;
    return capture([&] {
        return Run_MemMacroExt(nullptr, nullptr, text.c_str(), title, kHostTable, capturePrint, abort,
                               0, country, 0);
    });
}

MacroRun runFile(const std::u16string &command, int32_t country, long abortAfter) {
    hostSetAbortAfter(abortAfter);
    MX_ABORT_CALLBACK abort = abortAfter >= 0 ? hostAbort : nullptr;
    return capture([&] {
        return Run_Macro(nullptr, nullptr, command.c_str(), kHostTable, capturePrint, abort, 0, country);
    });
}

MacroRun runMemoryWithHost(const std::u16string &text, const MX_FUNCTION_ROW *table,
                           MX_HOST_CALLBACK callback) {
    return capture([&] {
        return Run_MemMacroExt(nullptr, nullptr, text.c_str(), nullptr, table, callback, nullptr, 0, 1, 0);
    });
}

std::string scratchDir() {
    char tmpl[] = "/tmp/mxtest.XXXXXX";
    char *dir = mkdtemp(tmpl);
    return dir ? std::string(dir) : std::string("/tmp");
}

void writeFile(const std::string &path, const std::string &bytes) {
    std::ofstream f(path, std::ios::binary);
    f << bytes;
}

std::string readFile(const std::string &path) {
    std::ifstream f(path, std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
}

std::u16string u16(const std::string &utf8) { return mx::fromUtf8(utf8); }

#include "engine/types.h"
#include "engine/run_driver.h"
#include "interface/run_entry.h"

CoreRun runCore(const std::u16string &text, bool file) {
    mx::RunRequest req{};
    (file ? req.macroCommand : req.macroText) = text.c_str();
    req.macroTitle = req.macroCommand;
    req.hostTable = reinterpret_cast<const mx::FunctionRow *>(kHostTable);
    req.hostCallback = reinterpret_cast<mx::HostCallback>(&capturePrint);
    req.countryCode = 1;
    mx::RunContext ctx;
    mx::entryInit(ctx, req);
    CoreRun r;
    MacroRun m = capture([&] { return mx::runDriver(ctx); });
    r.result = m.result;
    r.output = m.output;
    r.errorCode = ctx.errorCode;
    r.errorArg = mx::toUtf8(ctx.errorArg);
    r.line = ctx.line;
    return r;
}
