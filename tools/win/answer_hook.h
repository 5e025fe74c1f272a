// The answer script carried out in the real dialogs: a hook on the calling
// thread finds each dialog as it becomes active, types, selects and presses
// what the script says (tools/answers.h), so the library's own dialog
// procedures and the platform's boxes and choosers run as for a user.
// Message boxes are reported as "TITLE: TEXT" lines as --unattended does.
#pragma once
#include <windows.h>

#include <string>

#include "answers.h"

// Receives each message box as one UTF-8 line "TITLE: TEXT\n".
using AnswerBoxReport = void (*)(const std::string &line);
// Sees each dialog before its answer is carried out (absent: nobody).
using AnswerObserver = void (*)(HWND dialog, mx::DialogKind kind);

// Installs the hook on the calling thread; the answers come from the script
// loaded with answersLoad/answersParse. Returns false when it cannot.
bool answerHookStart(AnswerBoxReport report = nullptr, AnswerObserver observer = nullptr);

// Removes the hook of the calling thread.
void answerHookStop();

// Which kind of dialog window w is (a message box when nothing else fits).
mx::DialogKind answerDialogKind(HWND w);
