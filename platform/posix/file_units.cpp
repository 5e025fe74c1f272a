#include "platform/posix/file_units.h"

#include <string>
#include <utility>

#include "base/utf8.h"

namespace mx {

namespace {

constexpr char16_t kCtrlZ = 0x1A;
constexpr char16_t kReplacement = 0xFFFD;

int32_t readUtf16Unit(ByteStream &io) {
    int32_t lo = io.get();
    if (lo < 0) return -1;
    int32_t hi = io.get();
    return hi < 0 ? -1 : lo | (hi << 8);
}

// One UTF-8 sequence: an invalid one gives U+FFFD; a sequence that the end
// of the file breaks off before its first continuation byte is dropped.
int32_t readUtf8Unit(MxpFile &f) {
    if (f.pendingLow) return std::exchange(f.pendingLow, char16_t(0));
    // Byte by byte, so that no more is read ahead than the sequence needs.
    unsigned char bytes[4];
    size_t n = 0;
    Utf8Read r{};
    for (int32_t b; n < 4 && (b = f.io.peek(n)) >= 0;) {
        bytes[n++] = static_cast<unsigned char>(b);
        r = utf8Decode(bytes, n);
        if (!r.truncated) break;
    }
    if (n == 0) return -1;
    f.io.skip(size_t(r.length));
    if (r.truncated && r.length == 1) return -1;
    char16_t u[2];
    if (utf16Encode(r.cp, u) == 2) f.pendingLow = u[1];
    return u[0];
}

// True when the next unit in the file is a line feed; consumes it then.
bool takeLineFeed(MxpFile &f) {
    bool wide = f.encoding == Encoding::kUtf16;
    if (f.io.peek() != '\n' || (wide && f.io.peek(1) != 0)) return false;
    f.io.skip(wide ? 2 : 1);
    return true;
}

bool putUtf16(ByteStream &io, char16_t u) {
    char b[2] = {char(u & 0xFF), char(u >> 8)};
    return io.put(b, 2);
}

bool putUtf8(ByteStream &io, uint32_t cp) {
    std::string s;
    utf8Append(s, cp);
    return io.put(s.data(), s.size());
}

// UTF-8 writing joins surrogate pairs; a half without its partner becomes U+FFFD.
bool writeUtf8Unit(MxpFile &f, char16_t u) {
    bool high = u >= 0xD800 && u < 0xDC00, low = u >= 0xDC00 && u < 0xE000;
    if (low && f.pendingHigh) {
        uint32_t cp = 0x10000 + ((uint32_t(f.pendingHigh) - 0xD800) << 10) + (u - 0xDC00);
        f.pendingHigh = 0;
        return putUtf8(f.io, cp);
    }
    if (f.pendingHigh && !putUtf8(f.io, kReplacement)) return false;
    f.pendingHigh = high ? u : 0;
    if (high) return true;
    if (u == '\n' && !f.io.put('\r')) return false;
    return putUtf8(f.io, low ? kReplacement : u);
}

}  // namespace

bool fuBeginRead(MxpFile &f) {
    if (!f.mode.read || f.stopped) return false;
    if (f.writing && !f.io.toRead()) return false;
    f.writing = false;
    return true;
}

bool fuBeginWrite(MxpFile &f) {
    if (!f.mode.write) return false;
    if (!f.writing && !f.io.toWrite()) return false;
    f.writing = true;
    return true;
}

// The next unit as the mode translates it; -1 at the end or on error.
int32_t fuReadUnit(MxpFile &f) {
    if (!fuBeginRead(f)) return -1;
    if (!f.mode.text) return readUtf16Unit(f.io);
    int32_t u = f.encoding == Encoding::kUtf16  ? readUtf16Unit(f.io)
                : f.encoding == Encoding::kUtf8 ? readUtf8Unit(f)
                                                : f.io.get();
    if (u == kCtrlZ) {
        f.stopped = true;
        return -1;
    }
    if (u == '\r' && takeLineFeed(f)) return '\n';
    return u;
}

bool fuWriteUnit(MxpFile &f, char16_t u) {
    if (!fuBeginWrite(f)) return false;
    if (!f.mode.text) return putUtf16(f.io, u);
    switch (f.encoding) {
        case Encoding::kUtf8: return writeUtf8Unit(f, u);
        case Encoding::kUtf16: return (u != '\n' || putUtf16(f.io, u'\r')) && putUtf16(f.io, u);
        default:
            if (u > 255) return false;
            return (u != '\n' || f.io.put('\r')) && f.io.put(char(u));
    }
}

bool fuFinishPending(MxpFile &f) {
    if (!f.pendingHigh) return true;
    f.pendingHigh = 0;
    return putUtf8(f.io, kReplacement);
}


}  // namespace mx
