// Rows of the functions that talk to other programs: DDE conversations,
// ODBC databases and the report engine (no German twins).
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kConnectionRows[] = {
    // DDE client.
    {u"DDEInitiate", 88, u"C[]C[]LLL", u"Prg, Topic, Window, Prg-Start, Activation"},
    {u"DDETerminate", 89, u"L", u"Channel"},
    {u"DDEExecute", 90, u"LC[]L", u"Channel, Commands, WaitMilliSecs"},
    {u"DDEPoke", 91, u"LC[]C[]L", u"Channel, Item, Data, WaitMilliSecs"},
    {u"DDERequest", 92, u"LC[]L*C[]L", u"Channel, Item, Format, Data, WaitMilliSecs"},

    // ODBC access.
    {u"OdbcConnect", 200, u"C[]C[]C[]L", u"Datasource, UserId, Passwort, Flags"},
    {u"OdbcDisconnect", 201, u"L", u"Handle"},
    {u"OdbcPerformSql", 202, u"LC[]L", u"Handle, Statement, Flags"},
    {u"OdbcSelectLine", 203, u"LC[]*C[]L", u"Handle, SelectStatement, DestBuff, Flags"},
    {u"OdbcSelect", 204, u"LC[]C[]L", u"Handle, SelectStatement, DestFile, Flags"},
    {u"OdbcCountRecords", 205, u"LC[]C[]L", u"Handle, Table, WhereClause, Flags"},
    {u"OdbcAddFields", 206, u"LC[]C[]C[]*DL", u"Handle, Table, Field, WhereClause, Result, Flags"},
    {u"OdbcGetMaximum", 207, u"LC[]C[]C[]*DL", u"Handle, Table, Field, WhereClause, Result, Flags"},
    {u"OdbcDateToSqlConst", 208, u"L*C[]LLL", u"Handle, Result, Day, Month, Year"},

    // Report engine.
    {u"RunPreview", 128, u"C[]C[]L", u"Report, Datasource, Flags"},
    {u"RunReport", 127, u"C[]C[]L", u"Report, Datasource, Flags"},
    {u"RunReportExtended", 135, u"C[]C[]C[]C[]C[]LLLL",
     u"Report, Datasource, Printer, OutputFile, DocName, FromPage, ToPage, Copies, Flags"},
};

}  // namespace mx::rows
