// The --check command of the two hosts, morvix and mxrun.exe: reads macro
// files for form without running them and writes every error the way
// editors and compilers do, "FILE:LINE: MESSAGE", in the run's own words.
#pragma once
#include <string>
#include <vector>

#include "morvix.h"

// Checks each file with the hosts' table (Print) and the given built-in
// table in front of the names a run knows; writes the errors to standard
// output as UTF-8. Returns the exit status: 0 when every file is clean, 1
// when any has an error, 64 without files.
int hostCheckFiles(const std::vector<std::u16string> &files, const MX_FUNCTION_ROW *builtins);
