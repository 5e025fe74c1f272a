// MakeFilelist and ScanDirectory: names of matching files written to a list
// file by the helper library's directory scan.
#pragma once
#include <cstdint>

namespace mx {

// Writes the files matching wildcard (a directory part, when there is one,
// is where the scan starts; else the current directory) into destFile,
// descending into subdirectories when subdirectories is not 0. Returns 0 on
// success, 1 on failure.
int32_t flMakeFilelist(const char16_t *wildcard, int32_t subdirectories, const char16_t *destFile);

// Writes the files below path matching include and no exclude pattern into
// destFile; flags with bit 0 added when subDirs is not 0 go to the scan.
// Returns the number of names written (0 when none were).
int32_t flScanDirectory(const char16_t *path, const char16_t *include, const char16_t *exclude,
                        const char16_t *destFile, int32_t subDirs, int32_t flags);

}  // namespace mx
