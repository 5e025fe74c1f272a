// Rows of the modal dialogs: message and input dialogs, list dialogs, file,
// directory, rich-text and form dialogs; English row first, German after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kDialogRows[] = {
    // Message and input dialogs.
    {u"MessageBox", 42, u"C[]C[]LL", u"Title, Text, Icon, Buttons"},
    {u"NachrichtBox", kDe | 42, u"C[]C[]LL", u"Titel, Text, Ikone, Buttons"},
    {u"MessageDialog", 63, u"C[]LL", u"Text, Icon, Buttons"},
    {u"NachrichtDialog", kDe | 63, u"C[]LL", u"Text, Ikone, Buttons"},
    {u"SysModalMessageBox", 69, u"C[]C[]LL", u"Title, Text, Icon, Buttons"},
    {u"Alert", 189, u"C[]", u"Text"},
    {u"IntDialog", 43, u"C[]C[]*L", u"Title, Text, Result"},
    {u"GanzzahlDialog", kDe | 43, u"C[]C[]*L", u"Titel, Text, Ergebnis"},
    {u"TextDialog", 44, u"C[]C[]*C[]", u"Title, Text, Result"},
    // All three names carry the flag, the English ones included.
    {u"SetDialogPosition", kDe | 78, u"LL", u"Left, Top"},
    {u"InputDialogPosition", kDe | 78, u"LL", u"Left, Top"},
    {u"EingabeDialogPosition", kDe | 78, u"LL", u"Links, Oben"},
    {u"SetDialogSize", kDe | 119, u"LL", u"Width, Height"},

    // List dialogs; every row of functions 9000 and 9001 carries the flag.
    {u"ListBoxDialog", 76, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Flags, Result, hResult"},
    {u"ListDialog", kDe | 9000, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListDialogMultiSelect", kDe | 9000, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListenDialog", kDe | 9000, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListenDialogMultiSelect", kDe | 9000, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
    {u"ListDialogAnsi", kDe | 9001, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListDialogAnsiMultiSelect", kDe | 9001, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListenDialogAnsi", kDe | 9001, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListenDialogAnsiMultiSelect", kDe | 9001, u"C[]C[]LLLLLL*C[]*C[]",
     u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
    {u"ListViewDialog", 115, u"C[]C[]C[]L", u"Title, Header, File, Flags"},

    // File, directory, rich-text and form dialogs.
    {u"FilenameDialog", 45, u"*C[]LC[]C[]", u"Filename, Mode, Title, Filter"},
    {u"DateinameDialog", kDe | 45, u"*C[]LC[]C[]", u"Datei, Mode, Titel, Filter"},
    {u"DirectoryDialog", 145, u"*C[]C[]L", u"Path, Title, Flags"},
    {u"FormDialog", 131, u"C[]C[]C[]LLLL", u"Form, Destfile, Title, Height, Width, Mode, Flags"},
    // Without implementation: it takes its arguments and yields 0.
    {u"RtfDialog", 94, u"C[]C[]LLLLL", u"RTF-File,Title,Col,Line,Width,Height,Zoom"},
};

}  // namespace mx::rows
