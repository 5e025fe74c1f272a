#include "base/utf8.h"
#include "helperlib/kelvane_strings.h"

namespace mx {

void kstrUtf8Bytes(const char16_t *text, int32_t length, KelvaneByteSink sink, void *context) {
    for (int64_t i = 0; text && i < length; ++i) {
        char b[4];
        int n = utf8Encode(utf16CodePointAt(text, length, &i), b);
        sink(context, reinterpret_cast<const unsigned char *>(b), n);
    }
}

}  // namespace mx
