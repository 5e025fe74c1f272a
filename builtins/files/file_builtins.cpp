// Dispatch entries of the files built-ins: each reads its arguments as its
// signature hands them over and calls the plain implementation.
#include "engine/args.h"
#include "engine/function_numbers.h"
#include "builtins/families.h"
#include "builtins/files/file_args.h"
#include "builtins/files/file_lists.h"
#include "builtins/files/file_ops.h"
#include "builtins/files/modules.h"
#include "base/path_surgery.h"
#include "builtins/files/profiles.h"
#include "builtins/files/registry_access.h"
#include "builtins/files/streams.h"

namespace mx {

namespace {

using A = Value **;

// ---- streams and whole files ---------------------------------------------------

// 2 OpenFile C[]C[]
int32_t openFile(RunContext &ctx, A a, int32_t) {
    return fsOpenFile(ctx, faText(a[0]).c_str(), faText(a[1]).c_str());
}
// 3 CloseFile L
int32_t closeFile(RunContext &ctx, A a, int32_t) { return fsCloseFile(ctx, argLong(a[0])); }
// 4 ReadFile L*C[]
int32_t readFile(RunContext &ctx, A a, int32_t) {
    return fsReadFile(ctx, argLong(a[0]), argText(a[1]), argCapacity(a[1]));
}
// 5 WriteFile LC[]
int32_t writeFile(RunContext &ctx, A a, int32_t) {
    return fsWriteFile(ctx, argLong(a[0]), faText(a[1]).c_str());
}
// 1 CopyFile C[]C[]
int32_t copyFile(RunContext &, A a, int32_t) {
    return foCopyFile(faText(a[0]).c_str(), faText(a[1]).c_str());
}
// 6 RenameFile C[]C[]
int32_t renameFile(RunContext &, A a, int32_t) {
    return foRenameFile(faText(a[0]).c_str(), faText(a[1]).c_str());
}
// 7 DeleteFile C[]
int32_t deleteFile(RunContext &, A a, int32_t) { return foDeleteFile(faText(a[0]).c_str()); }
// 9 CreateDirectory C[]
int32_t createDirectory(RunContext &, A a, int32_t) { return foCreateDirectory(faText(a[0]).c_str()); }
// 152 LoadFile C[]*C[]L
int32_t loadFile(RunContext &, A a, int32_t) {
    return foLoadFile(faText(a[0]).c_str(), argText(a[1]), argCapacity(a[1]), argLong(a[2]));
}
// 123 GetTempFileName *C[]
int32_t getTempFileName(RunContext &, A a, int32_t) {
    return foGetTempFileName(argText(a[0]), argCapacity(a[0]));
}

// ---- path surgery ----------------------------------------------------------------

// 46 AssembleFilename *C[]C[]C[]C[]
int32_t assembleFilename(RunContext &, A a, int32_t) {
    return psAssembleFilename(argText(a[0]), argCapacity(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str(),
                              faText(a[3]).c_str());
}
// 47 StripExtension, 48 StripPath, 49 StripFilename *C[]
int32_t stripExtension(RunContext &, A a, int32_t) {
    return psStripExtensionIn(argText(a[0]), argCapacity(a[0]));
}
int32_t stripPath(RunContext &, A a, int32_t) { return psStripPathIn(argText(a[0]), argCapacity(a[0])); }
int32_t stripFilename(RunContext &, A a, int32_t) {
    return psStripFilenameIn(argText(a[0]), argCapacity(a[0]));
}

// ---- profiles --------------------------------------------------------------------

// 57 ReadProfile C[]C[]C[]*C[]
int32_t readProfile(RunContext &ctx, A a, int32_t) {
    return pfReadProfile(ctx.hostInstance, faText(a[0]).c_str(), faText(a[1]).c_str(), faText(a[2]).c_str(),
                         argText(a[3]), argCapacity(a[3]));
}
// 58 WriteProfile C[]C[]C[]C[]
int32_t writeProfile(RunContext &ctx, A a, int32_t) {
    return pfWriteProfile(ctx.hostInstance, faText(a[0]).c_str(), faText(a[1]).c_str(), faText(a[2]).c_str(),
                          faText(a[3]).c_str());
}
// 167 DeleteProfileItem C[]C[]C[]
int32_t deleteProfileItem(RunContext &, A a, int32_t) {
    return pfDeleteProfileItem(faText(a[0]).c_str(), faText(a[1]).c_str(), faText(a[2]).c_str());
}
// 168 DeleteProfileSection C[]C[]
int32_t deleteProfileSection(RunContext &, A a, int32_t) {
    return pfDeleteProfileSection(faText(a[0]).c_str(), faText(a[1]).c_str());
}

// ---- registry --------------------------------------------------------------------

// 105 ReadStringFromRegistry LC[]C[]C[]*C[]
int32_t readStringFromRegistry(RunContext &, A a, int32_t) {
    return rgReadString(argLong(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str(), faText(a[3]).c_str(),
                        argText(a[4]), argCapacity(a[4]));
}
// 106 WriteStringToRegistry LC[]C[]C[]
int32_t writeStringToRegistry(RunContext &, A a, int32_t) {
    return rgWriteString(argLong(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str(), faText(a[3]).c_str());
}
// 136 ReadIntFromRegistry LC[]C[]L
int32_t readIntFromRegistry(RunContext &, A a, int32_t) {
    return rgReadInt(argLong(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str(), argLong(a[3]));
}
// 137 WriteIntToRegistry LC[]C[]L
int32_t writeIntToRegistry(RunContext &, A a, int32_t) {
    return rgWriteInt(argLong(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str(), argLong(a[3]));
}
// 162 ReadColorFromRegistry LC[]C[]*L*L*L
int32_t readColorFromRegistry(RunContext &, A a, int32_t) {
    return rgReadColor(argLong(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str(), argLongRef(a[3]),
                       argLongRef(a[4]), argLongRef(a[5]));
}
// 163 WriteColorToRegistry LC[]C[]LLL
int32_t writeColorToRegistry(RunContext &, A a, int32_t) {
    return rgWriteColor(argLong(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str(), argLong(a[3]),
                        argLong(a[4]), argLong(a[5]));
}
// 169 DeleteRegistryItem LC[]C[]
int32_t deleteRegistryItem(RunContext &, A a, int32_t) {
    return rgDeleteItem(argLong(a[0]), faText(a[1]).c_str(), faText(a[2]).c_str());
}
// 170 DeleteRegistryKey LC[]
int32_t deleteRegistryKey(RunContext &, A a, int32_t) {
    return rgDeleteKey(argLong(a[0]), faText(a[1]).c_str());
}

// ---- modules and directories -------------------------------------------------------

// 59 GetAppName, 80 GetProgPath, 60 GetWindowsPath, 141 GetCurrentPath *C[]
int32_t getAppName(RunContext &ctx, A a, int32_t) {
    return mdGetAppName(ctx.hostInstance, argText(a[0]), argCapacity(a[0]));
}
int32_t getProgPath(RunContext &ctx, A a, int32_t) {
    return mdGetProgPath(ctx.hostInstance, argText(a[0]), argCapacity(a[0]));
}
int32_t getWindowsPath(RunContext &, A a, int32_t) {
    return mdGetWindowsPath(argText(a[0]), argCapacity(a[0]));
}
int32_t getCurrentPath(RunContext &, A a, int32_t) {
    return mdGetCurrentPath(argText(a[0]), argCapacity(a[0]));
}
// 187 LongToShortFilename C[]*C[]
int32_t longToShortFilename(RunContext &, A a, int32_t) {
    return mdLongToShortFilename(faText(a[0]).c_str(), argText(a[1]), argCapacity(a[1]));
}
// 147 GetModuleVersion C[]*C[]C[]
int32_t getModuleVersion(RunContext &, A a, int32_t) {
    return mdGetModuleVersion(faText(a[0]).c_str(), argText(a[1]), argCapacity(a[1]), faText(a[2]).c_str());
}

// ---- file lists ----------------------------------------------------------------

// 73 MakeFilelist C[]LC[]
int32_t makeFilelist(RunContext &, A a, int32_t) {
    return flMakeFilelist(faText(a[0]).c_str(), argLong(a[1]), faText(a[2]).c_str());
}
// 112 ScanDirectory C[]C[]C[]C[]LL
int32_t scanDirectory(RunContext &, A a, int32_t) {
    return flScanDirectory(faText(a[0]).c_str(), faText(a[1]).c_str(), faText(a[2]).c_str(),
                           faText(a[3]).c_str(), argLong(a[4]), argLong(a[5]));
}

const DispatchEntry kEntries[] = {
    {fnum::CopyFile, copyFile},           {fnum::OpenFile, openFile},
    {fnum::CloseFile, closeFile},          {fnum::ReadFile, readFile},
    {fnum::WriteFile, writeFile},          {fnum::RenameFile, renameFile},
    {fnum::DeleteFile, deleteFile},         {fnum::CreateDirectory, createDirectory},
    {fnum::AssembleFilename, assembleFilename},  {fnum::StripExtension, stripExtension},
    {fnum::StripPath, stripPath},         {fnum::StripFilename, stripFilename},
    {fnum::ReadProfile, readProfile},       {fnum::WriteProfile, writeProfile},
    {fnum::GetAppName, getAppName},        {fnum::GetUserPath, getWindowsPath},
    {fnum::MakeFilelist, makeFilelist},      {fnum::GetProgPath, getProgPath},
    {fnum::ReadStringFromRegistry, readStringFromRegistry}, {fnum::WriteStringToRegistry, writeStringToRegistry},
    {fnum::ScanDirectory, scanDirectory},    {fnum::GetTempFileName, getTempFileName},
    {fnum::ReadIntFromRegistry, readIntFromRegistry},    {fnum::WriteIntToRegistry, writeIntToRegistry},
    {fnum::GetCurrentPath, getCurrentPath},   {fnum::GetModuleVersion, getModuleVersion},
    {fnum::LoadFile, loadFile},         {fnum::ReadColorFromRegistry, readColorFromRegistry},
    {fnum::WriteColorToRegistry, writeColorToRegistry},   {fnum::DeleteProfileItem, deleteProfileItem},
    {fnum::DeleteProfileSection, deleteProfileSection},   {fnum::DeleteRegistryItem, deleteRegistryItem},
    {fnum::DeleteRegistryKey, deleteRegistryKey},      {fnum::LongToShortFilename, longToShortFilename},
};

}  // namespace

const DispatchFamily kFileFamily = {"files", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
