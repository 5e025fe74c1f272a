// Helper library: the statement log of database access.
#pragma once
#include <cstdint>
#include <string>

namespace mx {

// Called with every statement before it is executed. When the environment
// variable MORVIX_SQL_LOG names a file, appends one entry to it: the local
// time "YYYY-MM-DD HH:MM:SS", a TAB, the statement as UTF-8 and CR LF (a log
// that cannot be opened is skipped). Returns 1: the statement may run.
// flags is not used.
int32_t Kelvane_DumpSqlStatementW(const char16_t *statement, int32_t flags);

// The statement log's file name from the environment into path; false when
// none is set. (posix/ and win32/ read the environment their own way.)
bool ksqlLogPath(std::u16string &path);

}  // namespace mx
