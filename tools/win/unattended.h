// Unattended runs of mxrun.exe: every message box the thread shows is
// written to standard error as "TITLE: TEXT" and closed with its default
// button, so that unattended runs print what the native host prints.
#pragma once

// Installs the watcher on the calling thread. Returns false when it cannot.
bool unattendedStart();
