// The registry on Linux: one store file per hive (see platform/registry.h).
// Readers read the file as it is; writers hold an exclusive lock on a lock
// file beside it while they read, change and replace the store.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>

#include "base/utf8.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/posix/registry_store.h"
#include "platform/registry.h"

namespace mx {

namespace {

constexpr int32_t kPathCapacity = 4096;

std::string storeDirectory(RegRoot root) {
    const char *env = std::getenv("MORVIX_REGISTRY_DIR");
    if (env && *env) return env;
    if (root == RegRoot::kLocalMachine) return "/etc/morvix/registry";
    char16_t dir[kPathCapacity];
    mxp_WindowsDirectory(dir, kPathCapacity);
    return toUtf8(dir) + "/registry";
}

std::string storePath(RegRoot root) {
    const char *file = root == RegRoot::kCurrentUser ? "HKEY_CURRENT_USER.reg" : "HKEY_LOCAL_MACHINE.reg";
    return storeDirectory(root) + "/" + file;
}

bool makeDirectories(const std::string &dir) {
    for (size_t i = 1; i <= dir.size(); ++i)
        if (i == dir.size() || dir[i] == '/') mxp_MakeDirectory(fromUtf8(dir.substr(0, i)).c_str());
    return mxp_PathKind(fromUtf8(dir).c_str()) == PathKind::kDirectory;
}

// The store as it is; a missing file is an empty store.
RegistryStore load(RegRoot root) {
    std::u16string path = fromUtf8(storePath(root));
    MxpFile *f = mxp_FileOpen(path.c_str(), u"rb", Share::kDenyNone, nullptr);
    std::string bytes;
    char chunk[4096];
    int64_t n;
    while (f && (n = mxp_FileReadBytes(f, chunk, sizeof chunk)) > 0) bytes.append(chunk, size_t(n));
    mxp_FileClose(f);
    return RegistryStore::parse(bytes);
}

// Runs change on the store under the writers' lock and saves it when change
// answers true. Returns change's answer, false when the store cannot be
// locked or saved. Only a change that may create something creates the
// store's directory.
template <class Change>
bool update(RegRoot root, const char16_t *key, bool creates, Change change) {
    if (root == RegRoot::kNone || !RegistryStore::validPath(key ? key : u"")) return false;
    std::string dir = storeDirectory(root);
    if (creates ? !makeDirectories(dir) : mxp_PathKind(fromUtf8(dir).c_str()) != PathKind::kDirectory)
        return false;
    std::string lockName = storePath(root) + ".lock";
    int lock = open(lockName.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (lock < 0) return false;
    bool ok = flock(lock, LOCK_EX) == 0;
    if (ok) {
        RegistryStore store = load(root);
        ok = change(store);
        std::string bytes = store.serialize();
        ok = ok && mxp_FileReplace(fromUtf8(storePath(root)).c_str(), bytes.data(), bytes.size());
    }
    close(lock);
    return ok;
}

// The value of a key in the store as it is now, or absent.
template <class Use>
bool withValue(RegRoot root, const char16_t *key, const char16_t *name, Use use) {
    if (root == RegRoot::kNone || !RegistryStore::validPath(key ? key : u"")) return false;
    RegistryStore store = load(root);
    RegKey *k = store.find(key ? key : u"");
    RegValue *v = k ? RegistryStore::findValue(*k, name ? name : u"") : nullptr;
    return v && use(*v);
}

bool setValue(RegRoot root, const char16_t *key, const RegValue &value) {
    return update(root, key, true, [&](RegistryStore &s) {
        RegKey &k = s.create(key ? key : u"");
        RegValue *v = RegistryStore::findValue(k, value.name);
        if (v) *v = RegValue{v->name, value.isDword, value.text, value.dword};
        else k.values.push_back(value);
        return true;
    });
}

}  // namespace

bool mxp_RegReadString(RegRoot root, const char16_t *key, const char16_t *name, std::u16string *out) {
    return withValue(root, key, name, [&](const RegValue &v) {
        if (v.isDword) return false;
        *out = v.text;
        return true;
    });
}

bool mxp_RegReadDword(RegRoot root, const char16_t *key, const char16_t *name, uint32_t *out) {
    return withValue(root, key, name, [&](const RegValue &v) {
        if (!v.isDword) return false;
        *out = v.dword;
        return true;
    });
}

bool mxp_RegWriteString(RegRoot root, const char16_t *key, const char16_t *name, const char16_t *value) {
    return setValue(root, key, RegValue{name ? name : u"", false, value ? value : u"", 0});
}

bool mxp_RegWriteDword(RegRoot root, const char16_t *key, const char16_t *name, uint32_t value) {
    return setValue(root, key, RegValue{name ? name : u"", true, u"", value});
}

int32_t mxp_RegDeleteValue(RegRoot root, const char16_t *key, const char16_t *name) {
    bool ok = update(root, key, false, [&](RegistryStore &s) {
        RegKey *k = s.find(key ? key : u"");
        RegValue *v = k ? RegistryStore::findValue(*k, name ? name : u"") : nullptr;
        if (!v) return false;
        k->values.erase(k->values.begin() + (v - k->values.data()));
        return true;
    });
    return ok ? 0 : -1;
}

int32_t mxp_RegDeleteKey(RegRoot root, const char16_t *key) {
    bool ok = update(root, key, false, [&](RegistryStore &s) { return s.removeKey(key ? key : u""); });
    return ok ? 0 : -1;
}

}  // namespace mx
