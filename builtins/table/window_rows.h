// Rows of the window, process, clipboard and environment functions, in the
// order of their documentation table: English row first, German row after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kWindowRows[] = {
    {u"GetWindow", 75, u"C[]C[]", u"ApplWindowtitle,ChildWindowtitle"},
    {u"GibFenster", kDe | 75, u"C[]C[]", u"ProgFenstertitel,DokFenstertitel"},
    {u"GetTitle", 56, u"L*C[]", u"Window,Buffer"},
    {u"GibTitel", kDe | 56, u"L*C[]", u"Fenster,Ergebnis"},
    {u"GetWindowClientSize", 164, u"L*L*L", u"WindowHandle, Height, Width"},
    {u"WindowMaximize", 64, u"L", u"Window"},
    {u"FensterMaximiere", kDe | 64, u"L", u"Window"},
    {u"WindowMinimize", 65, u"L", u"Window"},
    {u"FensterMinimiere", kDe | 65, u"L", u"Window"},
    {u"WindowResize", 66, u"L", u"Window"},
    {u"FensterWiederherstelle", kDe | 66, u"L", u"Window"},
    {u"WindowActivate", 67, u"L", u"Window"},
    {u"FensterAktiviere", kDe | 67, u"L", u"Window"},
    {u"WindowGetActive", 68, u"", u""},
    {u"FensterGibAktives", kDe | 68, u"", u""},
    {u"MdiGetActive", 50, u"", u""},
    {u"MdiGibAktives", kDe | 50, u"", u""},
    {u"MdiActivate", 51, u"L", u"Window"},
    {u"MdiAktiviere", kDe | 51, u"L", u"Window"},
    {u"MdiActivateNext", 52, u"", u""},
    {u"MdiAktiviereNächstes", kDe | 52, u"", u""},
    {u"MdiResize", 53, u"", u""},
    {u"MdiWiederherstelle", kDe | 53, u"", u""},
    {u"MdiMaximize", 54, u"", u""},
    {u"MdiMaximiere", kDe | 54, u"", u""},
    {u"MdiIsMaximized", 55, u"", u""},
    {u"MdiIstMaximiert", kDe | 55, u"", u""},
    {u"SendMessage", 81, u"LLLLL", u"Window,Message,Parameter1,Parameter2,Wait"},
    {u"SendeNachricht", kDe | 81, u"LLLLL", u"Fenster,Nachricht,Parameter1,Parameter2,Warten"},
    {u"GetScreenHeight", 113, u"", u""},
    {u"GetScreenWidth", 114, u"", u""},
    {u"Beep", 8, u"L", u"Mode"},
    {u"Piep", kDe | 8, u"L", u"Mode"},
    {u"ReadClipboard", 71, u"*C[]L", u"Destination,Mode"},
    {u"ClipBoardLesen", kDe | 71, u"*C[]L", u"Ziel,Modus"},
    {u"WriteClipboard", 72, u"C[]L", u"Source,Mode"},
    {u"ClipBoardSchreiben", kDe | 72, u"C[]L", u"Quelle,Modus"},
    {u"GetEnvironment", 79, u"C[]*C[]", u"Variable,Parameter"},
    {u"GibEnvironment", kDe | 79, u"C[]*C[]", u"Variable,Wert"},
    {u"ExecuteProgram", 74, u"C[]L", u"Program,Activation"},
    {u"StarteProgrammNM", kDe | 74, u"C[]L", u"Programm,Aktivierung"},
    {u"CreateProcess", 138, u"C[]LL", u"CommandLine, ShowMode, Flags"},
    {u"ExecuteProgramModal", 191, u"C[]L*L", u"Program, ShowFlag, ReturnCode"},
    {u"ShellExecute", 140, u"C[]C[]L", u"File, Action, ShowFlags"},
    {u"FindExecutable", 139, u"C[]*C[]", u"File, Program"},
    {u"SendMail", 172, u"C[]C[]C[]C[]C[]C[]C[]L", u"Sender, Receivers, Ccs, Bccs, Subject, Text, Files, Flags"},
    {u"OpenBrowser", 188, u"C[]L", u"url,flags"},
};

}  // namespace mx::rows
