// The case files (tests/cases/*.cases, described in tests/cases/README.md):
// each case is a macro to run with what it must print, return and leave in
// its directory. This reader is shared by the native and the Windows runner,
// so both hosts run the same cases against the same expected text.
#pragma once
#include <string>
#include <vector>

struct CaseBytes {
    std::string name;   // a path relative to the case's directory
    std::string bytes;  // exact content; a directory when isDir
    bool isDir = false;
};

struct Case {
    std::string where;      // "FILE:LINE" of the case's header, for messages
    std::string name;
    std::string macroFile;  // empty: a memory macro; else run as this file macro
    int country = 1;
    std::string macro;      // UTF-8, as written in the case file
    std::string fileBytes;  // the macro file's bytes: the text in code page 1252
    std::string answers;    // the answer script for the dialogs
    std::vector<CaseBytes> inputs;    // created before the run
    std::vector<CaseBytes> expected;  // every file the run leaves (inputs aside)
    std::string output;     // Print lines and boxes "TITLE: TEXT", in order
    int result = 0;
};

// Reads the cases of one file's text. Returns false with "FILE:LINE: why"
// in error when a line is not understood; cases are appended to out.
bool caseParse(const std::string &text, const std::string &fileName, std::vector<Case> &out,
               std::string &error);

// Reads every *.cases file of dir, in name order. Returns false with a
// message when a file cannot be read or parsed.
bool caseLoadAll(const std::string &dir, std::vector<Case> &out, std::string &error);
