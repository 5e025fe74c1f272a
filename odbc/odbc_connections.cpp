#include "odbc/odbc_connections.h"

#include <cstring>
#include <new>

#include "engine/errors.h"

namespace mx {

namespace {

enum : uint32_t { kMsgNoMemory = 153, kMsgTooMany = 154, kMsgBadHandle = 155 };

struct OdbcConnection {
    ZodbcParams params;
    SQLHENV env;
    SQLHDBC dbc;
};

struct OdbcTable {
    int32_t count;
    OdbcConnection **slots;
};

// Never freed: connections that macros leave open stay open for the process.
OdbcTable *gTable = nullptr;

bool sameText(const char16_t *a, const char16_t *b, size_t capacity) {
    for (size_t i = 0; i < capacity; ++i) {
        if (a[i] != b[i]) return false;
        if (!a[i]) return true;
    }
    return true;
}

bool sameParams(const ZodbcParams &a, const ZodbcParams &b) {
    return sameText(a.dataSource, b.dataSource, 100) && sameText(a.userId, b.userId, 50) &&
           sameText(a.password, b.password, 50);
}

// 0 for a valid handle, -1 after message 155.
int32_t validate(int32_t handle) {
    if (handle >= 1 && handle <= gTable->count && gTable->slots[handle - 1]) return 0;
    errShowSystemError(kMsgBadHandle);
    return -1;
}

}  // namespace

void odbcTableCreate() {
    if (gTable) return;
    gTable = new (std::nothrow) OdbcTable;
    OdbcConnection **slots = gTable ? new (std::nothrow) OdbcConnection *[kOdbcSlots]() : nullptr;
    if (!slots) {
        delete gTable;
        gTable = nullptr;
        errShowSystemError(kMsgNoMemory);
        return;
    }
    gTable->count = kOdbcSlots;
    gTable->slots = slots;
}

bool odbcTableExists() { return gTable != nullptr; }

int32_t odbcTableAdd(const ZodbcParams &params) {
    if (!gTable) return 0;
    int32_t free = -1;
    for (int32_t i = 0; i < gTable->count; ++i) {
        OdbcConnection *c = gTable->slots[i];
        if (c && sameParams(c->params, params)) return i + 1;
        if (!c && free < 0) free = i;
    }
    if (free < 0) {
        errShowSystemError(kMsgTooMany);
        return 0;
    }
    auto *c = new (std::nothrow) OdbcConnection;
    if (!c) {
        errShowSystemError(kMsgNoMemory);
        return 0;
    }
    std::memcpy(&c->params, &params, sizeof params);
    c->env = nullptr;
    c->dbc = nullptr;
    if (Zodbc_ConnectDataSource(&c->params, &c->env, &c->dbc) < 0) {
        delete c;
        return 0;
    }
    gTable->slots[free] = c;
    return free + 1;
}

void odbcTableRemove(int32_t handle) {
    if (!gTable || validate(handle) < 0) return;
    OdbcConnection *c = gTable->slots[handle - 1];
    Zodbc_DisconnectDataSource(&c->env, &c->dbc);
    delete c;
    gTable->slots[handle - 1] = nullptr;
}

SQLHDBC odbcTableLookup(int32_t handle) {
    if (!gTable || validate(handle) < 0) return nullptr;
    return gTable->slots[handle - 1]->dbc;
}

int32_t odbcTableOpenCount() {
    int32_t n = 0;
    for (int32_t i = 0; gTable && i < gTable->count; ++i) n += gTable->slots[i] != nullptr;
    return n;
}

}  // namespace mx
