// Loading a macro into the run's text buffer, normalised on the way in:
// line comments removed, quotes closed at line ends, and a memory macro
// wrapped into a header and a block.
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

// Loads the file named by the first word of the macro command, or else the
// memory macro; neither is a success without text. Returns 0, or -1 with the
// error set.
int32_t ldLoad(RunContext &ctx);

// Frees the text and clears the text fields. Safe without text.
void ldRelease(RunContext &ctx);

// The DOS code page to Latin-1 table for the German letters.
char16_t ldOemToAnsi(char16_t c);

}  // namespace mx
