// The macro functions of database access. Handles are those of the
// connection table (1 to 10); texts are terminated UTF-16. None of these
// sets a run error: trouble is shown in a box and answered through the
// result, and the macro goes on.
#pragma once
#include <cstdint>

namespace mx {

// Handle of a shared or new connection to dataSource, 0 on failure.
int32_t odbcConnect(const char16_t *dataSource, const char16_t *userId, const char16_t *password);

// Closes the connection of handle (message 155 for a bad one). Always 0.
int32_t odbcDisconnect(int32_t handle);

// Executes statement. 0, or -1 after a message.
int32_t odbcPerformSql(int32_t handle, const char16_t *statement);

// The first row of the query's result into dest (capacity units), values
// separated by TABs. 0 (dest empty when there is no row), -1 on failure.
int32_t odbcSelectLine(int32_t handle, const char16_t *statement, char16_t *dest, int32_t capacity);

// The whole result into file: UTF-16LE with byte-order mark, TAB between
// values, CR LF after each row. 0, or -1 on failure.
int32_t odbcSelect(int32_t handle, const char16_t *statement, const char16_t *file);

// The aggregate helpers' answers, or -1 for a bad handle.
int32_t odbcCountRecords(int32_t handle, const char16_t *table, const char16_t *where);
int32_t odbcAddFields(int32_t handle, const char16_t *table, const char16_t *field,
                      const char16_t *where, double *result);
int32_t odbcGetMaximum(int32_t handle, const char16_t *table, const char16_t *field,
                       const char16_t *where, double *result);

// A date literal for the connected database into result (capacity units):
// '24-12-2003' for Microsoft SQL Server, #12-24-2003# for any other. Years
// below 100 count from 1900. 0, or -1 for a bad handle.
int32_t odbcDateToSqlConst(int32_t handle, char16_t *result, int32_t capacity, int32_t day,
                           int32_t month, int32_t year);

}  // namespace mx
