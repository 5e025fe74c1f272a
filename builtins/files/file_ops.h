// Whole-file operations: copying, renaming, deleting, directory chains,
// loading a file into a text and temporary file names.
#pragma once
#include <cstdint>

namespace mx {

// Copies source byte for byte onto dest (created or emptied), both opened
// exclusively, in blocks of 1024 bytes. Returns 0, or 1 when either cannot
// be opened (a missing source creates nothing) or a block is written short.
int32_t foCopyFile(const char16_t *source, const char16_t *dest);

// Renames or moves a file. Returns 0, or 1 when it fails (also when newName
// exists: nothing is overwritten).
int32_t foRenameFile(const char16_t *oldName, const char16_t *newName);

// Deletes the file named by the first 511 characters of name. Returns 0
// whatever happened.
int32_t foDeleteFile(const char16_t *name);

// Creates the directory and its missing parents: 0, or -1 on failure.
int32_t foCreateDirectory(const char16_t *path);

// buf = the file's text (see Kelvane_LoadFileToBufferW); flags are not used.
// Returns the number of units stored, or -1 when the file cannot be read.
int32_t foLoadFile(const char16_t *name, char16_t *buf, int32_t capacity, int32_t flags);

// buf = the name of a new empty temporary file starting with "MX". Returns
// 0, or -1 (buf empty) on failure.
int32_t foGetTempFileName(char16_t *buf, int32_t capacity);

}  // namespace mx
