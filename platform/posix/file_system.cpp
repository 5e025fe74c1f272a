// The file system operations of platform/files.h on Linux. Like the Windows
// runtime, renaming and deleting refuse files that are open through streams.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstdio>
#include <random>

#include "base/u16.h"
#include "base/utf8.h"
#include "platform/files.h"
#include "platform/posix/file_share.h"

namespace mx {

namespace {

// Runs check on a fresh read-only descriptor of name; false when it cannot be opened.
template <class Check>
bool withDescriptor(const std::string &name, Check check) {
    int fd = open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return false;
    bool result = check(fd);
    close(fd);
    return result;
}

bool openThroughStream(const std::string &name) {
    return withDescriptor(name, [](int fd) { return shareInUse(fd); });
}

bool copyDescriptor(int from, int to) {
    char buf[65536];
    for (;;) {
        ssize_t n = read(from, buf, sizeof buf);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return n == 0;
        for (ssize_t done = 0; done < n;) {
            ssize_t w = write(to, buf + done, size_t(n - done));
            if (w < 0 && errno == EINTR) continue;
            if (w <= 0) return false;
            done += w;
        }
    }
}

// Moves a regular file to another file system: copy to a new file, then
// delete the old one.
int32_t moveAcross(const std::string &from, const std::string &to) {
    struct stat st;
    if (stat(from.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return -1;
    int in = open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0) return -1;
    int out = open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, st.st_mode & 07777);
    bool ok = out >= 0 && copyDescriptor(in, out);
    ok = (out < 0 || close(out) == 0) && ok;
    close(in);
    if (!ok) {
        if (out >= 0) unlink(to.c_str());
        return -1;
    }
    return unlink(from.c_str()) == 0 ? 0 : -1;
}

bool exists(const std::string &name) {
    struct stat st;
    return lstat(name.c_str(), &st) == 0;
}

std::string joinPath(const std::string &dir, const std::string &name) {
    if (dir.empty()) return name;
    return dir.back() == '/' ? dir + name : dir + "/" + name;
}

std::string randomLetters(int n) {
    static const char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    static std::mt19937 gen{std::random_device{}()};
    std::string s;
    for (int i = 0; i < n; ++i) s += kLetters[gen() % (sizeof kLetters - 1)];
    return s;
}

}  // namespace

int32_t mxp_FileRename(const char16_t *oldPath, const char16_t *newPath) {
    std::string from = toUtf8(oldPath), to = toUtf8(newPath);
    if (from.empty() || to.empty() || openThroughStream(from)) return -1;
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno == EXDEV) return exists(to) ? -1 : moveAcross(from, to);
    if (errno != EINVAL && errno != ENOSYS) return -1;
    // A file system without no-replace renames: a hard link never replaces.
    if (link(from.c_str(), to.c_str()) == 0) return unlink(from.c_str()) == 0 ? 0 : -1;
    if (errno != EPERM && errno != EOPNOTSUPP) return -1;
    return exists(to) || rename(from.c_str(), to.c_str()) != 0 ? -1 : 0;
}

int32_t mxp_FileRemove(const char16_t *path) {
    std::string name = toUtf8(path);
    if (name.empty() || openThroughStream(name)) return -1;
    return unlink(name.c_str()) == 0 ? 0 : -1;
}

int32_t mxp_MakeDirectory(const char16_t *path) {
    std::string name = toUtf8(path);
    if (name.empty()) return -1;
    if (mkdir(name.c_str(), 0777) == 0) return 0;
    return errno == EEXIST && mxp_PathKind(path) == PathKind::kDirectory ? 0 : -1;
}

PathKind mxp_PathKind(const char16_t *path) {
    struct stat st;
    std::string name = toUtf8(path);
    if (name.empty() || stat(name.c_str(), &st) != 0) return PathKind::kMissing;
    return S_ISDIR(st.st_mode) ? PathKind::kDirectory : PathKind::kFile;
}

bool mxp_ListDirectory(const char16_t *dir, std::vector<MxpDirEntry> &out) {
    std::string name = toUtf8(dir);
    if (name.empty()) name = ".";
    DIR *d = opendir(name.c_str());
    if (!d) return false;
    out.clear();
    while (dirent *e = readdir(d)) {
        std::string entry = e->d_name;
        if (entry == "." || entry == "..") continue;
        struct stat st;
        bool isDir = fstatat(dirfd(d), e->d_name, &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(st.st_mode);
        out.push_back({fromUtf8(entry), isDir});
    }
    closedir(d);
    std::sort(out.begin(), out.end(),
              [](const MxpDirEntry &a, const MxpDirEntry &b) { return a.name < b.name; });
    return true;
}

int32_t mxp_CreateUniqueFile(const char16_t *dir, const char16_t *prefix, char16_t *buf,
                             int32_t capacity) {
    std::string base = joinPath(toUtf8(dir), toUtf8(prefix));
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name = base + randomLetters(6) + ".tmp";
        int fd = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd < 0 && errno == EEXIST) continue;
        if (fd < 0) return -1;
        close(fd);
        std::u16string full = fromUtf8(name);
        if (int32_t(full.size()) >= capacity) {
            unlink(name.c_str());
            return -1;
        }
        return u16Copy(buf, capacity, full.c_str());
    }
    return -1;
}

bool mxp_FileReplace(const char16_t *path, const void *data, size_t size) {
    std::string name = toUtf8(path);
    if (name.empty()) return false;
    // A symbolic link stays a link: the new file replaces its target. A
    // dangling link is refused rather than replaced by a file of its own.
    struct stat st;
    if (lstat(name.c_str(), &st) == 0 && S_ISLNK(st.st_mode)) {
        char *target = realpath(name.c_str(), nullptr);
        if (!target) return false;
        name = target;
        std::free(target);
    }
    // Only a regular file (or none yet) is replaced: a device, FIFO or
    // directory keeps what it is.
    bool present = stat(name.c_str(), &st) == 0;
    if (present && !S_ISREG(st.st_mode)) return false;
    if (withDescriptor(name, [](int fd) { return shareDenies(fd, false, true); })) return false;
    mode_t mode = present ? st.st_mode & 07777 : 0644;
    std::string temp = name + ".mx-XXXXXX";
    int fd = mkostemp(temp.data(), O_CLOEXEC);
    if (fd < 0) return false;
    const char *p = static_cast<const char *>(data);
    bool ok = true;
    for (size_t done = 0; ok && done < size;) {
        ssize_t w = write(fd, p + done, size - done);
        if (w < 0 && errno == EINTR) continue;
        ok = w > 0;
        done += ok ? size_t(w) : 0;
    }
    ok = ok && fchmod(fd, mode) == 0 && fsync(fd) == 0;
    ok = close(fd) == 0 && ok;
    if (ok && rename(temp.c_str(), name.c_str()) == 0) return true;
    unlink(temp.c_str());
    return false;
}

}  // namespace mx
