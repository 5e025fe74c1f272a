// Dispatch entries of the windows, processes, clipboard, environment and
// button-bar functions: each reads its bound arguments and calls the plain
// function of its area.
#include "desktop/desktop_family.h"

#include "desktop/clipboard.h"
#include "desktop/host_requests.h"
#include "desktop/mdi.h"
#include "desktop/processes.h"
#include "desktop/windows.h"
#include "engine/args.h"
#include "engine/function_numbers.h"
#include "helperlib/kelvane_mail.h"

namespace mx {

namespace {

// Window handles travel in macros as longs.
WindowHandle handleArg(Value *v) { return reinterpret_cast<WindowHandle>(intptr_t(argLong(v))); }
int32_t handleResult(WindowHandle w) { return int32_t(reinterpret_cast<intptr_t>(w)); }

int32_t biGetWindow(RunContext &, Value **args, int32_t) {
    ArgTextZ app(args[0]), child(args[1]);
    return handleResult(dskGetWindow(app.get(), child.get()));
}

int32_t biGetTitle(RunContext &, Value **args, int32_t) {
    return dskGetTitle(handleArg(args[0]), argText(args[1]), argCapacity(args[1]));
}

int32_t biGetWindowClientSize(RunContext &, Value **args, int32_t) {
    return dskGetWindowClientSize(handleArg(args[0]), argLongRef(args[1]), argLongRef(args[2]));
}

int32_t biWindowMaximize(RunContext &, Value **args, int32_t) { return dskShowWindow(handleArg(args[0]), 3); }
int32_t biWindowMinimize(RunContext &, Value **args, int32_t) { return dskShowWindow(handleArg(args[0]), 6); }
int32_t biWindowResize(RunContext &, Value **args, int32_t) { return dskShowWindow(handleArg(args[0]), 9); }

int32_t biWindowActivate(RunContext &, Value **args, int32_t) {
    return handleResult(dskWindowActivate(handleArg(args[0])));
}

int32_t biWindowGetActive(RunContext &, Value **, int32_t) { return handleResult(dskWindowGetActive()); }

int32_t biMdiGetActive(RunContext &ctx, Value **, int32_t) {
    return handleResult(dskMdiGetActive(ctx.hostWindow));
}

int32_t biMdiActivate(RunContext &ctx, Value **args, int32_t) {
    return dskMdiActivate(ctx.hostWindow, handleArg(args[0]));
}

int32_t biMdiActivateNext(RunContext &ctx, Value **, int32_t) { return dskMdiActivateNext(ctx.hostWindow); }
int32_t biMdiResize(RunContext &ctx, Value **, int32_t) { return dskMdiRestoreOrMaximize(ctx.hostWindow, false); }
int32_t biMdiMaximize(RunContext &ctx, Value **, int32_t) { return dskMdiRestoreOrMaximize(ctx.hostWindow, true); }
int32_t biMdiIsMaximized(RunContext &ctx, Value **, int32_t) { return dskMdiIsMaximized(ctx.hostWindow); }

int32_t biSendMessage(RunContext &, Value **args, int32_t) {
    intptr_t answer = dskSendMessage(handleArg(args[0]), uint32_t(argLong(args[1])),
                                     uintptr_t(intptr_t(argLong(args[2]))), intptr_t(argLong(args[3])),
                                     argLong(args[4]) != 0);
    return int32_t(answer);
}

int32_t biGetScreenHeight(RunContext &, Value **, int32_t) { return dskGetScreenHeight(); }
int32_t biGetScreenWidth(RunContext &, Value **, int32_t) { return dskGetScreenWidth(); }
int32_t biBeep(RunContext &, Value **args, int32_t) { return dskBeep(argLong(args[0])); }

int32_t biReadClipboard(RunContext &ctx, Value **args, int32_t) {
    return dskReadClipboard(ctx.hostWindow, argText(args[0]), argCapacity(args[0]));
}

int32_t biWriteClipboard(RunContext &ctx, Value **args, int32_t) {
    ArgTextZ text(args[0]);
    return dskWriteClipboard(ctx.hostWindow, text.get(), text.length());
}

int32_t biGetEnvironment(RunContext &, Value **args, int32_t) {
    ArgTextZ name(args[0]);
    return dskGetEnvironment(name.get(), argText(args[1]), argCapacity(args[1]));
}

// Starts the program as CreateProcess does, with Activation as its show mode
// (0: shown); the answer is always 0, whether it started or not.
int32_t biExecuteProgram(RunContext &, Value **args, int32_t) {
    ArgTextZ line(args[0]);
    int32_t mode = argLong(args[1]);
    dskCreateProcess(line.get(), mode ? mode : 5);
    return 0;
}

int32_t biCreateProcess(RunContext &, Value **args, int32_t) {
    ArgTextZ line(args[0]);
    return dskCreateProcess(line.get(), argLong(args[1]));
}

int32_t biExecuteProgramModal(RunContext &, Value **args, int32_t) {
    ArgTextZ line(args[0]);
    return dskExecuteProgramModal(line.get(), argLong(args[1]), argLongRef(args[2]));
}

int32_t biShellExecute(RunContext &, Value **args, int32_t) {
    ArgTextZ file(args[0]), verb(args[1]);
    return dskShellExecute(file.get(), verb.get(), argLong(args[2]));
}

int32_t biFindExecutable(RunContext &, Value **args, int32_t) {
    ArgTextZ file(args[0]);
    return dskFindExecutable(file.get(), argText(args[1]), argCapacity(args[1]));
}

int32_t biSendMail(RunContext &, Value **args, int32_t) {
    ArgTextZ sender(args[0]), to(args[1]), cc(args[2]), bcc(args[3]), subject(args[4]), text(args[5]),
        files(args[6]);
    return Kelvane_SendMailW(sender.get(), to.get(), cc.get(), bcc.get(), subject.get(), text.get(),
                             files.get(), argLong(args[7]));
}

int32_t biOpenBrowser(RunContext &, Value **args, int32_t) {
    ArgTextZ url(args[0]);
    return Kelvane_RunStandardBrowserW(url.get(), 0);
}

// The button bar and the command line: one request to the host window each.
int32_t biAbbAppendButton(RunContext &ctx, Value **args, int32_t) {
    return dskAppendButton(ctx.hostWindow, argLong(args[0]), argLong(args[1]), argLong(args[2]),
                            argLong(args[3]));
}

int32_t biAbbDeleteButton(RunContext &ctx, Value **args, int32_t) {
    return dskDeleteButton(ctx.hostWindow, argLong(args[0]));
}

int32_t biAbbDeleteAllButtons(RunContext &ctx, Value **, int32_t) { return dskDeleteAllButtons(ctx.hostWindow); }

int32_t setProperty(RunContext &ctx, Value **args, int32_t kind) {
    ArgTextZ text(args[1]);
    return dskSetButtonProperty(ctx.hostWindow, argLong(args[0]), kind, text.get());
}

int32_t biAbbSetButtonAction(RunContext &ctx, Value **args, int32_t) { return setProperty(ctx, args, kButtonAction); }
int32_t biAbbSetButtonBitmapFile(RunContext &ctx, Value **args, int32_t) {
    return setProperty(ctx, args, kButtonBitmapFile);
}
int32_t biAbbSetButtonMacroFile(RunContext &ctx, Value **args, int32_t) {
    return setProperty(ctx, args, kButtonMacroFile);
}
int32_t biAbbSetButtonSignum(RunContext &ctx, Value **args, int32_t) { return setProperty(ctx, args, kButtonSignum); }
int32_t biAbbSetButtonPopupText(RunContext &ctx, Value **args, int32_t) {
    return setProperty(ctx, args, kButtonPopupText);
}

int32_t biGetCommandLineCount(RunContext &ctx, Value **, int32_t) { return dskGetCommandLineCount(ctx.hostWindow); }

int32_t biGetCommandLineParam(RunContext &ctx, Value **args, int32_t) {
    return dskGetCommandLineParam(ctx.hostWindow, argLong(args[0]), argText(args[1]), argCapacity(args[1]));
}

const DispatchEntry kEntries[] = {
    {fnum::Beep, u"L", biBeep},
    {fnum::MdiGetActive, u"", biMdiGetActive},
    {fnum::MdiActivate, u"L", biMdiActivate},
    {fnum::MdiActivateNext, u"", biMdiActivateNext},
    {fnum::MdiResize, u"", biMdiResize},
    {fnum::MdiMaximize, u"", biMdiMaximize},
    {fnum::MdiIsMaximized, u"", biMdiIsMaximized},
    {fnum::GetTitle, u"L*C[]", biGetTitle},
    {fnum::WindowMaximize, u"L", biWindowMaximize},
    {fnum::WindowMinimize, u"L", biWindowMinimize},
    {fnum::WindowResize, u"L", biWindowResize},
    {fnum::WindowActivate, u"L", biWindowActivate},
    {fnum::WindowGetActive, u"", biWindowGetActive},
    {fnum::ReadClipboard, u"*C[]L", biReadClipboard},
    {fnum::WriteClipboard, u"C[]L", biWriteClipboard},
    {fnum::ExecuteProgram, u"C[]L", biExecuteProgram},
    {fnum::GetWindow, u"C[]C[]", biGetWindow},
    {fnum::GetEnvironment, u"C[]*C[]", biGetEnvironment},
    {fnum::SendMessage, u"LLLLL", biSendMessage},
    {fnum::GetScreenHeight, u"", biGetScreenHeight},
    {fnum::GetScreenWidth, u"", biGetScreenWidth},
    {fnum::CreateProcess, u"C[]LL", biCreateProcess},
    {fnum::FindExecutable, u"C[]*C[]", biFindExecutable},
    {fnum::ShellExecute, u"C[]C[]L", biShellExecute},
    {fnum::AbbAppendButton, u"LLLLL", biAbbAppendButton},
    {fnum::AbbDeleteButton, u"LL", biAbbDeleteButton},
    {fnum::AbbDeleteAllButtons, u"L", biAbbDeleteAllButtons},
    {fnum::AbbSetButtonAction, u"LC[]", biAbbSetButtonAction},
    {fnum::AbbSetButtonBitmapFile, u"LC[]", biAbbSetButtonBitmapFile},
    {fnum::AbbSetButtonMacroFile, u"LC[]", biAbbSetButtonMacroFile},
    {fnum::AbbSetButtonSignum, u"LC[]", biAbbSetButtonSignum},
    {fnum::GetWindowClientSize, u"L*L*L", biGetWindowClientSize},
    {fnum::GetCommandLineCount, u"", biGetCommandLineCount},
    {fnum::GetCommandLineParam, u"L*C[]", biGetCommandLineParam},
    {fnum::SendMail, u"C[]C[]C[]C[]C[]C[]C[]L", biSendMail},
    {fnum::AbbSetButtonPopupText, u"LC[]", biAbbSetButtonPopupText},
    {fnum::OpenBrowser, u"C[]L", biOpenBrowser},
    {fnum::ExecuteProgramModal, u"C[]L*L", biExecuteProgramModal},
};

}  // namespace

const DispatchFamily kDesktopFamily = {"desktop", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
