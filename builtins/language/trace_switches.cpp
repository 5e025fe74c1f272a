#include "builtins/language/trace_switches.h"

#include "engine/trace.h"
#include "platform/files.h"

namespace mx {

int32_t lgTraceSwitch(RunContext &ctx, uint32_t switches, int32_t mode) {
    if (mode == 1) ctx.traceSwitches |= switches;
    else ctx.traceSwitches &= ~switches;
    return 0;
}

int32_t lgTraceFile(RunContext &ctx, const char16_t *name) {
    trCloseFile(ctx);
    ctx.traceFile = mxp_FileOpen(name, u"wt", Share::kDenyReadWrite, nullptr);
    return ctx.traceFile ? 1 : 0;
}

}  // namespace mx
