// Connecting, the aggregate functions and date literals; the statement
// functions are in odbc_statements.cpp.
#include "odbc/odbc_functions.h"

#include <cstdio>

#include "helperlib/kelvane_text.h"
#include "odbc/driver_locale.h"
#include "odbc/odbc_connections.h"
#include "odbc/zodbc.h"

namespace mx {

int32_t odbcConnect(const char16_t *dataSource, const char16_t *userId, const char16_t *password) {
    DriverCharset charset;
    ZodbcParams params = {};
    KelvaneCopyStringW(params.dataSource, dataSource ? dataSource : u"", 100);
    KelvaneCopyStringW(params.userId, userId ? userId : u"", 50);
    KelvaneCopyStringW(params.password, password ? password : u"", 50);
    return odbcTableAdd(params);
}

int32_t odbcDisconnect(int32_t handle) {
    DriverCharset charset;
    odbcTableRemove(handle);
    return 0;
}

int32_t odbcCountRecords(int32_t handle, const char16_t *table, const char16_t *where) {
    DriverCharset charset;
    SQLHDBC dbc = odbcTableLookup(handle);
    return dbc ? Zodbc_GetRecordCountExt(dbc, table, where, 0) : -1;
}

int32_t odbcAddFields(int32_t handle, const char16_t *table, const char16_t *field,
                      const char16_t *where, double *result) {
    DriverCharset charset;
    SQLHDBC dbc = odbcTableLookup(handle);
    return dbc ? Zodbc_AddFields(dbc, table, field, where, result, 0) : -1;
}

int32_t odbcGetMaximum(int32_t handle, const char16_t *table, const char16_t *field,
                       const char16_t *where, double *result) {
    DriverCharset charset;
    SQLHDBC dbc = odbcTableLookup(handle);
    return dbc ? Zodbc_GetMaximum(dbc, table, field, where, result, 0) : -1;
}

namespace {

bool equalsIgnoringCase(const char16_t *a, const char *b) {
    for (; *a && *b; ++a, ++b) {
        char16_t x = *a >= u'A' && *a <= u'Z' ? char16_t(*a + 32) : *a;
        char y = *b >= 'A' && *b <= 'Z' ? char(*b + 32) : *b;
        if (x != char16_t(y)) return false;
    }
    return !*a && !*b;
}

}  // namespace

int32_t odbcDateToSqlConst(int32_t handle, char16_t *result, int32_t capacity, int32_t day,
                           int32_t month, int32_t year) {
    DriverCharset charset;
    if (year < 100) year += 1900;
    SQLHDBC dbc = odbcTableLookup(handle);
    if (!dbc) return -1;
    char16_t product[50] = {0};  // 100 bytes
    SQLSMALLINT length = 0;
    if (SQLGetInfoW(dbc, SQL_DBMS_NAME, product, sizeof product, &length) != SQL_SUCCESS)
        product[0] = 0;
    product[49] = 0;
    char literal[64];
    if (equalsIgnoringCase(product, "Microsoft SQL Server"))
        std::snprintf(literal, sizeof literal, "'%02d-%02d-%04d'", int(day), int(month), int(year));
    else
        std::snprintf(literal, sizeof literal, "#%02d-%02d-%04d#", int(month), int(day), int(year));
    char16_t wide[64];
    int32_t i = 0;
    for (; literal[i]; ++i) wide[i] = char16_t(literal[i]);
    wide[i] = 0;
    KelvaneCopyStringW(result, wide, capacity);
    return 0;
}

}  // namespace mx
