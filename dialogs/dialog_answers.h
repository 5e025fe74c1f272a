// Scripted answers for a machine without a desktop. No dialog can be shown
// there; a host that wants macros with dialogs to run unattended installs an
// answer source, and every dialog then asks it for the user's answer instead
// (the Windows host carries out the same answers in the real dialogs).
// The types need no library, so that the Windows host shares them too.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace mx {

// What kind of dialog asks; message boxes by their button set.
enum class DialogKind {
    kMessageOk, kMessageOkCancel, kMessageYesNo, kMessageYesNoCancel,
    kInput, kListBox, kListView, kFile, kDirectory,
};

enum class AnswerAction { kOk, kCancel, kYes, kNo, kText, kSelect, kPath };

struct DialogAnswer {
    AnswerAction action = AnswerAction::kCancel;
    std::u16string text;          // kText: what is typed; kPath: the file or directory
    std::vector<int32_t> picks;   // kSelect: 1-based entries in display order
};

// Gives the answer for the next dialog; it always fits the kind (a source
// with no fitting answer left answers as Cancel, or No where a box has no
// Cancel button).
using DialogAnswerSource = DialogAnswer (*)(DialogKind kind, const std::u16string &title);

// Installs the answer source of the native dialogs (absent: none, dialogs
// answer as a machine without a desktop). No effect on Windows.
void dialogsSetAnswerSource(DialogAnswerSource source);

// The installed source, absent when none.
DialogAnswerSource dialogsAnswerSource();

}  // namespace mx
