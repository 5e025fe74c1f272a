/* The driver's own cost of reading a result, for comparison with
 * OdbcSelect: fills table bench5 with N rows of 5 columns in the data source
 * named by argv[1], then reads SELECT * through the driver manager the plain
 * way (fetch, each column as wide text, written to a file) and prints
 * "driver_ns_per_row X". Usage: odbc_driver_bench DSN N OUTFILE */
#include <sql.h>
#include <sqlext.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static double now(void) {
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1e9 + t.tv_nsec;
}

static int run(SQLHDBC dbc, const char *sql) {
    SQLHSTMT s;
    SQLAllocHandle(SQL_HANDLE_STMT, dbc, &s);
    SQLRETURN rc = SQLExecDirect(s, (SQLCHAR *)sql, SQL_NTS);
    SQLFreeHandle(SQL_HANDLE_STMT, s);
    return SQL_SUCCEEDED(rc) ? 0 : -1;
}

int main(int argc, char **argv) {
    if (argc < 4) return 64;
    long n = atol(argv[2]);
    SQLHENV env;
    SQLHDBC dbc;
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &env);
    SQLSetEnvAttr(env, SQL_ATTR_ODBC_VERSION, (SQLPOINTER)SQL_OV_ODBC3, 0);
    SQLAllocHandle(SQL_HANDLE_DBC, env, &dbc);
    if (!SQL_SUCCEEDED(SQLConnect(dbc, (SQLCHAR *)argv[1], SQL_NTS, NULL, 0, NULL, 0))) {
        fprintf(stderr, "cannot connect to %s\n", argv[1]);
        return 1;
    }
    char fill[512];
    snprintf(fill, sizeof fill,
             "INSERT INTO bench5 WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c "
             "WHERE x < %ld) SELECT x, 'name ' || x, x * 0.5, '2003-12-24', 'text ' || (x %% 97) FROM c",
             n);
    run(dbc, "DROP TABLE IF EXISTS bench5");
    if (run(dbc, "CREATE TABLE bench5 (id INTEGER, name VARCHAR(40), amount DOUBLE, day DATE, "
                 "note VARCHAR(40))") ||
        run(dbc, fill))
        return 1;

    FILE *out = fopen(argv[3], "wb");
    SQLHSTMT s;
    double start = now();
    SQLAllocHandle(SQL_HANDLE_STMT, dbc, &s);
    SQLExecDirect(s, (SQLCHAR *)"SELECT * FROM bench5", SQL_NTS);
    SQLWCHAR value[500];
    SQLLEN ind;
    long rows = 0;
    while (SQLFetch(s) == SQL_SUCCESS) {
        for (SQLUSMALLINT c = 1; c <= 5; ++c) {
            if (SQLGetData(s, c, SQL_C_WCHAR, value, 998, &ind) != SQL_SUCCESS) return 1;
            if (ind > 0) fwrite(value, 1, (size_t)ind, out);
        }
        ++rows;
    }
    SQLFreeHandle(SQL_HANDLE_STMT, s);
    double ns = now() - start;
    fclose(out);
    printf("driver_rows %ld\ndriver_ns_per_row %.0f\n", rows, ns / (rows ? rows : 1));
    SQLDisconnect(dbc);
    SQLFreeHandle(SQL_HANDLE_DBC, dbc);
    SQLFreeHandle(SQL_HANDLE_ENV, env);
    return 0;
}
