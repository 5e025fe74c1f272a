// Dispatch entries of the ODBC functions (200-208): each reads its bound
// arguments and calls the plain function of odbc_functions.h. The Flags
// arguments are read by nobody: they have no effect.
#include "odbc/odbc_family.h"

#include <new>
#include <string>

#include "engine/args.h"
#include "engine/function_numbers.h"
#include "odbc/odbc_functions.h"

namespace mx {

namespace {

// The text of a C[] argument, terminated: a vector filled up to its last
// element without a terminator is copied into holder first. An empty text
// when that copy cannot be made.
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

int32_t biOdbcConnect(RunContext &, Value **args, int32_t) {
    std::u16string a, b, c;
    return odbcConnect(textArg(args[0], a), textArg(args[1], b), textArg(args[2], c));
}

int32_t biOdbcDisconnect(RunContext &, Value **args, int32_t) {
    return odbcDisconnect(argLong(args[0]));
}

int32_t biOdbcPerformSql(RunContext &, Value **args, int32_t) {
    std::u16string a;
    return odbcPerformSql(argLong(args[0]), textArg(args[1], a));
}

int32_t biOdbcSelectLine(RunContext &, Value **args, int32_t) {
    std::u16string a;
    return odbcSelectLine(argLong(args[0]), textArg(args[1], a), argText(args[2]),
                          argCapacity(args[2]));
}

int32_t biOdbcSelect(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    return odbcSelect(argLong(args[0]), textArg(args[1], a), textArg(args[2], b));
}

int32_t biOdbcCountRecords(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    return odbcCountRecords(argLong(args[0]), textArg(args[1], a), textArg(args[2], b));
}

int32_t biOdbcAddFields(RunContext &, Value **args, int32_t) {
    std::u16string a, b, c;
    return odbcAddFields(argLong(args[0]), textArg(args[1], a), textArg(args[2], b),
                         textArg(args[3], c), argDoubleRef(args[4]));
}

int32_t biOdbcGetMaximum(RunContext &, Value **args, int32_t) {
    std::u16string a, b, c;
    return odbcGetMaximum(argLong(args[0]), textArg(args[1], a), textArg(args[2], b),
                          textArg(args[3], c), argDoubleRef(args[4]));
}

int32_t biOdbcDateToSqlConst(RunContext &, Value **args, int32_t) {
    return odbcDateToSqlConst(argLong(args[0]), argText(args[1]), argCapacity(args[1]),
                              argLong(args[2]), argLong(args[3]), argLong(args[4]));
}

const DispatchEntry kEntries[] = {
    {fnum::OdbcConnect, u"C[]C[]C[]L", biOdbcConnect},
    {fnum::OdbcDisconnect, u"L", biOdbcDisconnect},
    {fnum::OdbcPerformSql, u"LC[]L", biOdbcPerformSql},
    {fnum::OdbcSelectLine, u"LC[]*C[]L", biOdbcSelectLine},
    {fnum::OdbcSelect, u"LC[]C[]L", biOdbcSelect},
    {fnum::OdbcCountRecords, u"LC[]C[]L", biOdbcCountRecords},
    {fnum::OdbcAddFields, u"LC[]C[]C[]*DL", biOdbcAddFields},
    {fnum::OdbcGetMaximum, u"LC[]C[]C[]*DL", biOdbcGetMaximum},
    {fnum::OdbcDateToSqlConst, u"L*C[]LLL", biOdbcDateToSqlConst},
};

}  // namespace

const DispatchFamily kOdbcFamily = {"odbc", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
