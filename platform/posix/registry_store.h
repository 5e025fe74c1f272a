// The content of one file-backed registry hive and its text form.
//
// Store file grammar (UTF-8, one item per line, LF line ends):
//   store  = "MORVIX-REGISTRY 1" LF { key LF { value LF } }
//   key    = "[" path "]"                    path: names joined by "\"
//   value  = ("s " name "=" text) | ("d " name "=" decimal)
// In path, name and text the characters %, =, ], CR and LF are written as
// "%" and two hex digits. Lines that fit no rule are skipped.
#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace mx {

struct RegValue {
    std::u16string name;
    bool isDword = false;
    std::u16string text;
    uint32_t dword = 0;
};

struct RegKey {
    std::u16string path;  // canonical: no empty names, no outer backslashes
    std::vector<RegValue> values;
};

// A key exists when it is listed or when a listed key lies below it: the
// parents of a key are implied, so a path of n characters costs a line of n
// characters, not one line per parent.
struct RegistryStore {
    std::vector<RegKey> keys;  // listed keys, in file order

    // Reads a store file's text (see the grammar above); never fails.
    static RegistryStore parse(const std::string &utf8);
    // The store's text; parse(serialize()) gives the same store.
    std::string serialize() const;

    // The listed key, or absent (a key that only its subkeys imply has no
    // values). Paths are canonicalised and compared without case.
    RegKey *find(const std::u16string &path);
    // The key, listed now if it was not; its parents are implied.
    RegKey &create(const std::u16string &path);
    // The value of a key, or absent.
    static RegValue *findValue(RegKey &key, const std::u16string &name);
    // True when some key lies below path.
    bool hasSubkeys(const std::u16string &path) const;
    // Removes the key; false when it is missing or has subkeys. Its parent
    // stays (listed now if only this key implied it).
    bool removeKey(const std::u16string &path);

    // "a\\\\b\\" and "\\a\\b" both give "a\\b".
    static std::u16string canonical(const std::u16string &path);
    // True when every name of the path has at most 255 characters (longer
    // key names cannot exist).
    static bool validPath(const std::u16string &path);

private:
    // Listed keys by their folded canonical path (the first of equal ones),
    // sorted, so a key's subkeys follow it as one run.
    std::map<std::u16string, size_t> byPath_;

    void list(RegKey key);
    void reindex();
};

}  // namespace mx
