// Rows of the language's own built-ins: variables, nested macros, the escape
// character and tracing; English row first, German row after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kLanguageRows[] = {
    {u"Dim", 28, u"X", u"VariableName"},
    {u"IsDeclared", 31, u"C[]", u"VariableName"},
    {u"IstDeklariert", kDe | 31, u"C[]", u"VariableName"},
    {u"Call", 32, u"C[]", u"Macro"},
    {u"StarteMakro", kDe | 32, u"C[]", u"Macro"},
    {u"CallWithParams", 192, u"C[]C[]C[]C[]C[]C[]", u"Macro, P1, P2, P3, P4, P5"},
    {u"GetMacroParameter", 33, u"L*C[]", u"ParameterNumber, ResultText"},
    {u"GibMakroParameter", kDe | 33, u"L*C[]", u"ParameterNummer,Textpuffer"},
    {u"SetStringEscape", 82, u"L", u"Character"},
    {u"SetzeFluchtsymbol", kDe | 82, u"L", u"Character"},
    {u"TraceFunction", 97, u"L", u"Mode"},
    {u"TraceFunktion", kDe | 97, u"L", u"Modus"},
    {u"TraceAssign", 98, u"L", u"Mode"},
    {u"TraceZuweisung", kDe | 98, u"L", u"Modus"},
    {u"TraceDialog", 96, u"L", u"Mode"},
    {u"TraceFile", 99, u"C[]", u"Filename"},
    {u"TraceDatei", kDe | 99, u"C[]", u"Dateiname"},
};

}  // namespace mx::rows
