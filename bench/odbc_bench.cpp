// OdbcSelect of table bench5 (filled by odbc_driver_bench) to a result file,
// timed. Prints "morvix_ns_per_row X" and "morvix_rows_per_s Y".
// Usage: odbc_bench DSN OUTFILE
#include <chrono>
#include <cstdio>
#include <string>

#include "base/utf8.h"
#include "odbc/odbc_connections.h"
#include "odbc/odbc_functions.h"

int main(int argc, char **argv) {
    if (argc < 3) return 64;
    mx::odbcTableCreate();
    std::u16string dsn = mx::fromUtf8(argv[1]), out = mx::fromUtf8(argv[2]);
    int32_t h = mx::odbcConnect(dsn.c_str(), u"", u"");
    if (!h) return 1;
    char16_t count[20] = {0};
    mx::odbcSelectLine(h, u"SELECT COUNT(*) FROM bench5", count, 20);
    long rows = std::stol(mx::toUtf8(count));
    auto start = std::chrono::steady_clock::now();
    int32_t r = mx::odbcSelect(h, u"SELECT * FROM bench5", out.c_str());
    double ns = std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
    mx::odbcDisconnect(h);
    if (r != 0 || rows <= 0) return 1;
    std::printf("morvix_rows %ld\nmorvix_ns_per_row %.0f\nmorvix_rows_per_s %.0f\n", rows, ns / rows,
                rows / (ns / 1e9));
    return 0;
}
