#include "builtins/files/file_ops.h"

#include "base/u16.h"
#include "helperlib/kelvane_files.h"
#include "platform/files.h"

namespace mx {

namespace {
constexpr size_t kCopyBlock = 1024;
constexpr int32_t kDeleteNameCapacity = 512;

// Copies blocks until a read gives nothing; false when a block is written short.
bool copyBlocks(MxpFile *from, MxpFile *to) {
    char block[kCopyBlock];
    for (;;) {
        int64_t n = mxp_FileReadBytes(from, block, kCopyBlock);
        if (n <= 0) return true;
        if (mxp_FileWriteBytes(to, block, size_t(n)) != 0) return false;
    }
}
}  // namespace

int32_t foCopyFile(const char16_t *source, const char16_t *dest) {
    MxpFile *from = mxp_FileOpen(source, u"rb", Share::kDenyReadWrite, nullptr);
    if (!from) return 1;
    MxpFile *to = mxp_FileOpen(dest, u"wb", Share::kDenyReadWrite, nullptr);
    if (!to) {
        mxp_FileClose(from);
        return 1;
    }
    bool ok = copyBlocks(from, to);
    ok = mxp_FileClose(to) == 0 && ok;
    mxp_FileClose(from);
    return ok ? 0 : 1;
}

int32_t foRenameFile(const char16_t *oldName, const char16_t *newName) {
    return mxp_FileRename(oldName, newName) == 0 ? 0 : 1;
}

int32_t foDeleteFile(const char16_t *name) {
    char16_t work[kDeleteNameCapacity];
    u16Copy(work, kDeleteNameCapacity, name);
    mxp_FileRemove(work);
    return 0;
}

int32_t foCreateDirectory(const char16_t *path) { return Kelvane_CreateDirectoryChainW(path); }

int32_t foLoadFile(const char16_t *name, char16_t *buf, int32_t capacity, int32_t) {
    return Kelvane_LoadFileToBufferW(name, buf, capacity, 0, 0);
}

int32_t foGetTempFileName(char16_t *buf, int32_t capacity) {
    return CreateTemporaryFileNameW(buf, capacity, u"MX");
}

}  // namespace mx
