#include "odbc/odbc_attach.h"

namespace mx {

void odbcAttach() {}

}  // namespace mx
