// The code pages of XML files and their conversions of our own: 28605
// (ISO-8859-15), 28591 (ISO-8859-1), 1252 (WINDOWS-1252) and 65001 (UTF-8).
// The three 8-bit code pages agree with ASCII below 0x80; their upper halves
// are tables. A character that a code page cannot hold becomes "?" (the
// Windows conversion may first choose a best-fit character: see docs/xml.md).
#pragma once
#include <cstdint>

namespace mx {

enum : uint32_t {
    kCodePageIso8859_15 = 28605,
    kCodePageIso8859_1 = 28591,
    kCodePageWindows1252 = 1252,
    kCodePageUtf8 = 65001,
};

// Converts n > 0 units of text to the code page ("?" for a character it
// cannot hold, U+FFFD in UTF-8 for an unpaired surrogate). With capacity 0
// only counts: returns the number of bytes needed. Otherwise writes at most
// capacity bytes to out (not terminated) and returns the number written.
// Returns 0 for an unknown code page, n < 1 or a capacity too small.
int32_t cpWideToBytes(uint32_t codePage, const char16_t *text, int32_t n, char *out, int32_t capacity);

// Converts n > 0 bytes of the code page to UTF-16; each invalid UTF-8
// sequence becomes one U+FFFD. Capacity 0 counts the units needed; otherwise
// writes at most capacity units (not terminated) and returns the number
// written. Returns 0 for an unknown code page, n < 1 or a capacity too small.
int32_t cpBytesToWide(uint32_t codePage, const char *bytes, int32_t n, char16_t *out, int32_t capacity);

}  // namespace mx
