// Profile (INI) files with the Windows semantics macros rely on: section and
// entry names compared without case, values trimmed of blanks and of one
// pair of surrounding quotes, a missing entry gives the default, an absent
// section or entry lists the names instead, separated by zero units and
// ended by two. A file name without any directory separator names a file in
// the Windows directory (on Linux its stand-in, see platform/paths.h).
#pragma once
#include <cstdint>

namespace mx {

// The value of entry key in section of file, or def (absent: empty) when
// there is none, cut to capacity - 1 units and terminated. An absent section
// lists the section names, an absent key the entry names of the section;
// a list cut short ends with two zero units. Returns the number of units
// stored without the final terminator (for a cut value capacity - 1, for a
// cut list capacity - 2). Reads the file only.
int32_t mxp_ProfileRead(const char16_t *file, const char16_t *section, const char16_t *key,
                        const char16_t *def, char16_t *buf, int32_t capacity);

// Stores value as entry key of section, creating the file and the section
// when missing. An absent value deletes the entry, an absent key the whole
// section. Returns non-zero on success, 0 when the file cannot be read or
// written.
int32_t mxp_ProfileWrite(const char16_t *file, const char16_t *section, const char16_t *key,
                         const char16_t *value);

}  // namespace mx
