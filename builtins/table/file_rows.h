// Rows of the file, path, profile and registry functions, in the order of
// their documentation table: English rows first, German rows after them.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kFileRows[] = {
    {u"OpenFile", fnum::OpenFile, u"C[]C[]", u"Filename,Modestring"},
    {u"DateiÖffnen", kDe | fnum::OpenFile, u"C[]C[]", u"Dateiname,ModusText"},
    {u"CloseFile", fnum::CloseFile, u"L", u"Handle"},
    {u"DateiSchließen", kDe | fnum::CloseFile, u"L", u"Handle"},
    {u"ReadFile", fnum::ReadFile, u"L*C[]", u"Handle,Buffer"},
    {u"DateiLesen", kDe | fnum::ReadFile, u"L*C[]", u"Handle,Puffer"},
    {u"WriteFile", fnum::WriteFile, u"LC[]", u"Handle,Buffer"},
    {u"DateiSchreiben", kDe | fnum::WriteFile, u"LC[]", u"Handle,Puffer"},
    {u"CopyFile", fnum::CopyFile, u"C[]C[]", u"Sourcefile,Destfile"},
    {u"DateiKopieren", kDe | fnum::CopyFile, u"C[]C[]", u"Quelldatei,Zieldatei"},
    {u"RenameFile", fnum::RenameFile, u"C[]C[]", u"Oldname,Newname"},
    {u"DateiUmbenennen", kDe | fnum::RenameFile, u"C[]C[]", u"NameAlt,NameNeu"},
    {u"DeleteFile", fnum::DeleteFile, u"C[]", u"Filename"},
    {u"DateiLöschen", kDe | fnum::DeleteFile, u"C[]", u"Dateiname"},
    {u"CreateDirectory", fnum::CreateDirectory, u"C[]", u"Path"},
    {u"LoadFile", fnum::LoadFile, u"C[]*C[]L", u"FileName, Buffer, Flags"},
    {u"GetTempFileName", fnum::GetTempFileName, u"*C[]", u"Ziel"},
    {u"AssembleFilename", fnum::AssembleFilename, u"*C[]C[]C[]C[]", u"Dest,Path,Name,Ext"},
    {u"BildeDateiname", kDe | fnum::AssembleFilename, u"*C[]C[]C[]C[]", u"Ziel,Pfad,Name,Ext"},
    {u"StripExtension", fnum::StripExtension, u"*C[]", u"FilePath"},
    {u"StripPath", fnum::StripPath, u"*C[]", u"FilePath"},
    {u"StripVerzeichnis", kDe | fnum::StripPath, u"*C[]", u"Datei"},
    {u"StripFilename", fnum::StripFilename, u"*C[]", u"FilePath"},
    {u"StripNameUndExtension", kDe | fnum::StripFilename, u"*C[]", u"Datei"},
    {u"LongToShortFilename", fnum::LongToShortFilename, u"C[]*C[]", u"LongFileName, ShortFileName"},
    {u"ReadProfile", fnum::ReadProfile, u"C[]C[]C[]*C[]", u"File,Section,Item,Buffer"},
    {u"IniDateiLesen", kDe | fnum::ReadProfile, u"C[]C[]C[]*C[]", u"Datei,Sektion,Eintrag,Ziel"},
    {u"WriteProfile", fnum::WriteProfile, u"C[]C[]C[]C[]", u"File,Section,Item,Text"},
    {u"IniDateiSchreiben", kDe | fnum::WriteProfile, u"C[]C[]C[]C[]", u"Datei,Sektion,Eintrag,Text"},
    {u"DeleteProfileItem", fnum::DeleteProfileItem, u"C[]C[]C[]", u"File,Section,Item"},
    {u"DeleteProfileSection", fnum::DeleteProfileSection, u"C[]C[]", u"File,Section"},
    {u"ReadStringFromRegistry", fnum::ReadStringFromRegistry, u"LC[]C[]C[]*C[]", u"Root,Key,Item,Default,Result"},
    {u"WriteStringToRegistry", fnum::WriteStringToRegistry, u"LC[]C[]C[]", u"Root,Key,Item,Value"},
    {u"ReadIntFromRegistry", fnum::ReadIntFromRegistry, u"LC[]C[]L", u"Root,Key,Item,Default"},
    {u"WriteIntToRegistry", fnum::WriteIntToRegistry, u"LC[]C[]L", u"Root,Key,Item,Value"},
    {u"ReadColorFromRegistry", fnum::ReadColorFromRegistry, u"LC[]C[]*L*L*L", u"Root,Key,Item,Red,Green,Blue"},
    {u"WriteColorToRegistry", fnum::WriteColorToRegistry, u"LC[]C[]LLL", u"Root,Key,Item,Red,Green,Blue"},
    {u"DeleteRegistryItem", fnum::DeleteRegistryItem, u"LC[]C[]", u"Root,Key,Item"},
    {u"DeleteRegistryKey", fnum::DeleteRegistryKey, u"LC[]", u"Root,Key"},
    {u"GetAppName", fnum::GetAppName, u"*C[]", u"Dest"},
    {u"GibAppName", kDe | fnum::GetAppName, u"*C[]", u"Ziel"},
    {u"GetProgPath", fnum::GetProgPath, u"*C[]", u"Destination"},
    {u"GibProgrammPfad", kDe | fnum::GetProgPath, u"*C[]", u"Ziel"},
    // Four names of one function: two English rows, two German rows.
    {u"GetUserPath", fnum::GetUserPath, u"*C[]", u"Dest"},
    {u"GetWindowsPath", fnum::GetUserPath, u"*C[]", u"Dest"},
    {u"GibBenutzerPfad", kDe | fnum::GetUserPath, u"*C[]", u"Ziel"},
    {u"GibWindowsPfad", kDe | fnum::GetUserPath, u"*C[]", u"Ziel"},
    {u"GetCurrentPath", fnum::GetCurrentPath, u"*C[]", u"Destination"},
    {u"GetModuleVersion", fnum::GetModuleVersion, u"C[]*C[]C[]", u"Module,Result,Format"},
    {u"MakeFilelist", fnum::MakeFilelist, u"C[]LC[]", u"Wildcard,Subdirectories,DestiFilename"},
    {u"ErzeugeDateinamenListe", kDe | fnum::MakeFilelist, u"C[]LC[]", u"Wildcard, Unterverzeichnis,Zieldatei"},
    {u"ScanDirectory", fnum::ScanDirectory, u"C[]C[]C[]C[]LL", u"Path, Include, Exclude, DestFile, SubDirs, Flags"},
};

}  // namespace mx::rows
