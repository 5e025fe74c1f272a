// Executing statements and reading their results: the statement start shared
// by the three statement functions, the column value reader shared by the two
// selects, and the result file writer. Only SQL_SUCCESS counts as success:
// a warning or "no data" takes the failure path of the step concerned.
#include <string>

#include "engine/errors.h"
#include "helperlib/kelvane_sql.h"
#include "helperlib/kelvane_text.h"
#include "odbc/driver_locale.h"
#include "odbc/odbc_connections.h"
#include "odbc/odbc_functions.h"
#include "odbc/zodbc.h"
#include "platform/files.h"

namespace mx {

namespace {

enum : uint32_t { kMsgCannotCreate = 156 };

// Units of one column value: a 1000-byte buffer, of which the driver is
// offered 998 bytes.
constexpr int32_t kValueUnits = 500;
constexpr SQLLEN kValueOffer = 998;

// Allocates, vets and executes statement on dbc. Returns the executed
// statement, or null (the statement dropped, the error shown).
SQLHSTMT startStatement(SQLHDBC dbc, const char16_t *statement) {
    SQLHSTMT stmt = nullptr;
    if (zodbcAllocStmt(dbc, &stmt) != SQL_SUCCESS) {
        Zodbc_DisplayErrorHdbc(dbc);
        return nullptr;
    }
    if (Kelvane_DumpSqlStatementW(statement, 0) != 1) {
        zodbcDropStmt(stmt);
        return nullptr;
    }
    if (SQLExecDirectW(stmt, sqlText(statement), SQL_NTS) != SQL_SUCCESS) {
        Zodbc_DisplayErrorHstmt(stmt, statement);
        zodbcDropStmt(stmt);
        return nullptr;
    }
    return stmt;
}

// The number of result columns, or -1 after showing the error.
int32_t columnCount(SQLHSTMT stmt, const char16_t *statement) {
    SQLLEN count = 0;
    if (SQLColAttributesW(stmt, 1, SQL_COLUMN_COUNT, nullptr, 0, nullptr, &count) != SQL_SUCCESS) {
        Zodbc_DisplayErrorHstmt(stmt, statement);
        return -1;
    }
    return int32_t(count);
}

enum class ColumnRead { kValue, kNull, kFailed };

// Reads column c of the current row into value as the macro's text. A
// failure (a value too long for the buffer included) shows the error.
ColumnRead readColumn(SQLHSTMT stmt, SQLUSMALLINT c, const char16_t *statement,
                      char16_t (&value)[kValueUnits]) {
    SQLLEN type = 0;
    if (SQLColAttributesW(stmt, c, SQL_COLUMN_TYPE, nullptr, 0, nullptr, &type) != SQL_SUCCESS)
        type = 0;
    SQLLEN indicator = 0;
    value[0] = 0;
    if (SQLGetData(stmt, c, SQL_C_WCHAR, value, kValueOffer, &indicator) != SQL_SUCCESS) {
        Zodbc_DisplayErrorHstmt(stmt, statement);
        return ColumnRead::kFailed;
    }
    if (indicator == SQL_NULL_DATA) return ColumnRead::kNull;
    value[kValueUnits - 1] = 0;
    Zodbc_OdbcDataToString(value, kValueUnits, int32_t(type), u',');
    return ColumnRead::kValue;
}

// Result file bytes: UTF-16 little-endian whatever the host's byte order.
void appendUtf16le(std::string &bytes, const char16_t *text) {
    for (; *text; ++text) {
        bytes += char(*text & 0xFF);
        bytes += char(*text >> 8);
    }
}

// Writes the rows of an executed statement to file. 0, or -1 after showing
// the error; what was read before a failure is written.
int32_t writeRows(SQLHSTMT stmt, const char16_t *statement, MxpFile *file) {
    static const char kBom[] = {char(0xFF), char(0xFE)};
    mxp_FileWriteBytes(file, kBom, sizeof kBom);
    int32_t columns = columnCount(stmt, statement);
    if (columns < 0) return -1;
    std::string row;
    char16_t value[kValueUnits];
    while (SQLFetch(stmt) == SQL_SUCCESS) {
        row.clear();
        for (int32_t c = 1; c <= columns; ++c) {
            if (c > 1) appendUtf16le(row, u"\t");
            ColumnRead got = readColumn(stmt, SQLUSMALLINT(c), statement, value);
            if (got == ColumnRead::kFailed) {
                mxp_FileWriteBytes(file, row.data(), row.size());
                return -1;
            }
            if (got == ColumnRead::kValue) appendUtf16le(row, value);
        }
        appendUtf16le(row, u"\r\n");
        mxp_FileWriteBytes(file, row.data(), row.size());
    }
    return 0;
}

}  // namespace

int32_t odbcPerformSql(int32_t handle, const char16_t *statement) {
    DriverCharset charset;
    SQLHDBC dbc = odbcTableLookup(handle);
    if (!dbc) return -1;
    SQLHSTMT stmt = startStatement(dbc, statement);
    if (!stmt) return -1;
    zodbcDropStmt(stmt);
    return 0;
}

int32_t odbcSelectLine(int32_t handle, const char16_t *statement, char16_t *dest, int32_t capacity) {
    DriverCharset charset;
    SQLHDBC dbc = odbcTableLookup(handle);
    if (!dbc) return -1;
    SQLHSTMT stmt = startStatement(dbc, statement);
    if (!stmt) return -1;
    if (dest && capacity > 0) dest[0] = 0;
    int32_t columns = columnCount(stmt, statement);
    int32_t result = columns < 0 ? -1 : 0;
    char16_t value[kValueUnits];
    if (result == 0 && SQLFetch(stmt) == SQL_SUCCESS) {
        for (int32_t c = 1; c <= columns; ++c) {
            if (c > 1) KelvaneAppendStringW(dest, u"\t", capacity);
            ColumnRead got = readColumn(stmt, SQLUSMALLINT(c), statement, value);
            if (got == ColumnRead::kFailed) {
                result = -1;
                break;
            }
            if (got == ColumnRead::kValue) KelvaneAppendStringW(dest, value, capacity);
        }
    }
    zodbcDropStmt(stmt);
    return result;
}

int32_t odbcSelect(int32_t handle, const char16_t *statement, const char16_t *file) {
    DriverCharset charset;
    SQLHDBC dbc = odbcTableLookup(handle);
    if (!dbc) return -1;
    OpenError why = OpenError::kNone;
    MxpFile *out = mxp_FileOpen(file, u"wb", Share::kDenyReadWrite, &why);
    if (!out) {
        errShowSystemError(kMsgCannotCreate, file);
        return -1;
    }
    SQLHSTMT stmt = startStatement(dbc, statement);
    int32_t result = stmt ? writeRows(stmt, statement, out) : -1;
    mxp_FileClose(out);
    zodbcDropStmt(stmt);
    return result;
}

}  // namespace mx
