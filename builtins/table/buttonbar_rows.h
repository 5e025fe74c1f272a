// Rows of the host button bar and command line functions (no German twins).
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kButtonBarRows[] = {
    {u"AbbAppendButton", 153, u"LLLLL", u"Command, Height, Width, State, Flags"},
    {u"AbbDeleteButton", 154, u"LL", u"Command, Flags"},
    {u"AbbDeleteAllButtons", 155, u"L", u"Flags"},
    {u"AbbSetButtonAction", 156, u"LC[]", u"Command, Action"},
    {u"AbbSetButtonBitmapFile", 157, u"LC[]", u"Command, File"},
    {u"AbbSetButtonMacroFile", 158, u"LC[]", u"Command, File"},
    {u"AbbSetButtonSignum", 159, u"LC[]", u"Command, Signum"},
    {u"AbbSetButtonPopupText", 173, u"LC[]", u"Command, Text"},
    // Without implementation: they take their arguments and yield 0.
    {u"AbbLoadButtonsFromProfile", 160, u"C[]C[]L", u"Profile,Section,Flags"},
    {u"AbbSaveButtonsToProfile", 161, u"C[]C[]L", u"Profile,Section,Flags"},
    {u"GetCommandLineCount", 165, u"", u""},
    {u"GetCommandLineParam", 166, u"L*C[]", u"Nr, Value"},
};

}  // namespace mx::rows
