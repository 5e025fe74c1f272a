// The registry built-ins. Root 1 selects the current user's hive, 2 the
// local machine's, anything else none (reads give the default, writes and
// deletions fail).
#pragma once
#include <cstdint>

namespace mx {

// result = the text value, or def when there is none, cut to capacity. Returns 0.
int32_t rgReadString(int32_t root, const char16_t *key, const char16_t *item, const char16_t *def,
                     char16_t *result, int32_t capacity);
// Returns the 32-bit value, or def.
int32_t rgReadInt(int32_t root, const char16_t *key, const char16_t *item, int32_t def);
// Reads a packed colour with the low bytes of *red, *green, *blue as the
// default; stores its low, middle and high byte in them. Returns the colour.
int32_t rgReadColor(int32_t root, const char16_t *key, const char16_t *item, int32_t *red,
                    int32_t *green, int32_t *blue);

// Store a value (a colour packed from the low bytes). Return 0.
int32_t rgWriteString(int32_t root, const char16_t *key, const char16_t *item, const char16_t *value);
int32_t rgWriteInt(int32_t root, const char16_t *key, const char16_t *item, int32_t value);
int32_t rgWriteColor(int32_t root, const char16_t *key, const char16_t *item, int32_t red, int32_t green,
                     int32_t blue);

// Deletes the value item of key: 0, or -1 when the key cannot be opened for
// writing or the value cannot be deleted.
int32_t rgDeleteItem(int32_t root, const char16_t *key, const char16_t *item);
// Deletes key unless it has subkeys. Returns 0 whatever happened.
int32_t rgDeleteKey(int32_t root, const char16_t *key);

// Red + Green * 256 + Blue * 65536 of the low bytes.
inline int32_t rgPackColor(int32_t red, int32_t green, int32_t blue) {
    return (red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16);
}

}  // namespace mx
