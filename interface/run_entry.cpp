#include "interface/run_entry.h"

#include "builtins/table.h"
#include "engine/errors.h"
#include "engine/run_driver.h"
#include "platform/platform.h"

namespace mx {

namespace {
constexpr int32_t kCountryGermany = 49;
}  // namespace

void entryInit(RunContext &ctx, const RunRequest &r) {
    ctx = RunContext{};
    ctx.hostInstance = r.hostInstance;
    ctx.hostWindow = mxp_TopLevelWindow(r.window);
    ctx.macroCommand = r.macroCommand;
    ctx.macroText = r.macroCommand ? nullptr : r.macroText;
    ctx.macroTitle = r.macroTitle;
    ctx.hostTable = r.hostTable;
    ctx.hostCallback = r.hostCallback;
    ctx.abortCallback = r.abortCallback;
    ctx.callbackValue = r.callbackValue;
    ctx.dialogX = ctx.dialogY = -1;
    ctx.builtinTable = biTable();
    ctx.builtinCount = kBuiltinRows;
    ctx.decimalSeparator = r.countryCode == kCountryGermany ? u',' : u'.';
}

int32_t entryRun(RunContext &ctx) {
    if (runDriver(ctx) == 0) return 0;
    if (ctx.errorCode == kErrAborted) return -2;
    errShowMacroError(ctx);
    return -1;
}

}  // namespace mx
