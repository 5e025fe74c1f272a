#include <cstdio>
#include <string>

#include "base/utf8.h"
#include "helperlib/kelvane_date.h"
#include "helperlib/kelvane_sql.h"
#include "platform/files.h"

namespace mx {

int32_t Kelvane_DumpSqlStatementW(const char16_t *statement, int32_t) {
    std::u16string path;
    if (!ksqlLogPath(path) || path.empty()) return 1;
    OpenError why = OpenError::kNone;
    MxpFile *log = mxp_FileOpen(path.c_str(), u"ab", Share::kDenyWrite, &why);
    if (!log) return 1;
    KelvaneDateTime now = {};
    Get_CurrentDateAndTime(&now);
    char stamp[32];
    std::snprintf(stamp, sizeof stamp, "%04d-%02d-%02d %02d:%02d:%02d\t", int(now.year),
                  int(now.month), int(now.day), int(now.hour), int(now.minute), int(now.second));
    std::string entry = stamp + toUtf8(statement ? statement : u"") + "\r\n";
    mxp_FileWriteBytes(log, entry.data(), entry.size());
    mxp_FileClose(log);
    return 1;
}

}  // namespace mx
