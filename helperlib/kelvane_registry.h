// Helper library: typed registry values. Every function takes the hive
// (RegRoot::kNone selects none: reads give the default, writes fail), the
// key path, two reserved words (pass 0), the value name and the data.
// Texts are stored as text values, longs and colours as 32-bit values;
// writing creates the key and its parents.
#pragma once
#include <cstdint>

#include "platform/registry.h"

namespace mx {

// result = the stored text, or def when there is none, within capacity.
// Returns 1 when a stored text was found, 0 when def was used.
int32_t Kelvane_ReadStringFromRegistryW(RegRoot root, const char16_t *key, int32_t reserved1,
                                        int32_t reserved2, const char16_t *name, const char16_t *def,
                                        char16_t *result, int32_t capacity);

// The stored 32-bit value, or def.
int32_t Kelvane_ReadLongFromRegistryW(RegRoot root, const char16_t *key, int32_t reserved1,
                                      int32_t reserved2, const char16_t *name, int32_t def);

// The stored packed colour (its low 24 bits), or def.
int32_t Kelvane_ReadColorFromRegistryW(RegRoot root, const char16_t *key, int32_t reserved1,
                                       int32_t reserved2, const char16_t *name, int32_t def);

// Store a value. Return 0, or -1 when it cannot be stored.
int32_t Kelvane_WriteStringToRegistryW(RegRoot root, const char16_t *key, int32_t reserved1,
                                       int32_t reserved2, const char16_t *name, const char16_t *value);
int32_t Kelvane_WriteLongToRegistryW(RegRoot root, const char16_t *key, int32_t reserved1,
                                     int32_t reserved2, const char16_t *name, int32_t value);
int32_t Kelvane_WriteColorToRegistryW(RegRoot root, const char16_t *key, int32_t reserved1,
                                      int32_t reserved2, const char16_t *name, int32_t color);

// The current user's text value name of key\subkey, or def, within capacity.
// Returns 1 when a stored text was found, 0 when def was used.
int32_t Kelvane_ReadStringFromHKCUW(const char16_t *key, const char16_t *subkey, const char16_t *name,
                                    const char16_t *def, char16_t *buffer, int32_t capacity);

}  // namespace mx
