// Running one case the same way on every host: a fresh directory of its own
// with the case's input files becomes the current directory, the host runs
// the macro there, and what it printed, returned and left behind is
// compared with the case. Only the run itself differs between hosts.
#pragma once
#include <functional>
#include <string>

#include "case_file.h"

struct CaseRun {
    int result = 0;
    std::string output;  // Print lines and "TITLE: TEXT" boxes, UTF-8
};

// Runs the case in the current directory (a file macro is already written
// there as c.macroFile) with its answers and country.
using CaseHost = std::function<CaseRun(const Case &c)>;

// Runs c through host and compares. Returns "" when everything matches,
// else a description of each difference. Leaves no directory behind and
// restores the current directory.
std::string caseCheck(const Case &c, const CaseHost &host);

// Runs every case of dir through host; returns the failures, one
// description each, and sets count to the number of cases run. MX_CASES=TEXT
// in the environment runs only the cases whose name or file holds TEXT.
std::vector<std::string> caseCheckAll(const std::string &dir, const CaseHost &host, size_t &count);
