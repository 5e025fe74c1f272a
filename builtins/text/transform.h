// Table-driven replacement of a whole text from a transform file.
//
// Transform file format (8-bit text, each byte one character):
//   line := key TAB replacement [TAB ...] [line feed]
// Lines are read 999 characters at a time (a longer line continues as the
// next read). A line is split like GetSubString's lists: runs of TABs
// separate, leading TABs make no field. The replacement runs to the next TAB
// or the end of what was read, so it keeps the line feed unless a TAB
// follows it.
#pragma once
#include <cstdint>

#include "builtins/text/text_in.h"

namespace mx {

// dst = src first; then the file is searched line by line for the key equal
// to src (ordinal). Found: dst = its replacement, result 0. The file missing,
// its end, or a line without a replacement (which ends the search): result
// -1 with dst still equal to src. The file is always closed again.
int32_t txtTransformString(TextIn file, TextIn src, char16_t *dst, int32_t cap);

}  // namespace mx
