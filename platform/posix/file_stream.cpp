// File streams that behave like the Windows C runtime's for the modes macros
// use (see platform/files.h for the modes and their translations).
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <new>

#include "base/byte_order_mark.h"
#include "base/utf8.h"
#include "platform/files.h"
#include "platform/file_mode.h"
#include "platform/posix/file_share.h"
#include "platform/posix/file_units.h"

namespace mx {

namespace {

OpenError fromErrno(int e) {
    switch (e) {
        case ENOENT:
        case ENOTDIR:
        case ENAMETOOLONG: return OpenError::kNotFound;
        case EACCES:
        case EPERM:
        case EISDIR:
        case EROFS:
        case ETXTBSY: return OpenError::kAccessDenied;
        case EEXIST: return OpenError::kExists;
        case EMFILE:
        case ENFILE: return OpenError::kTooManyOpen;
        default: return OpenError::kOther;
    }
}

// Opens the descriptor; write-only modes ask for reading too, so that the
// sharing records (read locks) can be placed. Returns -1 with errno set.
int openDescriptor(const std::string &name, const FileMode &m, bool *readable) {
    // Non-blocking: opening a FIFO must not wait for a peer (it is refused
    // right after, like every file that is not a regular one).
    int flags = O_CLOEXEC | O_NONBLOCK | (m.create ? O_CREAT : 0) | (m.append ? O_APPEND : 0);
    int fd = open(name.c_str(), flags | (m.write ? O_RDWR : O_RDONLY), 0666);
    if (fd < 0 && m.write && !m.read && errno == EACCES) {
        fd = open(name.c_str(), flags | O_WRONLY, 0666);
        *readable = false;
        return fd;
    }
    *readable = true;
    return fd;
}

Encoding ccsEncoding(Ccs ccs) {
    switch (ccs) {
        case Ccs::kUtf8: return Encoding::kUtf8;
        case Ccs::kNone:
        case Ccs::kUnicode: return Encoding::kBytes;
        default: return Encoding::kUtf16;
    }
}

// A ccs stream: a file created, emptied or found empty gets the mark of the
// encoding; an existing one's mark decides and is skipped.
bool setUpEncoding(MxpFile &f, int64_t size) {
    if (f.mode.ccs == Ccs::kNone) return true;
    if (f.mode.write && (f.mode.truncate || size == 0)) {
        bool utf8 = f.mode.ccs == Ccs::kUtf8;
        f.encoding = utf8 ? Encoding::kUtf8 : Encoding::kUtf16;
        bool put = utf8 ? f.io.put(kUtf8Mark, sizeof kUtf8Mark) : f.io.put(kUtf16leMark, sizeof kUtf16leMark);
        return put && f.io.flush();
    }
    f.encoding = ccsEncoding(f.mode.ccs);
    unsigned char head[3] = {};
    ssize_t n = pread(f.io.fd, head, 3, 0);
    ByteOrderMark mark = bomDetect(head, n > 0 ? size_t(n) : 0);
    if (mark == ByteOrderMark::kUtf8) f.encoding = Encoding::kUtf8;
    else if (mark == ByteOrderMark::kUtf16le) f.encoding = Encoding::kUtf16;
    return lseek(f.io.fd, off_t(bomLength(mark)), SEEK_SET) >= 0;
}

}  // namespace

MxpFile *mxp_FileOpen(const char16_t *path, const char16_t *mode, Share share, OpenError *why) {
    OpenError dummy;
    if (!why) why = &dummy;
    FileMode m = fileModeParse(mode);
    if (!m.valid) return *why = OpenError::kOther, nullptr;
    std::string name = toUtf8(path);
    if (name.empty()) return *why = OpenError::kNotFound, nullptr;
    bool readable = true;
    int fd = openDescriptor(name, m, &readable);
    if (fd < 0) return *why = fromErrno(errno), nullptr;
    struct stat st;
    // Only regular files: a FIFO, a device or a socket would block, never end
    // (/dev/zero) or swallow the data, none of which a macro expects of a file.
    bool ok = fstat(fd, &st) == 0 && S_ISREG(st.st_mode) &&
              fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) & ~O_NONBLOCK) == 0 &&
              (!readable || shareAcquire(fd, m.read, m.write, share));
    if (!ok || (m.truncate && ftruncate(fd, 0) != 0)) {
        close(fd);
        return *why = OpenError::kAccessDenied, nullptr;
    }
    auto *f = new (std::nothrow) MxpFile;
    if (!f) {
        close(fd);
        return *why = OpenError::kOther, nullptr;
    }
    f->io.fd = fd;
    f->mode = m;
    f->writing = m.write && !m.read;
    if (!setUpEncoding(*f, m.truncate ? 0 : int64_t(st.st_size))) {
        mxp_FileClose(f);
        return *why = OpenError::kOther, nullptr;
    }
    *why = OpenError::kNone;
    return f;
}

int32_t mxp_FileClose(MxpFile *file) {
    if (!file) return 0;
    bool ok = mxp_FileFlush(file) == 0 && !file->io.failed;
    ok = close(file->io.fd) == 0 && ok;
    delete file;
    return ok ? 0 : -1;
}

int64_t mxp_FileLength(MxpFile *file) {
    struct stat st;
    if (!file || mxp_FileFlush(file) < 0 || fstat(file->io.fd, &st) != 0) return -1;
    return int64_t(st.st_size);
}

int32_t mxp_FileGetChar(MxpFile *file) {
    if (!file) return -1;
    if (file->mode.text) return fuReadUnit(*file);
    return fuBeginRead(*file) ? file->io.get() : -1;
}

int32_t mxp_FileReadLine(MxpFile *file, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return -1;
    int32_t n = 0;
    while (file && n < capacity - 1) {
        int32_t u = fuReadUnit(*file);
        if (u < 0) break;
        buf[n++] = char16_t(u);
        if (u == '\n') break;
    }
    buf[n] = 0;
    return n > 0 ? n : -1;
}

int32_t mxp_FilePutText(MxpFile *file, const char16_t *text) {
    if (!file) return -1;
    for (const char16_t *p = text; p && *p; ++p)
        if (!fuWriteUnit(*file, *p)) return -1;
    return 0;
}

int32_t mxp_FileFlush(MxpFile *file) {
    if (!file) return -1;
    if (!file->writing) return file->io.failed ? -1 : 0;
    return fuFinishPending(*file) && file->io.flush() ? 0 : -1;
}

int64_t mxp_FileReadBytes(MxpFile *file, void *buf, size_t size) {
    if (!file || !fuBeginRead(*file)) return -1;
    return file->io.read(buf, size);
}

int32_t mxp_FileWriteBytes(MxpFile *file, const void *buf, size_t size) {
    if (!file || !fuBeginWrite(*file)) return -1;
    return file->io.put(buf, size) ? 0 : -1;
}

}  // namespace mx
