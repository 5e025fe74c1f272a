// Rows of the functions that talk to other programs: DDE conversations,
// ODBC databases and the report engine (no German twins).
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kConnectionRows[] = {
    // DDE client.
    {u"DDEInitiate", fnum::DDEInitiate, u"C[]C[]LLL", u"Prg, Topic, Window, Prg-Start, Activation"},
    {u"DDETerminate", fnum::DDETerminate, u"L", u"Channel"},
    {u"DDEExecute", fnum::DDEExecute, u"LC[]L", u"Channel, Commands, WaitMilliSecs"},
    {u"DDEPoke", fnum::DDEPoke, u"LC[]C[]L", u"Channel, Item, Data, WaitMilliSecs"},
    {u"DDERequest", fnum::DDERequest, u"LC[]L*C[]L", u"Channel, Item, Format, Data, WaitMilliSecs"},

    // ODBC access.
    {u"OdbcConnect", fnum::OdbcConnect, u"C[]C[]C[]L", u"Datasource, UserId, Passwort, Flags"},
    {u"OdbcDisconnect", fnum::OdbcDisconnect, u"L", u"Handle"},
    {u"OdbcPerformSql", fnum::OdbcPerformSql, u"LC[]L", u"Handle, Statement, Flags"},
    {u"OdbcSelectLine", fnum::OdbcSelectLine, u"LC[]*C[]L", u"Handle, SelectStatement, DestBuff, Flags"},
    {u"OdbcSelect", fnum::OdbcSelect, u"LC[]C[]L", u"Handle, SelectStatement, DestFile, Flags"},
    {u"OdbcCountRecords", fnum::OdbcCountRecords, u"LC[]C[]L", u"Handle, Table, WhereClause, Flags"},
    {u"OdbcAddFields", fnum::OdbcAddFields, u"LC[]C[]C[]*DL", u"Handle, Table, Field, WhereClause, Result, Flags"},
    {u"OdbcGetMaximum", fnum::OdbcGetMaximum, u"LC[]C[]C[]*DL", u"Handle, Table, Field, WhereClause, Result, Flags"},
    {u"OdbcDateToSqlConst", fnum::OdbcDateToSqlConst, u"L*C[]LLL", u"Handle, Result, Day, Month, Year"},

    // Report engine.
    {u"RunPreview", fnum::RunPreview, u"C[]C[]L", u"Report, Datasource, Flags"},
    {u"RunReport", fnum::RunReport, u"C[]C[]L", u"Report, Datasource, Flags"},
    {u"RunReportExtended", fnum::RunReportExtended, u"C[]C[]C[]C[]C[]LLLL",
     u"Report, Datasource, Printer, OutputFile, DocName, FromPage, ToPage, Copies, Flags"},
};

}  // namespace mx::rows
