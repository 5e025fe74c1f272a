// The ODBC driver manager's declarations, the same on both hosts: unixODBC's
// headers natively, the platform SDK's on Windows. Both use 16-bit wide
// characters, so the core's UTF-16 texts pass through unchanged.
#pragma once
#ifdef _WIN32
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the driver manager's wide text is UTF-16");

namespace mx {

inline SQLWCHAR *sqlText(char16_t *text) { return reinterpret_cast<SQLWCHAR *>(text); }
inline SQLWCHAR *sqlText(const char16_t *text) {
    return reinterpret_cast<SQLWCHAR *>(const_cast<char16_t *>(text));
}

}  // namespace mx
