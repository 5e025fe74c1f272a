// Unattended runs of mxrun.exe: every message box the thread shows is
// written to standard error as "TITLE: TEXT" and closed with its default
// button, so that unattended runs print what the native host prints.
#pragma once

#include <string>

// Receives each box as one UTF-8 line "TITLE: TEXT\n".
using BoxReport = void (*)(const std::string &line);

// Installs the watcher on the calling thread; boxes go to report (absent:
// standard error). Returns false when it cannot.
bool unattendedStart(BoxReport report = nullptr);

// Removes the watcher of the calling thread (a test that answers dialogs
// itself takes over from it).
void unattendedStop();

// The owner window of the last box reported (absent when it had none).
void *unattendedLastOwner();
