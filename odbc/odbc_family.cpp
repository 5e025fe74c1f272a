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

int32_t biOdbcConnect(RunContext &, Value **args, int32_t) {
    return odbcConnect(ArgTextZ(args[0]).get(), ArgTextZ(args[1]).get(), ArgTextZ(args[2]).get());
}

int32_t biOdbcDisconnect(RunContext &, Value **args, int32_t) {
    return odbcDisconnect(argLong(args[0]));
}

int32_t biOdbcPerformSql(RunContext &, Value **args, int32_t) {
    return odbcPerformSql(argLong(args[0]), ArgTextZ(args[1]).get());
}

int32_t biOdbcSelectLine(RunContext &, Value **args, int32_t) {
    return odbcSelectLine(argLong(args[0]), ArgTextZ(args[1]).get(), argText(args[2]),
                          argCapacity(args[2]));
}

int32_t biOdbcSelect(RunContext &, Value **args, int32_t) {
    return odbcSelect(argLong(args[0]), ArgTextZ(args[1]).get(), ArgTextZ(args[2]).get());
}

int32_t biOdbcCountRecords(RunContext &, Value **args, int32_t) {
    return odbcCountRecords(argLong(args[0]), ArgTextZ(args[1]).get(), ArgTextZ(args[2]).get());
}

int32_t biOdbcAddFields(RunContext &, Value **args, int32_t) {
    return odbcAddFields(argLong(args[0]), ArgTextZ(args[1]).get(), ArgTextZ(args[2]).get(),
                         ArgTextZ(args[3]).get(), argDoubleRef(args[4]));
}

int32_t biOdbcGetMaximum(RunContext &, Value **args, int32_t) {
    return odbcGetMaximum(argLong(args[0]), ArgTextZ(args[1]).get(), ArgTextZ(args[2]).get(),
                          ArgTextZ(args[3]).get(), argDoubleRef(args[4]));
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
