#include "platform/posix/byte_stream.h"

#include <unistd.h>

#include <cerrno>
#include <new>
#include <cstring>

namespace mx {

// Makes at least need bytes available after inPos_ unless the file ends.
bool ByteStream::fill(size_t need) {
    if (inLen_ - inPos_ >= need) return true;
    std::memmove(in_, in_ + inPos_, inLen_ - inPos_);
    inLen_ -= inPos_;
    inPos_ = 0;
    while (inLen_ < need) {
        ssize_t n = ::read(fd, in_ + inLen_, kSize - inLen_);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) failed = true;
        if (n <= 0) return false;
        inLen_ += size_t(n);
    }
    return true;
}

int32_t ByteStream::peek(size_t ahead) {
    if (!fill(ahead + 1)) return -1;
    return in_[inPos_ + ahead];
}

int32_t ByteStream::get() {
    int32_t b = peek();
    if (b >= 0) ++inPos_;
    return b;
}

void ByteStream::skip(size_t n) { inPos_ += n <= inLen_ - inPos_ ? n : inLen_ - inPos_; }

int64_t ByteStream::read(void *buf, size_t size) {
    auto *p = static_cast<unsigned char *>(buf);
    size_t done = 0;
    while (done < size) {
        if (!fill(1)) return failed ? -1 : int64_t(done);
        size_t n = inLen_ - inPos_ < size - done ? inLen_ - inPos_ : size - done;
        std::memcpy(p + done, in_ + inPos_, n);
        inPos_ += n;
        done += n;
    }
    return int64_t(done);
}

bool ByteStream::put(const void *data, size_t size) {
    // A queue that cannot grow is a failed write like any other: it is
    // reported through the result and the close, never thrown.
    try {
        out_.append(static_cast<const char *>(data), size);
    } catch (const std::bad_alloc &) {
        failed = true;
        return false;
    }
    return out_.size() < kSize || flush();
}

bool ByteStream::flush() {
    size_t done = 0;
    while (done < out_.size()) {
        ssize_t n = ::write(fd, out_.data() + done, out_.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            failed = true;
            out_.clear();
            return false;
        }
        done += size_t(n);
    }
    out_.clear();
    return true;
}

bool ByteStream::toWrite() {
    if (inLen_ == inPos_) {
        inLen_ = inPos_ = 0;
        return true;
    }
    off_t back = -off_t(inLen_ - inPos_);
    inLen_ = inPos_ = 0;
    return lseek(fd, back, SEEK_CUR) >= 0;
}

bool ByteStream::toRead() { return flush(); }

}  // namespace mx
