// The registry: keys under the current user's and the local machine's hive
// holding text values and 32-bit values. Key paths are separated by
// backslashes; names compare without case; a key name has at most 255
// characters (a path with a longer one names no key that could exist).
//
// On Linux each hive is a small file-backed store (see docs/files.md):
// $MORVIX_REGISTRY_DIR/HKEY_CURRENT_USER.reg and .../HKEY_LOCAL_MACHINE.reg
// when that variable is set; otherwise the current user's hive lives in the
// Windows directory's stand-in (platform/paths.h) under "registry" and the
// local machine's in /etc/morvix/registry. Changes are written to a
// temporary file that is renamed over the store, under a lock, so
// concurrent writers never corrupt it or lose each other's changes.
#pragma once
#include <cstdint>
#include <string>

namespace mx {

// A hive; kNone selects none, and every operation on it fails.
enum class RegRoot : int32_t { kNone = 0, kCurrentUser = 1, kLocalMachine = 2 };

// The hive a macro's Root long selects: 1 the current user's, 2 the local
// machine's, anything else none.
inline RegRoot regRootOf(int32_t root) {
    return root == 1 ? RegRoot::kCurrentUser : root == 2 ? RegRoot::kLocalMachine : RegRoot::kNone;
}

// The text value name of key (empty name: the key's default value). False
// when the key, the value or a text of that name is missing.
bool mxp_RegReadString(RegRoot root, const char16_t *key, const char16_t *name, std::u16string *out);

// The 32-bit value name of key. False when it is missing or not 32-bit.
bool mxp_RegReadDword(RegRoot root, const char16_t *key, const char16_t *name, uint32_t *out);

// Stores a text or 32-bit value, creating the key and its parents. False
// on failure.
bool mxp_RegWriteString(RegRoot root, const char16_t *key, const char16_t *name, const char16_t *value);
bool mxp_RegWriteDword(RegRoot root, const char16_t *key, const char16_t *name, uint32_t value);

// Deletes the value name of key: 0, or -1 when the key cannot be opened for
// writing or the value cannot be deleted (also when it is missing).
int32_t mxp_RegDeleteValue(RegRoot root, const char16_t *key, const char16_t *name);

// Deletes key with its values: 0, or -1 when it is missing, has subkeys or
// cannot be deleted.
int32_t mxp_RegDeleteKey(RegRoot root, const char16_t *key);

}  // namespace mx
