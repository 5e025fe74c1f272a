#include "builtins/language/nested_run.h"

#include <new>

#include "engine/command_words.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "base/u16.h"
#include "engine/run_driver.h"

namespace mx {

namespace {
// A nested run costs the host's stack far more than a block: about 1.9 KB
// per level of a macro calling itself (measured on 64-bit Windows), where the
// other nesting levels cost a few hundred bytes. Counting a nested run as
// this many levels keeps the deepest legal recursion (about 180 levels) within
// a third of a 1 MB stack, so the nesting error comes long before it ends.
constexpr int32_t kNestedRunDepth = 8;
}  // namespace

int32_t lgCall(RunContext &ctx, const char16_t *command) {
    // The nested run inherits host data, title, decimal separator and dialog
    // settings; the run driver starts its locals, files, trace and text afresh.
    RunContext *nested = new (std::nothrow) RunContext(ctx);
    if (!nested) return -1;
    nested->macroCommand = command;
    nested->macroText = nullptr;
    nested->depth += kNestedRunDepth - 1;  // evEnter adds the last one
    int32_t result = 0;
    if (!evEnter(*nested) || runDriver(*nested) != 0) {
        errShowMacroError(*nested);
        result = -1;
    }
    delete nested;
    return result;
}

std::u16string lgBuildCommand(const std::u16string parts[6]) {
    std::u16string command;
    for (int32_t i = 0; i < 6; ++i) {
        if (i) command += u' ';
        command += u'"';
        command += parts[i];
        command += u'"';
    }
    if (command.size() > size_t(kCallWithParamsCapacity - 1)) command.resize(kCallWithParamsCapacity - 1);
    return command;
}

int32_t lgGetMacroParameter(const RunContext &ctx, int32_t n, char16_t *text, int32_t capacity) {
    if (!ctx.macroCommand) return 1;
    if (n < 0) return 0;
    return commandWord(ctx.macroCommand, n, text, capacity) ? 0 : 1;
}

}  // namespace mx
