// Helper library: a whole file into a text buffer.
#include <string>

#include "base/byte_order_mark.h"
#include "base/utf8.h"
#include "helperlib/kelvane_files.h"
#include "platform/files.h"

namespace mx {

namespace {

// Reads at most limit bytes of the file; false when it cannot be read.
bool readBytes(const char16_t *file, size_t limit, std::string *out) {
    MxpFile *f = mxp_FileOpen(file, u"rb", Share::kDenyWrite, nullptr);
    if (!f) return false;
    char chunk[4096];
    int64_t n = 0;
    while (out->size() < limit && (n = mxp_FileReadBytes(f, chunk, sizeof chunk)) > 0)
        out->append(chunk, size_t(n));
    mxp_FileClose(f);
    return n >= 0;
}

std::u16string decode(const std::string &bytes) {
    ByteOrderMark mark = bomDetect(bytes);
    if (mark == ByteOrderMark::kUtf8) return fromUtf8(bytes.substr(bomLength(mark)));
    if (mark == ByteOrderMark::kUtf16le) return fromUtf16le(bytes, bomLength(mark));
    std::u16string out;
    for (char b : bytes) out += char16_t(uint8_t(b));
    return out;
}

}  // namespace

int32_t Kelvane_LoadFileToBufferW(const char16_t *file, char16_t *buffer, int32_t capacity, int32_t,
                                  int32_t) {
    std::string bytes;
    // Four bytes per unit and a mark are the most one unit can take.
    size_t limit = capacity > 0 ? size_t(capacity) * 4 + 3 : 0;
    if (!file || !*file || !readBytes(file, limit, &bytes)) return -1;
    if (!buffer || capacity < 1) return 0;
    std::u16string text = decode(bytes);
    int32_t n = int32_t(text.size()) < capacity - 1 ? int32_t(text.size()) : capacity - 1;
    for (int32_t i = 0; i < n; ++i) buffer[i] = text[size_t(i)];
    buffer[n] = 0;
    return n;
}

}  // namespace mx
