// The named constants: rows without signature whose identifier is the value.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kConstantRows[] = {
    // Buttons and answers of the message dialogs.
    biConstant(u"OK", 1),
    biConstant(u"ABORT", 2), biConstant(u"ABBRUCH", 2),
    biConstant(u"YES", 4), biConstant(u"JA", 4),
    biConstant(u"NO", 8), biConstant(u"NEIN", 8),
    // Message icons: the codes of the characters "!", "?", "I" and "S".
    biConstant(u"EXCL", 33), biConstant(u"EXCLAIM", 33), biConstant(u"AUSRUF", 33),
    biConstant(u"QUEST", 63), biConstant(u"FRAGE", 63),
    biConstant(u"INFO", 73),
    biConstant(u"STOP", 83),
    // Registry roots.
    biConstant(u"HKCU", 1), biConstant(u"HKEY_CURRENT_USER", 1),
    biConstant(u"HKLM", 2), biConstant(u"HKEY_LOCAL_MACHINE", 2),
    // Flags of the list and list-view dialogs.
    biConstant(u"SORT", 1), biConstant(u"MULTI", 2),
    biConstant(u"LVD_GRID", 1), biConstant(u"LVD_FULL", 2),
    // Button states of the host button bar.
    biConstant(u"BUTTSTAT_NEWLINE", 16), biConstant(u"BUTTSTAT_NEWGROUP", 32),
    // Further values.
    biConstant(u"READ", 16), biConstant(u"LESEN", 16),
    biConstant(u"WRITE", 32), biConstant(u"SCHREIBEN", 32),
    biConstant(u"ASCII", 4),
    biConstant(u"REGEXP_DOTALL", 1),
    biConstant(u"DOUBLEQUOTE", 34), biConstant(u"SINGLEQUOTE", 39),
};

}  // namespace mx::rows
