// What the two hosts, morvix (Linux) and mxrun.exe (Windows), share: their
// options, their host function table with Print, the abort callback and the
// exit status, so that a macro prints the same under both.
#pragma once
#include <string>
#include <vector>

#include "morvix.h"

struct HostOptions {
    long country = 1;
    bool hasTitle = false;
    std::u16string title;
    long abortAfter = -1;  // the abort callback answers 1 from this call on
    bool unattended = false;
    std::u16string answers;  // --answers FILE: the answer script, empty for none
    bool memory = false;   // -e TEXT
    std::u16string text;   // the memory macro
    std::u16string file;
    std::vector<std::u16string> params;
};

// Parses the arguments after the program name. Returns false with a message
// for the user when they are not understood.
bool hostParseArgs(const std::vector<std::u16string> &args, HostOptions &opts, std::string &error);

// The macro command: FILE and the PARAMs, each quoted when it holds a blank.
std::u16string hostMacroCommand(const HostOptions &opts);

// The usage text.
const char *hostUsage();

// The host function table: Print (signature X).
extern const MX_FUNCTION_ROW kHostTable[];

LONG CALLBACK hostFunction(LONG number, MX_VALUE **args, LONG count, LONG_PTR callbackValue);

// Counts its calls; answers 1 from opts.abortAfter on.
void hostSetAbortAfter(long n);
LONG CALLBACK hostAbort(void);

// 0, 1 or 2 for the run results 0, -1 and -2.
int hostExitStatus(LONG runResult);

// Formats a Value the way Print writes it (UTF-8, without the line feed).
std::string hostFormatValue(const MX_VALUE *v);

// Writes bytes to standard output unchanged (no line-end translation).
void hostWriteOut(const std::string &bytes);
