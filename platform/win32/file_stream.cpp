// File streams of the C runtime with sharing modes; the runtime itself does
// the translations of every mode.
#include <windows.h>
#include <io.h>

#include <cerrno>
#include <cstdio>
#include <cwchar>
#include <share.h>
#include <sys/stat.h>

#include "base/path_surgery.h"
#include "platform/file_mode.h"
#include "platform/files.h"
#include "platform/win32/wide.h"

namespace mx {

struct MxpFile {
    FILE *fp;
    bool wide;  // a ccs= mode: only the wide functions may touch it
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

}  // namespace

MxpFile *mxp_FileOpen(const char16_t *path, const char16_t *mode, Share share, OpenError *why) {
    // One reading of mode texts for both builds: a mode the Linux streams
    // refuse never reaches the runtime here either.
    FileMode m = fileModeParse(mode);
    // A device name never reaches the runtime: opening a port or the
    // console may wait, and only files on a disk are wanted anyway.
    if (psNamesDevice(path)) {
        if (why) *why = OpenError::kAccessDenied;
        return nullptr;
    }
    errno = 0;
    FILE *fp = path && m.valid ? _wfsopen(wide(path), wide(mode), shareFlag(share)) : nullptr;
    if (!fp) {
        if (why) *why = path && m.valid ? fromErrno(errno) : OpenError::kOther;
        return nullptr;
    }
    // Only files on a disk: a device, pipe or console would block, never end
    // or swallow the data, none of which a macro expects of a file.
    if (GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(fp)))) != FILE_TYPE_DISK) {
        std::fclose(fp);
        if (why) *why = OpenError::kAccessDenied;
        return nullptr;
    }
    if (why) *why = OpenError::kNone;
    return new MxpFile{fp, m.ccs != Ccs::kNone};
}

int32_t mxp_FileClose(MxpFile *file) {
    if (!file) return 0;
    bool ok = std::fflush(file->fp) == 0 && !std::ferror(file->fp);
    ok = std::fclose(file->fp) == 0 && ok;
    delete file;
    return ok ? 0 : -1;
}

int64_t mxp_FileLength(MxpFile *file) {
    struct _stat64 st;
    if (!file || std::fflush(file->fp) != 0 || _fstat64(_fileno(file->fp), &st) != 0) return -1;
    return int64_t(st.st_size);
}

int32_t mxp_FileGetChar(MxpFile *file) {
    if (!file) return -1;
    if (file->wide) {
        wint_t c = std::fgetwc(file->fp);
        return c == WEOF ? -1 : int32_t(c);
    }
    int c = std::fgetc(file->fp);
    return c == EOF ? -1 : c;
}

int32_t mxp_FileReadLine(MxpFile *file, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return -1;
    buf[0] = 0;
    if (!file || capacity < 2) return -1;
    wchar_t *w = wide(buf);
    if (!std::fgetws(w, capacity, file->fp)) {
        buf[0] = 0;
        return -1;
    }
    return int32_t(std::wcslen(w));
}

int32_t mxp_FilePutText(MxpFile *file, const char16_t *text) {
    if (!file) return -1;
    if (!text || !*text) return 0;
    int r = std::fputws(wide(text), file->fp);
    return r < 0 || r == int(WEOF) ? -1 : 0;
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
