// Rows of the host button bar and command line functions (no German twins).
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kButtonBarRows[] = {
    {u"AbbAppendButton", fnum::AbbAppendButton, u"LLLLL", u"Command, Height, Width, State, Flags"},
    {u"AbbDeleteButton", fnum::AbbDeleteButton, u"LL", u"Command, Flags"},
    {u"AbbDeleteAllButtons", fnum::AbbDeleteAllButtons, u"L", u"Flags"},
    {u"AbbSetButtonAction", fnum::AbbSetButtonAction, u"LC[]", u"Command, Action"},
    {u"AbbSetButtonBitmapFile", fnum::AbbSetButtonBitmapFile, u"LC[]", u"Command, File"},
    {u"AbbSetButtonMacroFile", fnum::AbbSetButtonMacroFile, u"LC[]", u"Command, File"},
    {u"AbbSetButtonSignum", fnum::AbbSetButtonSignum, u"LC[]", u"Command, Signum"},
    {u"AbbSetButtonPopupText", fnum::AbbSetButtonPopupText, u"LC[]", u"Command, Text"},
    // Without implementation: they take their arguments and yield 0.
    {u"AbbLoadButtonsFromProfile", fnum::AbbLoadButtonsFromProfile, u"C[]C[]L", u"Profile,Section,Flags"},
    {u"AbbSaveButtonsToProfile", fnum::AbbSaveButtonsToProfile, u"C[]C[]L", u"Profile,Section,Flags"},
    {u"GetCommandLineCount", fnum::GetCommandLineCount, u"", u""},
    {u"GetCommandLineParam", fnum::GetCommandLineParam, u"L*C[]", u"Nr, Value"},
};

}  // namespace mx::rows
