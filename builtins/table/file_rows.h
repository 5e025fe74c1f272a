// Rows of the file, path, profile and registry functions, in the order of
// their documentation table: English rows first, German rows after them.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kFileRows[] = {
    {u"OpenFile", 2, u"C[]C[]", u"Filename,Modestring"},
    {u"DateiÖffnen", kDe | 2, u"C[]C[]", u"Dateiname,ModusText"},
    {u"CloseFile", 3, u"L", u"Handle"},
    {u"DateiSchließen", kDe | 3, u"L", u"Handle"},
    {u"ReadFile", 4, u"L*C[]", u"Handle,Buffer"},
    {u"DateiLesen", kDe | 4, u"L*C[]", u"Handle,Puffer"},
    {u"WriteFile", 5, u"LC[]", u"Handle,Buffer"},
    {u"DateiSchreiben", kDe | 5, u"LC[]", u"Handle,Puffer"},
    {u"CopyFile", 1, u"C[]C[]", u"Sourcefile,Destfile"},
    {u"DateiKopieren", kDe | 1, u"C[]C[]", u"Quelldatei,Zieldatei"},
    {u"RenameFile", 6, u"C[]C[]", u"Oldname,Newname"},
    {u"DateiUmbenennen", kDe | 6, u"C[]C[]", u"NameAlt,NameNeu"},
    {u"DeleteFile", 7, u"C[]", u"Filename"},
    {u"DateiLöschen", kDe | 7, u"C[]", u"Dateiname"},
    {u"CreateDirectory", 9, u"C[]", u"Path"},
    {u"LoadFile", 152, u"C[]*C[]L", u"FileName, Buffer, Flags"},
    {u"GetTempFileName", 123, u"*C[]", u"Ziel"},
    {u"AssembleFilename", 46, u"*C[]C[]C[]C[]", u"Dest,Path,Name,Ext"},
    {u"BildeDateiname", kDe | 46, u"*C[]C[]C[]C[]", u"Ziel,Pfad,Name,Ext"},
    {u"StripExtension", 47, u"*C[]", u"FilePath"},
    {u"StripPath", 48, u"*C[]", u"FilePath"},
    {u"StripVerzeichnis", kDe | 48, u"*C[]", u"Datei"},
    {u"StripFilename", 49, u"*C[]", u"FilePath"},
    {u"StripNameUndExtension", kDe | 49, u"*C[]", u"Datei"},
    {u"LongToShortFilename", 187, u"C[]*C[]", u"LongFileName, ShortFileName"},
    {u"ReadProfile", 57, u"C[]C[]C[]*C[]", u"File,Section,Item,Buffer"},
    {u"IniDateiLesen", kDe | 57, u"C[]C[]C[]*C[]", u"Datei,Sektion,Eintrag,Ziel"},
    {u"WriteProfile", 58, u"C[]C[]C[]C[]", u"File,Section,Item,Text"},
    {u"IniDateiSchreiben", kDe | 58, u"C[]C[]C[]C[]", u"Datei,Sektion,Eintrag,Text"},
    {u"DeleteProfileItem", 167, u"C[]C[]C[]", u"File,Section,Item"},
    {u"DeleteProfileSection", 168, u"C[]C[]", u"File,Section"},
    {u"ReadStringFromRegistry", 105, u"LC[]C[]C[]*C[]", u"Root,Key,Item,Default,Result"},
    {u"WriteStringToRegistry", 106, u"LC[]C[]C[]", u"Root,Key,Item,Value"},
    {u"ReadIntFromRegistry", 136, u"LC[]C[]L", u"Root,Key,Item,Default"},
    {u"WriteIntToRegistry", 137, u"LC[]C[]L", u"Root,Key,Item,Value"},
    {u"ReadColorFromRegistry", 162, u"LC[]C[]*L*L*L", u"Root,Key,Item,Red,Green,Blue"},
    {u"WriteColorToRegistry", 163, u"LC[]C[]LLL", u"Root,Key,Item,Red,Green,Blue"},
    {u"DeleteRegistryItem", 169, u"LC[]C[]", u"Root,Key,Item"},
    {u"DeleteRegistryKey", 170, u"LC[]", u"Root,Key"},
    {u"GetAppName", 59, u"*C[]", u"Dest"},
    {u"GibAppName", kDe | 59, u"*C[]", u"Ziel"},
    {u"GetProgPath", 80, u"*C[]", u"Destination"},
    {u"GibProgrammPfad", kDe | 80, u"*C[]", u"Ziel"},
    // Four names of one function: two English rows, two German rows.
    {u"GetUserPath", 60, u"*C[]", u"Dest"},
    {u"GetWindowsPath", 60, u"*C[]", u"Dest"},
    {u"GibBenutzerPfad", kDe | 60, u"*C[]", u"Ziel"},
    {u"GibWindowsPfad", kDe | 60, u"*C[]", u"Ziel"},
    {u"GetCurrentPath", 141, u"*C[]", u"Destination"},
    {u"GetModuleVersion", 147, u"C[]*C[]C[]", u"Module,Result,Format"},
    {u"MakeFilelist", 73, u"C[]LC[]", u"Wildcard,Subdirectories,DestiFilename"},
    {u"ErzeugeDateinamenListe", kDe | 73, u"C[]LC[]", u"Wildcard, Unterverzeichnis,Zieldatei"},
    {u"ScanDirectory", 112, u"C[]C[]C[]C[]LL", u"Path, Include, Exclude, DestFile, SubDirs, Flags"},
};

}  // namespace mx::rows
