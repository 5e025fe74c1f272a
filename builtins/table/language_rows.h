// Rows of the language's own built-ins: variables, nested macros, the escape
// character and tracing; English row first, German row after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kLanguageRows[] = {
    {u"Dim", fnum::Dim, u"X", u"VariableName"},
    {u"IsDeclared", fnum::IsDeclared, u"C[]", u"VariableName"},
    {u"IstDeklariert", kDe | fnum::IsDeclared, u"C[]", u"VariableName"},
    {u"Call", fnum::Call, u"C[]", u"Macro"},
    {u"StarteMakro", kDe | fnum::Call, u"C[]", u"Macro"},
    {u"CallWithParams", fnum::CallWithParams, u"C[]C[]C[]C[]C[]C[]", u"Macro, P1, P2, P3, P4, P5"},
    {u"GetMacroParameter", fnum::GetMacroParameter, u"L*C[]", u"ParameterNumber, ResultText"},
    {u"GibMakroParameter", kDe | fnum::GetMacroParameter, u"L*C[]", u"ParameterNummer,Textpuffer"},
    {u"SetStringEscape", fnum::SetStringEscape, u"L", u"Character"},
    {u"SetzeFluchtsymbol", kDe | fnum::SetStringEscape, u"L", u"Character"},
    {u"TraceFunction", fnum::TraceFunction, u"L", u"Mode"},
    {u"TraceFunktion", kDe | fnum::TraceFunction, u"L", u"Modus"},
    {u"TraceAssign", fnum::TraceAssign, u"L", u"Mode"},
    {u"TraceZuweisung", kDe | fnum::TraceAssign, u"L", u"Modus"},
    {u"TraceDialog", fnum::TraceDialog, u"L", u"Mode"},
    {u"TraceFile", fnum::TraceFile, u"C[]", u"Filename"},
    {u"TraceDatei", kDe | fnum::TraceFile, u"C[]", u"Dateiname"},
};

}  // namespace mx::rows
