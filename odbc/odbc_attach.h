// The ODBC connection table, created at attach and kept for the process.
#pragma once

namespace mx {

// Creates the table of open connections. Never refuses the attach.
void odbcAttach();

}  // namespace mx
