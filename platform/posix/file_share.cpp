// Each open records its access and its denials as shared locks on marker
// bytes far beyond any real data; a conflicting open shows as another open's
// lock on a marker this one must not meet. An exclusive whole-file flock held
// for the moment of test and record makes the two one step.
#include "platform/posix/file_share.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace mx {

namespace {

constexpr off_t kMarkerBase = off_t(1) << 62;
enum Marker : off_t { kReads = 0, kWrites = 1, kDeniesRead = 2, kDeniesWrite = 3 };
constexpr off_t kMarkers[] = {kReads, kWrites, kDeniesRead, kDeniesWrite};

int lockCmd(int fd, int cmd, short type, off_t marker, struct flock *out = nullptr) {
    struct flock fl {};
    fl.l_type = type;
    fl.l_whence = SEEK_SET;
    fl.l_start = kMarkerBase + marker;
    fl.l_len = 1;
    int r;
    do r = fcntl(fd, cmd, &fl);
    while (r < 0 && errno == EINTR);
    if (out) *out = fl;
    return r;
}

// True when another open holds a lock on the marker. A file system without
// these locks holds none.
bool heldByOther(int fd, off_t marker) {
    struct flock fl {};
    return lockCmd(fd, F_OFD_GETLK, F_WRLCK, marker, &fl) == 0 && fl.l_type != F_UNLCK;
}

// Places the marker; false only when another open's lock prevents it.
bool mark(int fd, off_t marker) {
    return lockCmd(fd, F_OFD_SETLK, F_RDLCK, marker) == 0 || (errno != EAGAIN && errno != EACCES);
}

void unmarkAll(int fd) {
    for (off_t m : kMarkers) lockCmd(fd, F_OFD_SETLK, F_UNLCK, m);
}

bool conflicts(int fd, bool read, bool write, bool denyRead, bool denyWrite) {
    return (read && heldByOther(fd, kDeniesRead)) || (write && heldByOther(fd, kDeniesWrite)) ||
           (denyRead && heldByOther(fd, kReads)) || (denyWrite && heldByOther(fd, kWrites));
}

bool guard(int fd, int op) {
    int r;
    do r = flock(fd, op);
    while (r < 0 && errno == EINTR);
    return r == 0;
}

}  // namespace

bool shareAcquire(int fd, bool read, bool write, Share share) {
    bool denyWrite = share != Share::kDenyNone;
    bool denyRead = share == Share::kDenyReadWrite;
    bool guarded = guard(fd, LOCK_EX);
    bool ok = !conflicts(fd, read, write, denyRead, denyWrite) && (!read || mark(fd, kReads)) &&
              (!write || mark(fd, kWrites)) && (!denyRead || mark(fd, kDeniesRead)) &&
              (!denyWrite || mark(fd, kDeniesWrite));
    if (!ok) unmarkAll(fd);
    if (guarded) guard(fd, LOCK_UN);
    return ok;
}

bool shareDenies(int fd, bool read, bool write) { return conflicts(fd, read, write, false, false); }

bool shareInUse(int fd) { return heldByOther(fd, kReads) || heldByOther(fd, kWrites); }

}  // namespace mx
