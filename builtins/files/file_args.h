// Small helpers of the file built-ins for reading their text arguments.
#pragma once
#include <string>

#include "engine/args.h"

namespace mx {

// The text of a C[] argument, bounded by its capacity: a vector whose
// elements hold no terminator still gives a terminated text.
inline std::u16string faText(Value *v) {
    const char16_t *p = argText(v);
    int32_t capacity = argCapacity(v), n = 0;
    while (p && n < capacity && p[n]) ++n;
    return std::u16string(p ? p : u"", size_t(n));
}

}  // namespace mx
