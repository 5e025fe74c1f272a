#include "builtins/files/file_lists.h"

#include <cstring>
#include <string>

#include "base/utf8.h"
#include "helperlib/kelvane_files.h"
#include "platform/paths.h"

namespace mx {

namespace {
// A scan record with all its 428 bytes zero.
KelvaneScanRecord zeroedScan() {
    KelvaneScanRecord scan;
    std::memset(&scan, 0, sizeof scan);
    return scan;
}
}  // namespace

int32_t flMakeFilelist(const char16_t *wildcard, int32_t subdirectories, const char16_t *destFile) {
    std::string dir = mxp_ToAnsi(wildcard), pattern = dir;
    Kelvane_StripFileNameA(dir.data());
    Kelvane_StripPathA(pattern.data());
    std::string list = toUtf8(destFile);
    KelvaneScanRecord scan = zeroedScan();
    scan.fields.include = pattern.c_str();
    scan.fields.startDir = dir.c_str();
    scan.fields.listFile = list.c_str();
    scan.fields.flags = subdirectories ? 1 : 0;
    return Kelvane_ScanDirectory(&scan) == 1 ? 0 : 1;
}

int32_t flScanDirectory(const char16_t *path, const char16_t *include, const char16_t *exclude,
                        const char16_t *destFile, int32_t subDirs, int32_t flags) {
    std::string in = mxp_ToAnsi(include), out = mxp_ToAnsi(exclude);
    std::string start = toUtf8(path), list = toUtf8(destFile);
    KelvaneScanRecord scan = zeroedScan();
    scan.fields.include = in.c_str();
    scan.fields.exclude = out.c_str();
    scan.fields.startDir = start.c_str();
    scan.fields.startDirUtf8 = 1;
    scan.fields.listFile = list.c_str();
    scan.fields.flags = uint32_t(flags) | (subDirs ? 1u : 0u);
    Kelvane_ScanDirectory(&scan);
    return scan.fields.count;
}

}  // namespace mx
