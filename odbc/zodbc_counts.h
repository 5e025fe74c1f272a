// The handle counts of the ODBC helper layer, without the driver manager's
// declarations.
#pragma once
#include <cstdint>

namespace mx {

// How many handles of each kind the layer holds right now: lets tests prove
// that every path frees what it allocated.
struct ZodbcHandleCounts {
    int32_t environments;
    int32_t connections;
    int32_t statements;
};
ZodbcHandleCounts zodbcLiveHandles();

}  // namespace mx
