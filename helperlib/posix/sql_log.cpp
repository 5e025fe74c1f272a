#include <cstdlib>

#include "base/utf8.h"
#include "helperlib/kelvane_sql.h"

namespace mx {

bool ksqlLogPath(std::u16string &path) {
    const char *value = std::getenv("MORVIX_SQL_LOG");
    if (!value) return false;
    path = fromUtf8(value);
    return true;
}

}  // namespace mx
