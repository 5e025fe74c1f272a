// Windows-like sharing between opens of one file, built on Linux open file
// description locks: within the process and between processes that use these
// streams. Advisory: other programs are not held back.
#pragma once

#include "platform/files.h"

namespace mx {

// Records that fd (a fresh open of a regular file, open for reading) reads
// and/or writes the file and denies others what share says. Fails (false,
// nothing recorded) when this open conflicts with one recorded earlier on the
// same file; the records vanish when fd is closed. On a file system without
// these locks nothing is recorded and every open succeeds.
bool shareAcquire(int fd, bool read, bool write, Share share);

// True when some other open of the file behind fd denies reading (read) or
// writing (write) to newcomers.
bool shareDenies(int fd, bool read, bool write);

// True when some other open of the file behind fd has recorded an access
// (the Windows runtime refuses to rename or delete an open file).
bool shareInUse(int fd);

}  // namespace mx
