// Dispatch entries of the files built-ins: each reads its arguments as its
// signature hands them over and calls the plain implementation.
#include "engine/args.h"
#include "engine/function_numbers.h"
#include "builtins/families.h"
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
int32_t biOpenFile(RunContext &ctx, A a, int32_t) {
    return fsOpenFile(ctx, argString(a[0]).c_str(), argString(a[1]).c_str());
}
// 3 CloseFile L
int32_t biCloseFile(RunContext &ctx, A a, int32_t) { return fsCloseFile(ctx, argLong(a[0])); }
// 4 ReadFile L*C[]
int32_t biReadFile(RunContext &ctx, A a, int32_t) {
    return fsReadFile(ctx, argLong(a[0]), argText(a[1]), argCapacity(a[1]));
}
// 5 WriteFile LC[]
int32_t biWriteFile(RunContext &ctx, A a, int32_t) {
    return fsWriteFile(ctx, argLong(a[0]), argString(a[1]).c_str());
}
// 1 CopyFile C[]C[]
int32_t biCopyFile(RunContext &, A a, int32_t) {
    return foCopyFile(argString(a[0]).c_str(), argString(a[1]).c_str());
}
// 6 RenameFile C[]C[]
int32_t biRenameFile(RunContext &, A a, int32_t) {
    return foRenameFile(argString(a[0]).c_str(), argString(a[1]).c_str());
}
// 7 DeleteFile C[]
int32_t biDeleteFile(RunContext &, A a, int32_t) { return foDeleteFile(argString(a[0]).c_str()); }
// 9 CreateDirectory C[]
int32_t biCreateDirectory(RunContext &, A a, int32_t) { return foCreateDirectory(argString(a[0]).c_str()); }
// 152 LoadFile C[]*C[]L
int32_t biLoadFile(RunContext &, A a, int32_t) {
    return foLoadFile(argString(a[0]).c_str(), argText(a[1]), argCapacity(a[1]), argLong(a[2]));
}
// 123 GetTempFileName *C[]
int32_t biGetTempFileName(RunContext &, A a, int32_t) {
    return foGetTempFileName(argText(a[0]), argCapacity(a[0]));
}

// ---- path surgery ----------------------------------------------------------------

// 46 AssembleFilename *C[]C[]C[]C[]
int32_t biAssembleFilename(RunContext &, A a, int32_t) {
    return psAssembleFilename(argText(a[0]), argCapacity(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str(),
                              argString(a[3]).c_str());
}
// 47 StripExtension, 48 StripPath, 49 StripFilename *C[]
int32_t biStripExtension(RunContext &, A a, int32_t) {
    return psStripExtensionIn(argText(a[0]), argCapacity(a[0]));
}
int32_t biStripPath(RunContext &, A a, int32_t) { return psStripPathIn(argText(a[0]), argCapacity(a[0])); }
int32_t biStripFilename(RunContext &, A a, int32_t) {
    return psStripFilenameIn(argText(a[0]), argCapacity(a[0]));
}

// ---- profiles --------------------------------------------------------------------

// 57 ReadProfile C[]C[]C[]*C[]
int32_t biReadProfile(RunContext &ctx, A a, int32_t) {
    return pfReadProfile(ctx.hostInstance, argString(a[0]).c_str(), argString(a[1]).c_str(), argString(a[2]).c_str(),
                         argText(a[3]), argCapacity(a[3]));
}
// 58 WriteProfile C[]C[]C[]C[]
int32_t biWriteProfile(RunContext &ctx, A a, int32_t) {
    return pfWriteProfile(ctx.hostInstance, argString(a[0]).c_str(), argString(a[1]).c_str(), argString(a[2]).c_str(),
                          argString(a[3]).c_str());
}
// 167 DeleteProfileItem C[]C[]C[]
int32_t biDeleteProfileItem(RunContext &, A a, int32_t) {
    return pfDeleteProfileItem(argString(a[0]).c_str(), argString(a[1]).c_str(), argString(a[2]).c_str());
}
// 168 DeleteProfileSection C[]C[]
int32_t biDeleteProfileSection(RunContext &, A a, int32_t) {
    return pfDeleteProfileSection(argString(a[0]).c_str(), argString(a[1]).c_str());
}

// ---- registry --------------------------------------------------------------------

// 105 ReadStringFromRegistry LC[]C[]C[]*C[]
int32_t biReadStringFromRegistry(RunContext &, A a, int32_t) {
    return rgReadString(argLong(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str(), argString(a[3]).c_str(),
                        argText(a[4]), argCapacity(a[4]));
}
// 106 WriteStringToRegistry LC[]C[]C[]
int32_t biWriteStringToRegistry(RunContext &, A a, int32_t) {
    return rgWriteString(argLong(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str(), argString(a[3]).c_str());
}
// 136 ReadIntFromRegistry LC[]C[]L
int32_t biReadIntFromRegistry(RunContext &, A a, int32_t) {
    return rgReadInt(argLong(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str(), argLong(a[3]));
}
// 137 WriteIntToRegistry LC[]C[]L
int32_t biWriteIntToRegistry(RunContext &, A a, int32_t) {
    return rgWriteInt(argLong(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str(), argLong(a[3]));
}
// 162 ReadColorFromRegistry LC[]C[]*L*L*L
int32_t biReadColorFromRegistry(RunContext &, A a, int32_t) {
    return rgReadColor(argLong(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str(), argLongRef(a[3]),
                       argLongRef(a[4]), argLongRef(a[5]));
}
// 163 WriteColorToRegistry LC[]C[]LLL
int32_t biWriteColorToRegistry(RunContext &, A a, int32_t) {
    return rgWriteColor(argLong(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str(), argLong(a[3]),
                        argLong(a[4]), argLong(a[5]));
}
// 169 DeleteRegistryItem LC[]C[]
int32_t biDeleteRegistryItem(RunContext &, A a, int32_t) {
    return rgDeleteItem(argLong(a[0]), argString(a[1]).c_str(), argString(a[2]).c_str());
}
// 170 DeleteRegistryKey LC[]
int32_t biDeleteRegistryKey(RunContext &, A a, int32_t) {
    return rgDeleteKey(argLong(a[0]), argString(a[1]).c_str());
}

// ---- modules and directories -------------------------------------------------------

// 59 GetAppName, 80 GetProgPath, 60 GetUserPath (GetWindowsPath), 141 GetCurrentPath *C[]
int32_t biGetAppName(RunContext &ctx, A a, int32_t) {
    return mdGetAppName(ctx.hostInstance, argText(a[0]), argCapacity(a[0]));
}
int32_t biGetProgPath(RunContext &ctx, A a, int32_t) {
    return mdGetProgPath(ctx.hostInstance, argText(a[0]), argCapacity(a[0]));
}
int32_t biGetUserPath(RunContext &, A a, int32_t) {
    return mdGetUserPath(argText(a[0]), argCapacity(a[0]));
}
int32_t biGetCurrentPath(RunContext &, A a, int32_t) {
    return mdGetCurrentPath(argText(a[0]), argCapacity(a[0]));
}
// 187 LongToShortFilename C[]*C[]
int32_t biLongToShortFilename(RunContext &, A a, int32_t) {
    return mdLongToShortFilename(argString(a[0]).c_str(), argText(a[1]), argCapacity(a[1]));
}
// 147 GetModuleVersion C[]*C[]C[]
int32_t biGetModuleVersion(RunContext &, A a, int32_t) {
    return mdGetModuleVersion(argString(a[0]).c_str(), argText(a[1]), argCapacity(a[1]), argString(a[2]).c_str());
}

// ---- file lists ----------------------------------------------------------------

// 73 MakeFilelist C[]LC[]
int32_t biMakeFilelist(RunContext &, A a, int32_t) {
    return flMakeFilelist(argString(a[0]).c_str(), argLong(a[1]), argString(a[2]).c_str());
}
// 112 ScanDirectory C[]C[]C[]C[]LL
int32_t biScanDirectory(RunContext &, A a, int32_t) {
    return flScanDirectory(argString(a[0]).c_str(), argString(a[1]).c_str(), argString(a[2]).c_str(),
                           argString(a[3]).c_str(), argLong(a[4]), argLong(a[5]));
}

const DispatchEntry kEntries[] = {
    {fnum::CopyFile, u"C[]C[]", biCopyFile},
    {fnum::OpenFile, u"C[]C[]", biOpenFile},
    {fnum::CloseFile, u"L", biCloseFile},
    {fnum::ReadFile, u"L*C[]", biReadFile},
    {fnum::WriteFile, u"LC[]", biWriteFile},
    {fnum::RenameFile, u"C[]C[]", biRenameFile},
    {fnum::DeleteFile, u"C[]", biDeleteFile},
    {fnum::CreateDirectory, u"C[]", biCreateDirectory},
    {fnum::AssembleFilename, u"*C[]C[]C[]C[]", biAssembleFilename},
    {fnum::StripExtension, u"*C[]", biStripExtension},
    {fnum::StripPath, u"*C[]", biStripPath},
    {fnum::StripFilename, u"*C[]", biStripFilename},
    {fnum::ReadProfile, u"C[]C[]C[]*C[]", biReadProfile},
    {fnum::WriteProfile, u"C[]C[]C[]C[]", biWriteProfile},
    {fnum::GetAppName, u"*C[]", biGetAppName},
    {fnum::GetUserPath, u"*C[]", biGetUserPath},
    {fnum::MakeFilelist, u"C[]LC[]", biMakeFilelist},
    {fnum::GetProgPath, u"*C[]", biGetProgPath},
    {fnum::ReadStringFromRegistry, u"LC[]C[]C[]*C[]", biReadStringFromRegistry},
    {fnum::WriteStringToRegistry, u"LC[]C[]C[]", biWriteStringToRegistry},
    {fnum::ScanDirectory, u"C[]C[]C[]C[]LL", biScanDirectory},
    {fnum::GetTempFileName, u"*C[]", biGetTempFileName},
    {fnum::ReadIntFromRegistry, u"LC[]C[]L", biReadIntFromRegistry},
    {fnum::WriteIntToRegistry, u"LC[]C[]L", biWriteIntToRegistry},
    {fnum::GetCurrentPath, u"*C[]", biGetCurrentPath},
    {fnum::GetModuleVersion, u"C[]*C[]C[]", biGetModuleVersion},
    {fnum::LoadFile, u"C[]*C[]L", biLoadFile},
    {fnum::ReadColorFromRegistry, u"LC[]C[]*L*L*L", biReadColorFromRegistry},
    {fnum::WriteColorToRegistry, u"LC[]C[]LLL", biWriteColorToRegistry},
    {fnum::DeleteProfileItem, u"C[]C[]C[]", biDeleteProfileItem},
    {fnum::DeleteProfileSection, u"C[]C[]", biDeleteProfileSection},
    {fnum::DeleteRegistryItem, u"LC[]C[]", biDeleteRegistryItem},
    {fnum::DeleteRegistryKey, u"LC[]", biDeleteRegistryKey},
    {fnum::LongToShortFilename, u"C[]*C[]", biLongToShortFilename},
};

}  // namespace

const DispatchFamily kFileFamily = {"files", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
