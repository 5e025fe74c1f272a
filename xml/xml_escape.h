// Escaping of encoded text values for the writer: XML's markup characters,
// the grave accent, control bytes and runs of spaces become hexadecimal
// character references.
#pragma once
#include <cstdint>

namespace mx::xml {

// Option of EscapeText: drop every CR instead of writing a reference.
constexpr int32_t kEscapeDropCR = 16;

// True for the bytes written unchanged: 0x20-0x21, 0x23-0x25, 0x27-0x3B,
// 0x3D, 0x3F-0x5F and 0x61-0xFF.
bool IsPlainByte(unsigned char c);

// Output size that always holds the escaped form of n bytes.
constexpr int64_t EscapedCapacity(int64_t n) { return 8 * n + 8; }

// Escapes n bytes into out (at most size - 1 bytes, then a zero byte) and
// returns the length written. A space after the start or after another
// space becomes "&#x20;"; every byte that is not plain becomes "&#x%02X;".
int32_t EscapeText(const char *bytes, int32_t n, char *out, int32_t size, int32_t options);

}  // namespace mx::xml
