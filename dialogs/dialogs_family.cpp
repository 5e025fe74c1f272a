// Dispatch entries of the message, input, list, file and directory dialogs (42-45, 63, 69, 76, 78, 115, 119, 145, 189, 9000, 9001).
#include <new>
#include <string>

#include "dialogs/dialogs.h"
#include "dialogs/dialogs_family.h"
#include "engine/args.h"
#include "engine/function_numbers.h"

namespace mx {

namespace {

int32_t biMessageBox(RunContext &, Value **args, int32_t) {
    return dlgShowMessage(ArgTextZ(args[0]).get(), ArgTextZ(args[1]).get(), argLong(args[2]),
                          argLong(args[3]), false);
}

int32_t biMessageDialog(RunContext &, Value **args, int32_t) {
    return dlgShowMessage(u"", ArgTextZ(args[0]).get(), argLong(args[1]), argLong(args[2]), false);
}

int32_t biSysModalMessageBox(RunContext &, Value **args, int32_t) {
    return dlgShowMessage(ArgTextZ(args[0]).get(), ArgTextZ(args[1]).get(), argLong(args[2]),
                          argLong(args[3]), true);
}

int32_t biAlert(RunContext &, Value **args, int32_t) {
    return dlgShowMessage(u"", ArgTextZ(args[0]).get(), 73, kAnswerOk, true);
}

int32_t biIntDialog(RunContext &ctx, Value **args, int32_t) {
    return dlgIntDialog(ctx, ArgTextZ(args[0]).get(), ArgTextZ(args[1]).get(), argLongRef(args[2]));
}

int32_t biTextDialog(RunContext &ctx, Value **args, int32_t) {
    return dlgInputText(ctx, ArgTextZ(args[0]).get(), ArgTextZ(args[1]).get(), argText(args[2]),
                        argCapacity(args[2]));
}

int32_t biSetDialogPosition(RunContext &ctx, Value **args, int32_t) {
    ctx.dialogX = argLong(args[0]);
    ctx.dialogY = argLong(args[1]);
    return 0;
}

int32_t biSetDialogSize(RunContext &ctx, Value **args, int32_t) {
    ctx.dialogWidth = argLong(args[0]);
    ctx.dialogHeight = argLong(args[1]);
    return 0;
}

// Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Flags, Result, hResult.
int32_t listBox(Value **args, int32_t flags) {
    ArgTextZ title(args[0]), file(args[1]);
    ListBoxRecord r{};
    r.title = title.get();
    r.file = file.get();
    r.x = argLong(args[2]);
    r.y = argLong(args[3]);
    r.width = argLong(args[4]);
    r.height = argLong(args[5]);
    r.scrollWidth = argLong(args[6]);
    r.flags = flags;
    r.first = argText(args[8]);
    r.firstCapacity = argCapacity(args[8]);
    r.second = argText(args[9]);
    r.secondCapacity = argCapacity(args[9]);
    return dlgListBoxDialog(r);
}

int32_t biListBoxDialog(RunContext &, Value **args, int32_t) { return listBox(args, argLong(args[7])); }

int32_t biListDialog(RunContext &, Value **args, int32_t) {
    return listBox(args, dlgListDialogFlags(argLong(args[7]), false));
}

int32_t biListDialogAnsi(RunContext &, Value **args, int32_t) {
    return listBox(args, dlgListDialogFlags(argLong(args[7]), true));
}

int32_t biListViewDialog(RunContext &, Value **args, int32_t) {
    ArgTextZ title(args[0]), file(args[1]), header(args[2]);
    return dlgListViewDialog(title.get(), file.get(), header.get(), argLong(args[3]));
}

int32_t biFilenameDialog(RunContext &, Value **args, int32_t) {
    return dlgFilenameDialog(argText(args[0]), argCapacity(args[0]), argLong(args[1]),
                             ArgTextZ(args[2]).get(), ArgTextZ(args[3]).get());
}

int32_t biDirectoryDialog(RunContext &, Value **args, int32_t) {
    return dlgDirectoryDialog(argText(args[0]), argCapacity(args[0]), ArgTextZ(args[1]).get(),
                              argLong(args[2]));
}

const DispatchEntry kEntries[] = {
    {fnum::MessageBox, u"C[]C[]LL", biMessageBox},
    {fnum::IntDialog, u"C[]C[]*L", biIntDialog},
    {fnum::TextDialog, u"C[]C[]*C[]", biTextDialog},
    {fnum::FilenameDialog, u"*C[]LC[]C[]", biFilenameDialog},
    {fnum::MessageDialog, u"C[]LL", biMessageDialog},
    {fnum::SysModalMessageBox, u"C[]C[]LL", biSysModalMessageBox},
    {fnum::ListBoxDialog, u"C[]C[]LLLLLL*C[]*C[]", biListBoxDialog},
    {fnum::SetDialogPosition, u"LL", biSetDialogPosition},
    {fnum::ListViewDialog, u"C[]C[]C[]L", biListViewDialog},
    {fnum::SetDialogSize, u"LL", biSetDialogSize},
    {fnum::DirectoryDialog, u"*C[]C[]L", biDirectoryDialog},
    {fnum::Alert, u"C[]", biAlert},
    {fnum::ListDialog, u"C[]C[]LLLLLL*C[]*C[]", biListDialog},
    {fnum::ListDialogAnsi, u"C[]C[]LLLLLL*C[]*C[]", biListDialogAnsi},
};

}  // namespace

const DispatchFamily kDialogsFamily = {"dialogs", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
