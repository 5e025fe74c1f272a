#include <cstdlib>

#include "helperlib/kelvane_sql.h"

namespace mx {

bool ksqlLogPath(std::u16string &path) {
    const wchar_t *value = _wgetenv(L"MORVIX_SQL_LOG");
    if (!value) return false;
    path.assign(reinterpret_cast<const char16_t *>(value));
    return true;
}

}  // namespace mx
