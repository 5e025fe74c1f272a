// File streams of the C runtime with sharing modes.
#include <cerrno>
#include <cstdio>
#include <share.h>
#include <sys/stat.h>

#include "platform/files.h"

namespace mx {

struct MxpFile {
    FILE *fp;
    bool text;
};

namespace {
OpenError fromErrno(int e) {
    switch (e) {
        case ENOENT: return OpenError::kNotFound;
        case EACCES: return OpenError::kAccessDenied;
        case EEXIST: return OpenError::kExists;
        case EMFILE: return OpenError::kTooManyOpen;
        default: return OpenError::kOther;
    }
}

int shareFlag(Share share) {
    switch (share) {
        case Share::kDenyNone: return _SH_DENYNO;
        case Share::kDenyWrite: return _SH_DENYWR;
        default: return _SH_DENYRW;
    }
}

bool isTextMode(const char16_t *mode) {
    for (const char16_t *p = mode; p && *p && *p != u','; ++p)
        if (*p == u'b') return false;
    return true;
}
}  // namespace

MxpFile *mxp_FileOpen(const char16_t *path, const char16_t *mode, Share share, OpenError *why) {
    errno = 0;
    FILE *fp = _wfsopen(reinterpret_cast<const wchar_t *>(path), reinterpret_cast<const wchar_t *>(mode),
                        shareFlag(share));
    if (!fp) {
        if (why) *why = fromErrno(errno);
        return nullptr;
    }
    if (why) *why = OpenError::kNone;
    return new MxpFile{fp, isTextMode(mode)};
}

void mxp_FileClose(MxpFile *file) {
    if (!file) return;
    std::fclose(file->fp);
    delete file;
}

int64_t mxp_FileLength(MxpFile *file) {
    struct _stat64 st;
    if (!file || _fstat64(_fileno(file->fp), &st) != 0) return -1;
    return int64_t(st.st_size);
}

int32_t mxp_FileGetChar(MxpFile *file) {
    if (!file) return -1;
    int c = std::fgetc(file->fp);
    return c == EOF ? -1 : c;
}

int32_t mxp_FilePutText(MxpFile *file, const char16_t *text) {
    if (!file) return -1;
    for (const char16_t *p = text; p && *p; ++p) {
        if (*p > 255) return -1;
        if (std::fputc(int(*p), file->fp) == EOF) return -1;
    }
    return 0;
}

int32_t mxp_FileFlush(MxpFile *file) { return file && std::fflush(file->fp) == 0 ? 0 : -1; }

int64_t mxp_FileReadBytes(MxpFile *file, void *buf, size_t size) {
    if (!file) return -1;
    size_t n = std::fread(buf, 1, size, file->fp);
    return std::ferror(file->fp) ? -1 : int64_t(n);
}

int32_t mxp_FileWriteBytes(MxpFile *file, const void *buf, size_t size) {
    if (!file) return -1;
    return std::fwrite(buf, 1, size, file->fp) == size ? 0 : -1;
}

}  // namespace mx
