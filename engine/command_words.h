// Words of a macro command: blank-separated, a double quote toggles a quoted
// stretch in which blanks do not separate, quotes are not part of a word, a
// run of blanks separates once. Word 0 is the macro file, words 1... its
// parameters.
#pragma once
#include <cstdint>

namespace mx {

// Copies word n of command into buf (at most capacity - 1 units, the rest
// dropped). Returns true when word n exists; otherwise buf holds the last
// word that exists and the result is false. n below 0 changes nothing.
bool commandWord(const char16_t *command, int32_t n, char16_t *buf, int32_t capacity);

}  // namespace mx
