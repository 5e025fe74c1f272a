// Connecting and disconnecting data sources, and the handle counts.
#include "odbc/zodbc.h"

namespace mx {

namespace {
ZodbcHandleCounts gLive = {0, 0, 0};

void freeEnv(SQLHENV &env) {
    if (!env) return;
    SQLFreeHandle(SQL_HANDLE_ENV, env);
    env = nullptr;
    --gLive.environments;
}

void freeDbc(SQLHDBC &dbc) {
    if (!dbc) return;
    SQLFreeHandle(SQL_HANDLE_DBC, dbc);
    dbc = nullptr;
    --gLive.connections;
}
}  // namespace

int32_t Zodbc_ConnectDataSource(const ZodbcParams *params, SQLHENV *env, SQLHDBC *dbc) {
    SQLHENV e = nullptr;
    SQLHDBC d = nullptr;
    *env = nullptr;
    *dbc = nullptr;
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &e))) return -1;
    ++gLive.environments;
    // ODBC 3 behaviour: an update that touches no row answers SQL_NO_DATA,
    // and dates report their ODBC 3 type numbers.
    SQLSetEnvAttr(e, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_DBC, e, &d))) {
        freeEnv(e);
        return -1;
    }
    ++gLive.connections;
    SQLRETURN rc = SQLConnectW(d, sqlText(params->dataSource), SQL_NTS, sqlText(params->userId),
                               SQL_NTS, sqlText(params->password), SQL_NTS);
    if (!SQL_SUCCEEDED(rc)) {
        Zodbc_DisplayErrorHdbc(d);
        freeDbc(d);
        freeEnv(e);
        return -1;
    }
    *env = e;
    *dbc = d;
    return 0;
}

void Zodbc_DisconnectDataSource(SQLHENV *env, SQLHDBC *dbc) {
    if (*dbc) SQLDisconnect(*dbc);
    freeDbc(*dbc);
    freeEnv(*env);
}

SQLRETURN zodbcAllocStmt(SQLHDBC dbc, SQLHSTMT *stmt) {
    SQLHSTMT s = nullptr;
    SQLRETURN rc = SQLAllocStmt(dbc, &s);
    if (rc == SQL_SUCCESS) {
        *stmt = s;
        ++gLive.statements;
    } else if (SQL_SUCCEEDED(rc) && s) {
        // Answered with a warning: the handle exists, but the caller treats
        // the call as failed, so it must not outlive it.
        SQLFreeStmt(s, SQL_DROP);
    }
    return rc;
}

void zodbcDropStmt(SQLHSTMT stmt) {
    if (!stmt) return;
    SQLFreeStmt(stmt, SQL_DROP);
    --gLive.statements;
}

ZodbcHandleCounts zodbcLiveHandles() { return gLive; }

}  // namespace mx
