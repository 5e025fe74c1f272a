// Small helpers of the file built-ins for reading their text arguments.
#pragma once
#include <string>

#include "engine/args.h"

namespace mx {

// Absent, or every character from 1 to 32 (the white-text rule).
inline bool faIsWhite(const char16_t *s) {
    for (; s && *s; ++s)
        if (*s > 32) return false;
    return true;
}

}  // namespace mx
