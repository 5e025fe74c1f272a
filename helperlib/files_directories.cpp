// Helper library: directory chains and temporary files.
#include "base/u16.h"
#include "helperlib/kelvane_files.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <string>

namespace mx {

namespace {
constexpr int32_t kTempDirCapacity = 4096;

bool isSeparator(char16_t c) { return c == u'/' || c == mxp_PathSeparator(); }
}  // namespace

int32_t Kelvane_CreateDirectoryChainW(const char16_t *path) {
    if (!path || !*path) return -1;
    // Every prefix that ends before a separator is tried; prefixes that are
    // no directory to create (a drive, the root) just fail.
    std::u16string prefix;
    for (const char16_t *p = path; *p; ++p) {
        if (isSeparator(*p) && !prefix.empty()) mxp_MakeDirectory(prefix.c_str());
        prefix += *p;
    }
    mxp_MakeDirectory(path);
    return mxp_PathKind(path) == PathKind::kDirectory ? 0 : -1;
}

int32_t CreateTemporaryFileNameW(char16_t *dest, int32_t capacity, const char16_t *prefix) {
    if (!dest || capacity < 1) return -1;
    char16_t dir[kTempDirCapacity];
    mxp_TempDirectory(dir, kTempDirCapacity);
    if (mxp_CreateUniqueFile(dir, prefix ? prefix : u"", dest, capacity) < 0) {
        dest[0] = 0;
        return -1;
    }
    return 0;
}

}  // namespace mx
