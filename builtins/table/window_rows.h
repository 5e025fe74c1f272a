// Rows of the window, process, clipboard and environment functions, in the
// order of their documentation table: English row first, German row after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kWindowRows[] = {
    {u"GetWindow", fnum::GetWindow, u"C[]C[]", u"ApplWindowtitle,ChildWindowtitle"},
    {u"GibFenster", kDe | fnum::GetWindow, u"C[]C[]", u"ProgFenstertitel,DokFenstertitel"},
    {u"GetTitle", fnum::GetTitle, u"L*C[]", u"Window,Buffer"},
    {u"GibTitel", kDe | fnum::GetTitle, u"L*C[]", u"Fenster,Ergebnis"},
    {u"GetWindowClientSize", fnum::GetWindowClientSize, u"L*L*L", u"WindowHandle, Height, Width"},
    {u"WindowMaximize", fnum::WindowMaximize, u"L", u"Window"},
    {u"FensterMaximiere", kDe | fnum::WindowMaximize, u"L", u"Window"},
    {u"WindowMinimize", fnum::WindowMinimize, u"L", u"Window"},
    {u"FensterMinimiere", kDe | fnum::WindowMinimize, u"L", u"Window"},
    {u"WindowResize", fnum::WindowResize, u"L", u"Window"},
    {u"FensterWiederherstelle", kDe | fnum::WindowResize, u"L", u"Window"},
    {u"WindowActivate", fnum::WindowActivate, u"L", u"Window"},
    {u"FensterAktiviere", kDe | fnum::WindowActivate, u"L", u"Window"},
    {u"WindowGetActive", fnum::WindowGetActive, u"", u""},
    {u"FensterGibAktives", kDe | fnum::WindowGetActive, u"", u""},
    {u"MdiGetActive", fnum::MdiGetActive, u"", u""},
    {u"MdiGibAktives", kDe | fnum::MdiGetActive, u"", u""},
    {u"MdiActivate", fnum::MdiActivate, u"L", u"Window"},
    {u"MdiAktiviere", kDe | fnum::MdiActivate, u"L", u"Window"},
    {u"MdiActivateNext", fnum::MdiActivateNext, u"", u""},
    {u"MdiAktiviereNächstes", kDe | fnum::MdiActivateNext, u"", u""},
    {u"MdiResize", fnum::MdiResize, u"", u""},
    {u"MdiWiederherstelle", kDe | fnum::MdiResize, u"", u""},
    {u"MdiMaximize", fnum::MdiMaximize, u"", u""},
    {u"MdiMaximiere", kDe | fnum::MdiMaximize, u"", u""},
    {u"MdiIsMaximized", fnum::MdiIsMaximized, u"", u""},
    {u"MdiIstMaximiert", kDe | fnum::MdiIsMaximized, u"", u""},
    {u"SendMessage", fnum::SendMessage, u"LLLLL", u"Window,Message,Parameter1,Parameter2,Wait"},
    {u"SendeNachricht", kDe | fnum::SendMessage, u"LLLLL", u"Fenster,Nachricht,Parameter1,Parameter2,Warten"},
    {u"GetScreenHeight", fnum::GetScreenHeight, u"", u""},
    {u"GetScreenWidth", fnum::GetScreenWidth, u"", u""},
    {u"Beep", fnum::Beep, u"L", u"Mode"},
    {u"Piep", kDe | fnum::Beep, u"L", u"Mode"},
    {u"ReadClipboard", fnum::ReadClipboard, u"*C[]L", u"Destination,Mode"},
    {u"ClipBoardLesen", kDe | fnum::ReadClipboard, u"*C[]L", u"Ziel,Modus"},
    {u"WriteClipboard", fnum::WriteClipboard, u"C[]L", u"Source,Mode"},
    {u"ClipBoardSchreiben", kDe | fnum::WriteClipboard, u"C[]L", u"Quelle,Modus"},
    {u"GetEnvironment", fnum::GetEnvironment, u"C[]*C[]", u"Variable,Parameter"},
    {u"GibEnvironment", kDe | fnum::GetEnvironment, u"C[]*C[]", u"Variable,Wert"},
    {u"ExecuteProgram", fnum::ExecuteProgram, u"C[]L", u"Program,Activation"},
    {u"StarteProgrammNM", kDe | fnum::ExecuteProgram, u"C[]L", u"Programm,Aktivierung"},
    {u"CreateProcess", fnum::CreateProcess, u"C[]LL", u"CommandLine, ShowMode, Flags"},
    {u"ExecuteProgramModal", fnum::ExecuteProgramModal, u"C[]L*L", u"Program, ShowFlag, ReturnCode"},
    {u"ShellExecute", fnum::ShellExecute, u"C[]C[]L", u"File, Action, ShowFlags"},
    {u"FindExecutable", fnum::FindExecutable, u"C[]*C[]", u"File, Program"},
    {u"SendMail", fnum::SendMail, u"C[]C[]C[]C[]C[]C[]C[]L", u"Sender, Receivers, Ccs, Bccs, Subject, Text, Files, Flags"},
    {u"OpenBrowser", fnum::OpenBrowser, u"C[]L", u"url,flags"},
};

}  // namespace mx::rows
