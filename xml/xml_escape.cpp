#include "xml/xml_escape.h"

namespace mx::xml {

bool IsPlainByte(unsigned char c) {
    if (c < 0x20) return false;
    switch (c) {
        case '"':
        case '&':
        case '<':
        case '>':
        case '`': return false;
        default: return true;
    }
}

int32_t EscapeText(const char *bytes, int32_t n, char *out, int32_t size, int32_t options) {
    static const char kHex[] = "0123456789ABCDEF";
    if (!out || size < 1) return 0;
    int32_t len = 0;
    auto put = [&](const char *s, int32_t k) {
        if (len + k > size - 1) return false;
        for (int32_t i = 0; i < k; ++i) out[len++] = s[i];
        return true;
    };
    bool spaceBefore = true;
    bool room = true;
    for (int32_t i = 0; i < n && room; ++i) {
        auto c = static_cast<unsigned char>(bytes[i]);
        if (c == ' ') {
            if (spaceBefore) {
                room = put("&#x20;", 6);
                continue;
            }
            spaceBefore = true;
        } else {
            spaceBefore = false;
        }
        if (c == '\r' && (options & kEscapeDropCR)) continue;
        if (IsPlainByte(c)) {
            room = put(&bytes[i], 1);
        } else {
            const char ref[6] = {'&', '#', 'x', kHex[c >> 4], kHex[c & 15], ';'};
            room = put(ref, 6);
        }
    }
    out[len] = 0;
    return len;
}

}  // namespace mx::xml
