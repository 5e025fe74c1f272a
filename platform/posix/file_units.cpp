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

// One UTF-8 sequence: a malformed part gives U+FFFD; a lead byte that is the
// last byte of the file is dropped.
int32_t readUtf8Unit(MxpFile &f) {
    if (f.pendingLow) return std::exchange(f.pendingLow, char16_t(0));
    int32_t b = f.io.get();
    if (b < 0x80) return b;
    int need = 0;
    uint32_t cp = 0, lo = 0x80, hi = 0xBF;
    if (b >= 0xC2 && b <= 0xDF) need = 1, cp = b & 0x1F;
    else if (b >= 0xE0 && b <= 0xEF)
        need = 2, cp = b & 0x0F, lo = b == 0xE0 ? 0xA0 : 0x80, hi = b == 0xED ? 0x9F : 0xBF;
    else if (b >= 0xF0 && b <= 0xF4)
        need = 3, cp = b & 0x07, lo = b == 0xF0 ? 0x90 : 0x80, hi = b == 0xF4 ? 0x8F : 0xBF;
    else return kReplacement;
    for (int k = 0; k < need; ++k, lo = 0x80, hi = 0xBF) {
        int32_t c = f.io.peek();
        if (c < 0) return k == 0 ? -1 : kReplacement;
        if (uint32_t(c) < lo || uint32_t(c) > hi) return kReplacement;
        f.io.skip(1);
        cp = (cp << 6) | (uint32_t(c) & 0x3F);
    }
    if (cp < 0x10000) return int32_t(cp);
    cp -= 0x10000;
    f.pendingLow = char16_t(0xDC00 + (cp & 0x3FF));
    return int32_t(0xD800 + (cp >> 10));
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
