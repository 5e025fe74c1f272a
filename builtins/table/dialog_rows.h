// Rows of the modal dialogs: message and input dialogs, list dialogs, file,
// directory, rich-text and form dialogs; English row first, German after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kDialogRows[] = {
    // Message and input dialogs.
    {u"MessageBox", fnum::MessageBox, u"C[]C[]LL", u"Title, Text, Icon, Buttons"},
    {u"NachrichtBox", kDe | fnum::MessageBox, u"C[]C[]LL", u"Titel, Text, Ikone, Buttons"},
    {u"MessageDialog", fnum::MessageDialog, u"C[]LL", u"Text, Icon, Buttons"},
    {u"NachrichtDialog", kDe | fnum::MessageDialog, u"C[]LL", u"Text, Ikone, Buttons"},
    {u"SysModalMessageBox", fnum::SysModalMessageBox, u"C[]C[]LL", u"Title, Text, Icon, Buttons"},
    {u"Alert", fnum::Alert, u"C[]", u"Text"},
    {u"IntDialog", fnum::IntDialog, u"C[]C[]*L", u"Title, Text, Result"},
    {u"GanzzahlDialog", kDe | fnum::IntDialog, u"C[]C[]*L", u"Titel, Text, Ergebnis"},
    {u"TextDialog", fnum::TextDialog, u"C[]C[]*C[]", u"Title, Text, Result"},
    // All three names carry the flag, the English ones included.
    {u"SetDialogPosition", kDe | fnum::SetDialogPosition, u"LL", u"Left, Top"},
    {u"InputDialogPosition", kDe | fnum::SetDialogPosition, u"LL", u"Left, Top"},
    {u"EingabeDialogPosition", kDe | fnum::SetDialogPosition, u"LL", u"Links, Oben"},
    {u"SetDialogSize", kDe | fnum::SetDialogSize, u"LL", u"Width, Height"},

    // List dialogs; every row of functions 9000 and 9001 carries the flag.
    {u"ListBoxDialog", fnum::ListBoxDialog, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Flags, Result, hResult"},
    {u"ListDialog", kDe | fnum::ListDialog, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListDialogMultiSelect", kDe | fnum::ListDialog, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListenDialog", kDe | fnum::ListDialog, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListenDialogMultiSelect", kDe | fnum::ListDialog, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListDialogAnsi", kDe | fnum::ListDialogAnsi, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListDialogAnsiMultiSelect", kDe | fnum::ListDialogAnsi, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListenDialogAnsi", kDe | fnum::ListDialogAnsi, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListenDialogAnsiMultiSelect", kDe | fnum::ListDialogAnsi, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListViewDialog", fnum::ListViewDialog, u"C[]C[]C[]L", u"Title, Header, File, Flags"},

    // File, directory, rich-text and form dialogs.
    {u"FilenameDialog", fnum::FilenameDialog, u"*C[]LC[]C[]", u"Filename, Mode, Title, Filter"},
    {u"DateinameDialog", kDe | fnum::FilenameDialog, u"*C[]LC[]C[]", u"Datei, Mode, Titel, Filter"},
    {u"DirectoryDialog", fnum::DirectoryDialog, u"*C[]C[]L", u"Path, Title, Flags"},
    {u"FormDialog", fnum::FormDialog, u"C[]C[]C[]LLLL", u"Form, Destfile, Title, Height, Width, Mode, Flags"},
    // Without implementation: it takes its arguments and yields 0.
    {u"RtfDialog", fnum::RtfDialog, u"C[]C[]LLLLL", u"RTF-File,Title,Col,Line,Width,Height,Zoom"},
};

}  // namespace mx::rows
