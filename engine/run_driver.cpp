#include "engine/run_driver.h"

#include <new>

#include "engine/call.h"
#include "engine/errors.h"
#include "engine/loader.h"
#include "engine/reader.h"
#include "engine/statement_cache.h"
#include "engine/statements.h"
#include "engine/trace.h"
#include "base/u16.h"
#include "engine/variables.h"
#include "platform/files.h"
#include "platform/platform.h"

namespace mx {

namespace {
constexpr int32_t kHeaderWordCapacity = 50;

bool isHeaderWord(const char16_t *word) { return u16Eq(word, u"Macro") || u16Eq(word, u"Makro"); }

void resetRunState(RunContext &ctx) {
    ctx.locals = nullptr;
    ctx.line = 1;
    ctx.traceFile = nullptr;
    ctx.traceSwitches = 0;
    ctx.text = nullptr;
    ctx.capacity = ctx.pos = ctx.length = 0;
    ctx.escape = u'\\';
    for (MxpFile *&f : ctx.files) f = nullptr;
    // A nested run starts from a copy of its caller's context: the caller's
    // cache and recording stay the caller's.
    ctx.cache = nullptr;
    ctx.recorder = nullptr;
    ctx.localGeneration = 0;
}

void cleanUp(RunContext &ctx) {
    for (MxpFile *&f : ctx.files) {
        mxp_FileClose(f);
        f = nullptr;
    }
    trCloseFile(ctx);
    scDestroy(ctx.cache);
    ctx.cache = nullptr;
    varReleaseList(ctx.locals);
    ctx.locals = nullptr;
    ldRelease(ctx);
}

// Header: the word "Macro" or "Makro", then the macro name in quotes.
int32_t checkHeader(RunContext &ctx) {
    char16_t word[kWordCapacity];
    if (rdWord(ctx, word, kWordCapacity) < 0) return -1;
    if (!isHeaderWord(word)) {
        errSet(ctx, kErrKeywordMissing, u"Macro");
        return -1;
    }
    if (rdQuoted(ctx, ctx.macroName, kMacroNameCapacity) < 0) {
        errSet(ctx, kErrMacroNameMissing);
        return -1;
    }
    return 0;
}
}  // namespace

int32_t runDriver(RunContext &ctx) {
    resetRunState(ctx);
    if (fnCheckHostTable(ctx) < 0) return -1;
    int32_t result = kStError;
    // Built-ins turn exhausted memory into error 116 themselves; this catches
    // what the platform layer may throw outside them (opening the macro file,
    // writing the trace), so that no exception reaches the host.
    try {
        if (ldLoad(ctx) == 0 && checkHeader(ctx) == 0) {
            ctx.cache = scCreate();
            result = stExecute(ctx, Mode::kRun);
        }
    } catch (const std::bad_alloc &) {
        errSet(ctx, kErrNoMemory);
        result = kStError;
    }
    cleanUp(ctx);
    if (result == kStError) return -1;
    ctx.errorCode = 0;
    return 0;
}

int32_t runReadHeader(const char16_t *macroCommand, char16_t *name, int32_t capacity) {
    RunContext ctx{};
    ctx.macroCommand = macroCommand;
    ctx.line = 1;
    if (ldLoad(ctx) < 0) return -2;
    char16_t word[kHeaderWordCapacity];
    int32_t result = -1;
    if (rdWord(ctx, word, kHeaderWordCapacity) >= 0 && isHeaderWord(word) &&
        rdQuoted(ctx, name, capacity) >= 0)
        result = 0;
    ldRelease(ctx);
    return result;
}

}  // namespace mx
