// Helper library: the error box of the XML functions.
#pragma once
#include <cstdint>

namespace mx {

// Shows a modal error box for a negative engine result code of the XML
// engine ("XML-Fehler" with a German text for the code, the code itself and
// text, for example the file name, when one is given). The first, fourth and
// fifth arguments are reserved (0). Returns what the box answered (1 for OK,
// 0 when no box could be shown); callers do not rely on it.
int32_t Kelvane_XmlCtlErrorBoxW(int32_t reserved1, int32_t code, const char16_t *text,
                                int32_t reserved2, int32_t reserved3);

}  // namespace mx
