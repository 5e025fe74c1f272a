// File streams that behave like the Windows C runtime's for the modes macros
// use. Text mode: one byte per character, CR LF read as LF, a Ctrl-Z ends
// the text, LF written as CR LF, characters above 255 cannot be written.
// Binary mode: bytes as they are.
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

#include "engine/utf8.h"
#include "platform/files.h"

namespace mx {

struct MxpFile {
    FILE *fp;
    bool text;
};

namespace {
OpenError fromErrno(int e) {
    switch (e) {
        case ENOENT:
        case ENOTDIR: return OpenError::kNotFound;
        case EACCES:
        case EPERM:
        case EISDIR: return OpenError::kAccessDenied;
        case EEXIST: return OpenError::kExists;
        case EMFILE:
        case ENFILE: return OpenError::kTooManyOpen;
        default: return OpenError::kOther;
    }
}

// The C mode letters of a runtime mode text ("rt", "a+b, ccs=...").
std::string stdioMode(const char16_t *mode, bool *text) {
    std::string m;
    *text = true;
    for (const char16_t *p = mode; p && *p && *p != u','; ++p) {
        if (*p == u'r' || *p == u'w' || *p == u'a' || *p == u'+') m += char(*p);
        if (*p == u'b') *text = false;
    }
    return m + "b";
}
}  // namespace

MxpFile *mxp_FileOpen(const char16_t *path, const char16_t *mode, Share, OpenError *why) {
    bool text = true;
    std::string m = stdioMode(mode, &text);
    std::string name = toUtf8(path);
    struct stat st;
    if (m[0] == 'r' && stat(name.c_str(), &st) == 0 && S_ISDIR(st.st_mode)) {
        if (why) *why = OpenError::kAccessDenied;
        return nullptr;
    }
    FILE *fp = (m.size() > 1 && !name.empty()) ? std::fopen(name.c_str(), m.c_str()) : nullptr;
    if (!fp) {
        if (why) *why = name.empty() ? OpenError::kNotFound : fromErrno(errno);
        return nullptr;
    }
    if (why) *why = OpenError::kNone;
    return new MxpFile{fp, text};
}

void mxp_FileClose(MxpFile *file) {
    if (!file) return;
    std::fclose(file->fp);
    delete file;
}

int64_t mxp_FileLength(MxpFile *file) {
    struct stat st;
    if (!file || fstat(fileno(file->fp), &st) != 0) return -1;
    return int64_t(st.st_size);
}

int32_t mxp_FileGetChar(MxpFile *file) {
    if (!file) return -1;
    int c = std::fgetc(file->fp);
    if (c == EOF) return -1;
    if (!file->text) return c;
    if (c == 0x1A) {
        std::fseek(file->fp, 0, SEEK_END);
        return -1;
    }
    if (c == '\r') {
        int next = std::fgetc(file->fp);
        if (next == '\n') return '\n';
        if (next != EOF) std::ungetc(next, file->fp);
    }
    return c;
}

int32_t mxp_FilePutText(MxpFile *file, const char16_t *text) {
    if (!file) return -1;
    for (const char16_t *p = text; p && *p; ++p) {
        if (*p > 255) return -1;
        if (file->text && *p == u'\n' && std::fputc('\r', file->fp) == EOF) return -1;
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
