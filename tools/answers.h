// The answer script of `--answers FILE`: one line per dialog, in the order
// the macro opens them (docs/dialogs.md describes it). Both hosts read it
// here; morvix hands the answers to the library's native dialogs, mxrun.exe
// carries them out in the real dialogs.
#pragma once
#include <string>

#include "dialogs/dialog_answers.h"

// Reads the script. Returns false with a message for the user when the file
// cannot be read or a line is not understood.
bool answersLoad(const std::u16string &file, std::string &error);
// The same from the script's text (UTF-8).
bool answersParse(const std::string &text, std::string &error);

// The answer for the next dialog of the given kind and title. A message box
// with only OK uses no line and is confirmed. When no line is left, or the
// next line does not fit the dialog, that line is used up all the same and
// the dialog is cancelled (a box without Cancel answers No), after a line on
// standard error.
mx::DialogAnswer answersNext(mx::DialogKind kind, const std::u16string &title);

// Where the notes about missing or unfitting answers go (absent: standard error).
void answersSetReport(void (*report)(const std::string &line));

// The number of lines not yet used.
size_t answersLeft();
