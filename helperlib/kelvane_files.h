// Helper library: directory chains, temporary files, whole-file loading,
// directory scans and 8-bit path cutting.
#pragma once
#include <cstdint>

namespace mx {

// Creates the directory path and every missing parent. Returns 0 when it
// exists afterwards (also when it existed before), -1 otherwise.
int32_t Kelvane_CreateDirectoryChainW(const char16_t *path);

// Creates a new empty file in the temporary directory whose name starts with
// prefix and never names an existing file, and stores its full name in dest
// within capacity. Returns 0, or -1 (dest empty, nothing created) when no
// file can be created or its name does not fit.
int32_t CreateTemporaryFileNameW(char16_t *dest, int32_t capacity, const char16_t *prefix);

// Reads the whole file into buffer within capacity (at most capacity - 1
// units, terminated): UTF-8 or UTF-16LE when it starts with that byte-order
// mark (the mark is not stored), else 8-bit text with one unit per byte.
// Line breaks stay as they are. Returns the number of units stored, or -1
// (buffer untouched) when the file cannot be read. The reserved words are
// not used.
int32_t Kelvane_LoadFileToBufferW(const char16_t *file, char16_t *buffer, int32_t capacity,
                                  int32_t reserved1, int32_t reserved2);

// The scan record of Kelvane_ScanDirectory: 428 bytes (on every build, so
// it is packed to 4-byte alignment), zeroed by the caller before it sets the
// fields it uses.
#pragma pack(push, 4)
struct KelvaneScanFields {
    uint32_t flags;          // bit 0: descend into subdirectories
    int32_t startDirUtf8;    // non-zero: startDir is UTF-8, else ANSI
    int32_t reserved;
    int32_t count;           // set by the scan: the number of names written
    const char *include;     // ANSI patterns separated by ';' (absent or empty: all files)
    const char *exclude;     // ANSI patterns separated by ';', or absent
    const char *startDir;    // absent or empty: the current directory
    const char *listFile;    // UTF-8 name of the list file
};
constexpr int32_t kScanRecordSize = 428;
union KelvaneScanRecord {
    KelvaneScanFields fields;
    unsigned char raw[kScanRecordSize];
};
#pragma pack(pop)
static_assert(sizeof(KelvaneScanRecord) == kScanRecordSize, "the scan record has 428 bytes");

// Writes the full names of the files below the start directory whose names
// match an include pattern and no exclude pattern into the list file, UTF-8,
// one per line ended by the platform's line break; a directory's files come
// sorted by name before its subdirectories. Patterns use '*' and '?' and
// compare as the platform's file names do. Sets the count field. Returns 1,
// or 0 when the start directory cannot be read or the list file cannot be
// written (no list file is created for an unreadable start directory).
int32_t Kelvane_ScanDirectory(KelvaneScanRecord *scan);

// Keeps only the directory part of an 8-bit path, in place, by the rule of
// the StripFilename built-in. Returns the new length.
int32_t Kelvane_StripFileNameA(char *path);

// Keeps only the part after the last backslash, slash or colon, in place.
// Returns the new length.
int32_t Kelvane_StripPathA(char *path);

}  // namespace mx
