// The slots of the connection table as plain numbers, without the driver
// manager's declarations (odbc_connections.h has the rest).
#pragma once
#include <cstdint>

namespace mx {

constexpr int32_t kOdbcSlots = 10;

// Closes and frees the connection of handle and clears its slot; a bad
// handle shows message 155.
void odbcTableRemove(int32_t handle);

// Number of occupied slots (0 without a table).
int32_t odbcTableOpenCount();

}  // namespace mx
