// The environment of the ODBC tests, set inside the process because every
// test runs as a process of its own: the driver manager reads the driver
// list and data sources from the build tree (nothing from /etc), and the
// 8-bit SQLite driver's texts travel as UTF-8.
#include <cstdlib>

namespace {

const bool kEnvironmentSet = [] {
    setenv("ODBCSYSINI", MX_ODBC_DIR, 1);
    setenv("ODBCINI", MX_ODBC_DIR "/odbc.ini", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    return true;
}();

}  // namespace

// The drivers keep a few allocations until the process ends; full stacks
// let the suppressions name the driver.
extern "C" const char *__lsan_default_options() {
    return "suppressions=" MX_SOURCE_DIR "/tests/odbc/lsan.supp:print_suppressions=0";
}
extern "C" const char *__asan_default_options() { return "fast_unwind_on_malloc=0"; }
