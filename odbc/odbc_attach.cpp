#include "odbc/odbc_attach.h"

#include "odbc/odbc_connections.h"

namespace mx {

void odbcAttach() { odbcTableCreate(); }

}  // namespace mx
