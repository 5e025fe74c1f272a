// Dispatch entries of the run-time modules: the report engine (127, 128,
// 135) and the form dialog (131). Each reads its bound arguments and calls
// the plain function.
#include "report/report_family.h"

#include <new>
#include <string>

#include "engine/args.h"
#include "engine/function_numbers.h"
#include "report/form_dialog.h"
#include "report/report_engine.h"

namespace mx {

namespace {

// The text of a C[] argument, terminated: a vector filled up to its last
// element without a terminator is copied into holder first. Empty when that
// copy cannot be made.
const char16_t *textArg(Value *v, std::u16string &holder) {
    const char16_t *text = argText(v);
    int32_t capacity = argCapacity(v);
    if (!text) return u"";
    for (int32_t i = 0; i < capacity; ++i)
        if (!text[i]) return text;
    try {
        holder.assign(text, size_t(capacity > 0 ? capacity : 0));
    } catch (const std::bad_alloc &) {
        return u"";
    }
    return holder.c_str();
}

int32_t biRunReport(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    return reportRunReport(textArg(args[0], a), textArg(args[1], b), argLong(args[2]));
}

int32_t biRunPreview(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    return reportRunPreview(textArg(args[0], a), textArg(args[1], b), argLong(args[2]));
}

int32_t biRunReportExtended(RunContext &, Value **args, int32_t) {
    std::u16string a, b, c, d, e;
    return reportRunReportExtended(textArg(args[0], a), textArg(args[1], b), textArg(args[2], c),
                                   textArg(args[3], d), textArg(args[4], e), argLong(args[5]),
                                   argLong(args[6]), argLong(args[7]), argLong(args[8]));
}

int32_t biFormDialog(RunContext &, Value **args, int32_t) {
    std::u16string a, b, c;
    return reportFormDialog(textArg(args[0], a), textArg(args[1], b), textArg(args[2], c), argLong(args[3]),
                      argLong(args[4]), argLong(args[5]), argLong(args[6]));
}

const DispatchEntry kEntries[] = {
    {fnum::RunReport, u"C[]C[]L", biRunReport},
    {fnum::RunPreview, u"C[]C[]L", biRunPreview},
    {fnum::FormDialog, u"C[]C[]C[]LLLL", biFormDialog},
    {fnum::RunReportExtended, u"C[]C[]C[]C[]C[]LLLL", biRunReportExtended},
};

}  // namespace

const DispatchFamily kReportFamily = {"report", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
