// A buffered byte stream over a file descriptor that can switch between
// reading and writing at the current position, as the C runtime's "+"
// modes do.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace mx {

struct ByteStream {
    int fd = -1;
    bool failed = false;  // a read or write error happened

    // The next byte without consuming it (ahead = 0) or the one after it
    // (ahead = 1 ... 3); -1 past the end or on error.
    int32_t peek(size_t ahead = 0);
    // The next byte, consumed; -1 at the end or on error.
    int32_t get();
    // Consumes n bytes already peeked.
    void skip(size_t n);
    // Reads up to size bytes; the number read, -1 on error.
    int64_t read(void *buf, size_t size);

    // Queues bytes for writing; flushed when the queue grows large.
    bool put(const void *data, size_t size);
    bool put(char byte) { return put(&byte, 1); }
    // Writes the queued bytes; false on error.
    bool flush();

    // Prepares a write at the reading position (drops read-ahead bytes).
    bool toWrite();
    // Prepares a read after writing (flushes).
    bool toRead();

private:
    static constexpr size_t kSize = 4096;
    unsigned char in_[kSize];
    size_t inPos_ = 0, inLen_ = 0;
    std::string out_;
    bool fill(size_t need);
};

}  // namespace mx
