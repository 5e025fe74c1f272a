// Byte-order marks at the start of a file: the one place that knows their
// bytes, for every reader that lets a mark choose the encoding.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace mx {

enum class ByteOrderMark { kNone, kUtf8, kUtf16le };

inline constexpr unsigned char kUtf8Mark[] = {0xEF, 0xBB, 0xBF};
inline constexpr unsigned char kUtf16leMark[] = {0xFF, 0xFE};

// The mark that the first n bytes start with. No side effects.
inline ByteOrderMark bomDetect(const void *bytes, size_t n) {
    auto *b = static_cast<const unsigned char *>(bytes);
    if (n >= 3 && b[0] == kUtf8Mark[0] && b[1] == kUtf8Mark[1] && b[2] == kUtf8Mark[2])
        return ByteOrderMark::kUtf8;
    if (n >= 2 && b[0] == kUtf16leMark[0] && b[1] == kUtf16leMark[1]) return ByteOrderMark::kUtf16le;
    return ByteOrderMark::kNone;
}

inline ByteOrderMark bomDetect(const std::string &bytes) { return bomDetect(bytes.data(), bytes.size()); }

// The number of bytes the mark takes (0 for none).
inline size_t bomLength(ByteOrderMark m) {
    return m == ByteOrderMark::kUtf8 ? 3 : m == ByteOrderMark::kUtf16le ? 2 : 0;
}

// The UTF-16LE units of bytes from offset on; an odd last byte is dropped.
inline std::u16string fromUtf16le(const std::string &bytes, size_t offset = 0) {
    std::u16string out;
    for (size_t i = offset; i + 1 < bytes.size(); i += 2)
        out += char16_t(uint8_t(bytes[i]) | (uint8_t(bytes[i + 1]) << 8));
    return out;
}

}  // namespace mx
