// The ODBC helper layer: connecting and disconnecting data sources, showing
// pending ODBC errors, turning column values into the texts macros receive,
// and the record count, sum and maximum of a table. docs/odbc.md describes
// every format and answer.
#pragma once
#include <cstdint>

#include "odbc/odbc_sql.h"
#include "odbc/zodbc_counts.h"

namespace mx {

// What a connection is opened with. Each text is terminated and cut to its
// field; the reserved bytes are zero.
struct ZodbcParams {
    char16_t dataSource[100];
    char16_t userId[50];
    char16_t password[50];
    uint8_t reserved[20];
};
static_assert(sizeof(ZodbcParams) == 420, "the parameters record is 420 bytes");

// Opens an environment (ODBC 3 behaviour) and connects to the data source
// with user id and password. Returns 0 with *env and *dbc set; on failure
// shows the driver's error, frees what it allocated, leaves both handles
// null and returns -1.
int32_t Zodbc_ConnectDataSource(const ZodbcParams *params, SQLHENV *env, SQLHDBC *dbc);

// Disconnects and frees the connection and its environment; both handles
// become null. Null handles are skipped.
void Zodbc_DisconnectDataSource(SQLHENV *env, SQLHDBC *dbc);

// Shows the connection's pending diagnostics (SQLSTATE, native error,
// message) in an error box.
void Zodbc_DisplayErrorHdbc(SQLHDBC dbc);

// Shows the statement's pending diagnostics and the statement text.
void Zodbc_DisplayErrorHstmt(SQLHSTMT stmt, const char16_t *statement);

// Rewrites the column value in text (as the driver delivered it as wide
// text) in place as the text a macro receives, for a column of SQL type
// sqlType, within capacity units. Decimal fractions get decimalSeparator.
// Returns the new length.
int32_t Zodbc_OdbcDataToString(char16_t *text, int32_t capacity, int32_t sqlType,
                               char16_t decimalSeparator);

// The number of rows of table that satisfy where (white: all rows), or -1
// after showing the error. flags is not used.
int32_t Zodbc_GetRecordCountExt(SQLHDBC dbc, const char16_t *table, const char16_t *where,
                                int32_t flags);

// Stores the sum of field over the rows of table that satisfy where in
// *result. Returns 0; 1 with *result 0 when there is no value to add (no
// row, or NULL only); -1 after showing the error, *result unchanged.
int32_t Zodbc_AddFields(SQLHDBC dbc, const char16_t *table, const char16_t *field,
                        const char16_t *where, double *result, int32_t flags);

// As Zodbc_AddFields, with the maximum of field.
int32_t Zodbc_GetMaximum(SQLHDBC dbc, const char16_t *table, const char16_t *field,
                         const char16_t *where, double *result, int32_t flags);

// ---- statement handles, counted --------------------------------------------

// Allocates a statement on dbc (the ODBC 2 call). Returns the driver
// manager's answer; *stmt is set only on success.
SQLRETURN zodbcAllocStmt(SQLHDBC dbc, SQLHSTMT *stmt);

// Drops a statement allocated by zodbcAllocStmt; null is skipped.
void zodbcDropStmt(SQLHSTMT stmt);


}  // namespace mx
