// The state of an open stream on Linux and the translation of its units
// (see platform/files.h for what each mode does).
#pragma once
#include <cstdint>

#include "platform/posix/byte_stream.h"
#include "platform/file_mode.h"

namespace mx {

// How text-mode units are stored in the file.
enum class Encoding { kBytes, kUtf8, kUtf16 };

struct MxpFile {
    ByteStream io;
    FileMode mode;
    Encoding encoding = Encoding::kBytes;
    bool writing = false;     // the last transfer was a write
    bool stopped = false;     // a Ctrl-Z ended the text
    char16_t pendingLow = 0;  // second half of a pair read as UTF-8
    char16_t pendingHigh = 0; // first half of a pair to be written as UTF-8
};

// Prepare a transfer in the stream's current direction, switching it when
// needed. False when the stream does not allow it or has ended (Ctrl-Z).
bool fuBeginRead(MxpFile &f);
bool fuBeginWrite(MxpFile &f);

// The next unit as the mode translates it; -1 at the end or on error.
int32_t fuReadUnit(MxpFile &f);

// Writes one unit as the mode translates it; false when it cannot be written.
bool fuWriteUnit(MxpFile &f, char16_t u);

// Writes what a half surrogate pair left pending (as U+FFFD); false on error.
bool fuFinishPending(MxpFile &f);

}  // namespace mx
