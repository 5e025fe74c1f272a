// The process-wide table of open connections: ten slots, created at attach
// and kept until the process ends. A handle is slot index + 1.
#pragma once
#include <cstdint>

#include "odbc/odbc_slots.h"
#include "odbc/zodbc.h"

namespace mx {

// Creates the table; shows message 153 when it cannot be allocated (every
// ODBC function then behaves as if no handle were valid). A second call
// keeps the existing table.
void odbcTableCreate();

// True when the table exists.
bool odbcTableExists();

// Returns the handle of an open connection with exactly these parameters, or
// opens one in the lowest free slot and returns its handle. 0 when there is
// no table, no free slot (message 154), no memory (message 153) or the
// connection fails (the helper has shown why).
int32_t odbcTableAdd(const ZodbcParams &params);

// The ODBC connection of handle; null for a bad handle (message 155) or
// without a table (no message).
SQLHDBC odbcTableLookup(int32_t handle);

}  // namespace mx
