// Record count, sum and maximum of a table. The table and field names go
// into the statement as names, never as SQL: a plain name (letters, digits,
// '_', '$', non-ASCII letters, dotted parts for a schema) is written as it
// is, so the database folds its case as usual; a name that is already
// delimited by the database's identifier quote, with every inner quote
// doubled, is written as it is too; any other name is delimited, with each
// quote inside it doubled, so quotes, blanks and semicolons stay part of the
// name. The where clause is SQL and goes in unchanged.
#include <string>

#include "odbc/zodbc.h"

namespace mx {

namespace {

bool isWhite(const char16_t *text) {
    if (!text) return true;
    for (; *text; ++text)
        if (*text > 32) return false;
    return true;
}

bool isPlainChar(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'_' || c == u'$' || c >= 0x80;
}

// Plain: non-empty parts of plain characters, separated by single dots,
// none starting with a digit.
bool isPlainName(const std::u16string &name) {
    bool partStart = true;
    for (char16_t c : name) {
        if (c == u'.') {
            if (partStart) return false;
            partStart = true;
            continue;
        }
        if (!isPlainChar(c) || (partStart && c >= u'0' && c <= u'9')) return false;
        partStart = false;
    }
    return !partStart;
}

bool isDelimited(const std::u16string &name, char16_t quote) {
    size_t n = name.size();
    if (n < 2 || name[0] != quote || name[n - 1] != quote) return false;
    for (size_t i = 1; i + 1 < n; ++i) {
        if (name[i] != quote) continue;
        if (i + 2 >= n || name[i + 1] != quote) return false;
        ++i;
    }
    return true;
}

// The identifier quote of the connected database; a blank when it has none.
char16_t identifierQuote(SQLHDBC dbc) {
    char16_t quote[8] = {0};
    SQLSMALLINT len = 0;
    if (SQLGetInfoW(dbc, SQL_IDENTIFIER_QUOTE_CHAR, quote, sizeof quote, &len) != SQL_SUCCESS)
        return u'"';
    return quote[0] ? quote[0] : u' ';
}

std::u16string sqlName(const char16_t *text, char16_t quote) {
    std::u16string name = text ? text : u"";
    if (isPlainName(name) || quote == u' ' || isDelimited(name, quote)) return name;
    std::u16string out(1, quote);
    for (char16_t c : name) {
        out += c;
        if (c == quote) out += c;
    }
    out += quote;
    return out;
}

std::u16string buildQuery(SQLHDBC dbc, const char16_t *head, const char16_t *field,
                          const char16_t *table, const char16_t *where) {
    char16_t quote = identifierQuote(dbc);
    std::u16string sql = u"SELECT ";
    sql += head;
    if (field) {
        sql += sqlName(field, quote);
        sql += u")";
    }
    sql += u" FROM ";
    sql += sqlName(table, quote);
    if (!isWhite(where)) {
        sql += u" WHERE ";
        sql += where;
    }
    return sql;
}

// Runs a one-value query and reads its value as target type into value.
// Returns 0, 1 for a NULL value or no row, -1 after showing the error.
int32_t queryValue(SQLHDBC dbc, const std::u16string &sql, SQLSMALLINT target, void *value,
                   SQLLEN size) {
    SQLHSTMT stmt = nullptr;
    if (zodbcAllocStmt(dbc, &stmt) != SQL_SUCCESS) {
        Zodbc_DisplayErrorHdbc(dbc);
        return -1;
    }
    int32_t answer = -1;
    SQLLEN indicator = 0;
    if (SQLExecDirectW(stmt, sqlText(sql.c_str()), SQL_NTS) != SQL_SUCCESS) {
        Zodbc_DisplayErrorHstmt(stmt, sql.c_str());
    } else {
        SQLRETURN rc = SQLFetch(stmt);
        if (rc == SQL_NO_DATA) answer = 1;
        else if (rc != SQL_SUCCESS || SQLGetData(stmt, 1, target, value, size, &indicator) != SQL_SUCCESS)
            Zodbc_DisplayErrorHstmt(stmt, sql.c_str());
        else answer = indicator == SQL_NULL_DATA ? 1 : 0;
    }
    zodbcDropStmt(stmt);
    return answer;
}

int32_t aggregate(SQLHDBC dbc, const char16_t *function, const char16_t *table,
                  const char16_t *field, const char16_t *where, double *result) {
    if (!dbc || !result) return -1;
    double value = 0;
    int32_t answer = queryValue(dbc, buildQuery(dbc, function, field, table, where), SQL_C_DOUBLE,
                                &value, sizeof value);
    if (answer >= 0) *result = answer == 0 ? value : 0.0;
    return answer;
}

}  // namespace

int32_t Zodbc_GetRecordCountExt(SQLHDBC dbc, const char16_t *table, const char16_t *where, int32_t) {
    if (!dbc) return -1;
    SQLINTEGER count = 0;
    int32_t answer = queryValue(dbc, buildQuery(dbc, u"COUNT(*)", nullptr, table, where), SQL_C_SLONG,
                                &count, sizeof count);
    if (answer < 0) return -1;
    return answer == 0 ? int32_t(count) : 0;
}

int32_t Zodbc_AddFields(SQLHDBC dbc, const char16_t *table, const char16_t *field,
                        const char16_t *where, double *result, int32_t) {
    return aggregate(dbc, u"SUM(", table, field, where, result);
}

int32_t Zodbc_GetMaximum(SQLHDBC dbc, const char16_t *table, const char16_t *field,
                         const char16_t *where, double *result, int32_t) {
    return aggregate(dbc, u"MAX(", table, field, where, result);
}

}  // namespace mx
