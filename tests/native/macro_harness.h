// Running macros inside the tests: through the real exports with the Print
// host function, capturing what Print writes and every box the library shows
// (as "TITLE: TEXT" lines, in order with the printed lines).
#pragma once
#include <cstdint>
#include <string>

#include "morvix.h"

struct MacroRun {
    int32_t result = 0;   // 0, -1, -2
    std::string output;   // Print lines and box lines, UTF-8, in order
};

// Runs a memory macro (the statements of a body). abortAfter >= 0 makes the
// abort callback answer 1 from that call on.
MacroRun runMemory(const std::u16string &text, int32_t country = 1, const char16_t *title = nullptr,
                   long abortAfter = -1);

// Runs a file macro with Run_Macro; the command is the path and parameters.
MacroRun runFile(const std::u16string &command, int32_t country = 1, long abortAfter = -1);

// Runs a memory macro with a host table and callback of the test's own.
MacroRun runMemoryWithHost(const std::u16string &text, const MX_FUNCTION_ROW *table,
                           MX_HOST_CALLBACK callback);

// Appends a line to the captured output (for host callbacks of tests).
void harnessPrint(const std::string &line);

// A fresh empty directory for one test, removed with the process's temp files.
std::string scratchDir();

// Writes bytes to a file.
void writeFile(const std::string &path, const std::string &bytes);

// Reads a whole file as bytes ("" when missing).
std::string readFile(const std::string &path);

// UTF-8 to UTF-16 for test literals.
std::u16string u16(const std::string &utf8);

// A run of the core driver itself (no box), for checking the error record.
struct CoreRun {
    int32_t result = 0;      // 0 or -1 from the driver
    int32_t errorCode = 0;
    std::string errorArg;    // UTF-8
    int32_t line = 0;
    std::string output;      // Print lines
};

// Runs a memory macro (or, with file set, the macro command) through the run
// driver with the Print host table.
CoreRun runCore(const std::u16string &text, bool file = false);
