#include "builtins/text/transform.h"

#include "platform/files.h"

namespace mx {

namespace {

constexpr int32_t kLineRead = 1000;  // 999 characters and the terminator

// Reads the next piece of a line: up to 999 characters, ending after a line
// feed. Returns its length; 0 at the end of the file.
int32_t readLine(MxpFile *file, char16_t *line) {
    int32_t n = 0;
    while (n < kLineRead - 1) {
        int32_t c = mxp_FileGetChar(file);
        if (c < 0) break;
        line[n++] = char16_t(c);
        if (c == u'\n') break;
    }
    line[n] = 0;
    return n;
}

// The first two TAB-separated fields of line[0..n): false without a second.
bool splitKey(const char16_t *line, int32_t n, TextIn *key, TextIn *replacement) {
    int32_t i = 0;
    TextIn fields[2];
    for (int32_t f = 0; f < 2; ++f) {
        while (i < n && line[i] == u'\t') ++i;
        if (i == n) return false;
        int32_t start = i;
        while (i < n && line[i] != u'\t') ++i;
        fields[f] = TextIn(line + start, i - start);
    }
    *key = fields[0];
    *replacement = fields[1];
    return true;
}

// 0 when found (dst written), -1 when the file has no usable key for src.
int32_t search(MxpFile *file, TextIn src, char16_t *dst, int32_t cap) {
    char16_t line[kLineRead];
    int32_t srcLen = txtLen(src);
    for (;;) {
        int32_t n = readLine(file, line);
        TextIn key, replacement;
        if (n == 0 || !splitKey(line, n, &key, &replacement)) return -1;
        if (txtLen(key) == srcLen) {
            int32_t i = 0;
            while (i < srcLen && key.s[i] == src.s[i]) ++i;
            if (i == srcLen) {
                txtCopy(dst, cap, replacement);
                return 0;
            }
        }
    }
}

}  // namespace

int32_t txtTransformString(TextIn file, TextIn src, char16_t *dst, int32_t cap) {
    // src may be dst itself; dst is written again only when a key matched.
    txtCopy(dst, cap, src);
    if (!file.s || txtLen(file) >= file.cap) return -1;  // no terminated path
    MxpFile *f = mxp_FileOpen(file.s, u"rt", Share::kDenyNone, nullptr);
    if (!f) return -1;
    int32_t result = search(f, src, dst, cap);
    mxp_FileClose(f);
    return result;
}

}  // namespace mx
