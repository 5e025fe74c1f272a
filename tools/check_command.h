// The --check command of the two hosts, morvix and mxrun.exe: reads macro
// files for form without running them and writes every error the way
// editors and compilers do, "FILE:LINE: MESSAGE", in the run's own words.
#pragma once
#include <string>
#include <vector>

#include "morvix.h"

// args: the words after --check: "--host NAME[=SIGNATURE]" options, each
// naming a function (with its signature, e.g. Square=L*L) or a named
// constant (without) of the application the macros are written for, then
// the files. Checks each file with those names, the hosts' Print and the
// given built-in table as the names a run would know; writes the errors to
// standard output as UTF-8. Returns the exit status: 0 when every file is
// clean, 1 when any has an error, 64 for no files or a bad option.
int hostCheckFiles(const std::vector<std::u16string> &args, const MX_FUNCTION_ROW *builtins);
