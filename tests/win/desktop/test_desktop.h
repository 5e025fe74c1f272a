// The test host's desktop: top-level windows "Editor - a.txt" and "Editor"
// (the latter with a child "Document" and a grandchild "Deep Child"), a
// frame "Morvix Test Frame" with an MDI client and three MDI children "Doc 1"
// to "Doc 3", and a disabled window "Disabled Window" with two children.
// The frame answers the library's registered host message: it records every
// request record (all fields, the text copied during the call) and replies
// as the test asks.
#pragma once
#include <windows.h>

#include <string>
#include <vector>

#include "morvix.h"

struct TestDesktop {
    HWND editorA, editor, editorChild, editorGrandchild;
    HWND frame, mdiClient, docs[3];
    HWND disabled, disabledChildren[2];
};

// Creates the windows once per process (on the calling thread) and returns them.
const TestDesktop &testDesktop();

// One request as the frame received it.
struct HostRequest {
    WPARAM op;
    bool hasRecord;                 // lParam was not 0
    MX_BUTTON_REQUEST button;       // ops 1, 2, 4: the record's fields
    std::wstring text;              // op 4: the text, copied during the call
    MX_COMMANDLINE_REQUEST param;   // op 7: the record's fields
};

// The requests received so far; cleared by hostReset.
const std::vector<HostRequest> &hostRequests();

// How the frame answers: with reply 4711 it behaves as a cooperating host
// (op 6 answers the number of params, op 7 writes param number N, counted
// from 1, cut at the capacity, and answers 4711; an unknown N answers 0);
// any other reply is answered to every request as it is. Clears the record.
void hostReset(LRESULT reply, const std::vector<std::wstring> &params = {});

// Handles every pending message of the thread.
void pumpMessages();

