// The C runtime's mode texts, read into what a stream needs to know
// (the grammar is in platform/files.h).
#pragma once

namespace mx {

// The encoding a ccs= suffix asks for.
enum class Ccs { kNone, kUtf8, kUtf16, kUnicode };

struct FileMode {
    bool valid = false;
    bool read = false;
    bool write = false;
    bool append = false;    // every write goes to the end
    bool create = false;    // a missing file is created
    bool truncate = false;  // the file is emptied
    bool text = true;
    Ccs ccs = Ccs::kNone;
};

// Reads a mode text; the result's valid is false for an invalid one.
FileMode fileModeParse(const char16_t *mode);

}  // namespace mx
