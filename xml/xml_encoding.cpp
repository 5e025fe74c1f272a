#include "xml/xml_encoding.h"

#include <cstring>

#include "base/u16.h"
#include "platform/codepage.h"
#include "xml/xml_alloc.h"

namespace mx::xml {

namespace {

struct EncodingRow {
    XmlEncoding id;
    const char *name;
    uint32_t codePage;
};

// Indexed by id - 1.
constexpr EncodingRow kEncodings[] = {
    {XMLENC_ISO8859_15, "ISO-8859-15", kCodePageIso8859_15},
    {XMLENC_UTF8, "UTF-8", kCodePageUtf8},
    {XMLENC_ISO8859_1, "ISO-8859-1", kCodePageIso8859_1},
    {XMLENC_WIN1252, "WINDOWS-1252", kCodePageWindows1252},
};
static_assert(kEncodings[XMLENC_ISO8859_15 - 1].id == XMLENC_ISO8859_15 &&
              kEncodings[XMLENC_UTF8 - 1].id == XMLENC_UTF8 &&
              kEncodings[XMLENC_ISO8859_1 - 1].id == XMLENC_ISO8859_1 &&
              kEncodings[XMLENC_WIN1252 - 1].id == XMLENC_WIN1252);

const EncodingRow &rowOf(int32_t id) {
    return id >= 1 && id <= 4 ? kEncodings[id - 1] : kEncodings[0];
}

char16_t asciiUpper(char16_t c) { return c >= u'a' && c <= u'z' ? char16_t(c - 32) : c; }

// True when the first `count` units of text equal want ignoring ASCII case;
// count < 0 compares the whole text.
bool sameIgnoringCase(const char16_t *text, const char *want, int32_t count = -1) {
    int32_t i = 0;
    for (; want[i] && (count < 0 || i < count); ++i)
        if (asciiUpper(text[i]) != char16_t(want[i])) return false;
    return count >= 0 ? i == count : text[i] == 0;
}

// Converted units are decoded in a local buffer this large; longer texts
// get a heap buffer.
constexpr int32_t kLocalUnits = 1000;
constexpr int32_t kLocalBytes = 1000;

}  // namespace

XmlEncoding EncodingFromName(const char16_t *name) {
    if (u16IsWhiteText(name)) return XMLENC_ISO8859_15;
    if (sameIgnoringCase(name, "ISO-8859-15")) return XMLENC_ISO8859_15;
    if (sameIgnoringCase(name, "ISO-8859-1")) return XMLENC_ISO8859_1;
    if (sameIgnoringCase(name, "ISO-8859", 8)) return XMLENC_ISO8859_15;
    if (sameIgnoringCase(name, "WINDOWS-1252")) return XMLENC_WIN1252;
    if (sameIgnoringCase(name, "UTF8") || sameIgnoringCase(name, "UTF-8")) return XMLENC_UTF8;
    return XMLENC_ISO8859_15;
}

const char *EncodingName(int32_t id) { return rowOf(id).name; }

uint32_t EncodingCodePage(int32_t id) { return rowOf(id).codePage; }

int32_t EncodeText(const XmlDocument *document, const char16_t *text, int32_t n, char **out,
                   int32_t *outLength) {
    *out = nullptr;
    if (outLength) *outLength = 0;
    uint32_t codePage = EncodingCodePage(document->encoding);
    char local[kLocalBytes];
    char *buffer = local;
    int32_t length = 0;
    if (n > 0 && int64_t(n) * 3 < kLocalBytes) {
        // at most three bytes per unit (a surrogate pair gives four for two)
        length = mxp_WideToCodePage(codePage, text, n, local, kLocalBytes);
    } else if (n > 0) {
        int32_t need = mxp_WideToCodePage(codePage, text, n, nullptr, 0);
        buffer = need > 0 ? static_cast<char *>(xmlAlloc(size_t(need))) : nullptr;
        if (!buffer) return XMLERR_NOMEM;
        length = mxp_WideToCodePage(codePage, text, n, buffer, need);
    }
    int32_t code = XMLERR_NOMEM;
    if (n == 0 || length > 0) {
        auto *copy = static_cast<char *>(xmlAlloc(size_t(length) + 1));
        if (copy) {
            if (length) std::memcpy(copy, buffer, size_t(length));
            copy[length] = 0;
            *out = copy;
            if (outLength) *outLength = length;
            code = XMLERR_OK;
        }
    }
    if (buffer != local) xmlFree(buffer);
    return code;
}

int32_t DecodeReferences(char16_t *text, int32_t n) {
    int32_t w = 0;
    for (int32_t r = 0; r < n;) {
        if (text[r] != u'&' || r + 1 >= n || text[r + 1] != u'#' || n - r < 6) {
            text[w++] = text[r++];
            continue;
        }
        bool hex = text[r + 2] == u'x';
        r += hex ? 3 : 2;
        uint32_t value = 0;
        for (; r < n && text[r] != u';'; ++r) {
            char16_t c = text[r];
            if (hex) {
                uint32_t digit = c >= u'0' && c <= u'9'   ? c - u'0'
                                 : c >= u'A' && c <= u'F' ? c - u'A' + 10
                                 : c >= u'a' && c <= u'f' ? c - u'a' + 10
                                                          : 0;
                value = value * 16 + digit;
            } else {
                value = value * 10 + uint32_t((c & 0xFF) - u'0');
            }
        }
        if (r < n) ++r;  // the ";"
        text[w++] = char16_t(value & 0xFFFF);
    }
    return w;
}

int32_t DecodeText(const XmlDocument *document, const char *bytes, int32_t n, char16_t **out) {
    *out = nullptr;
    if (n <= 0) return xmlCopyUnits(u"", 0, out);
    uint32_t codePage = EncodingCodePage(document->encoding);
    char16_t local[kLocalUnits];
    char16_t *buffer = local;
    int32_t length;
    if (n < kLocalUnits) {
        // never more units than bytes
        length = mxp_CodePageToWide(codePage, bytes, n, local, kLocalUnits);
    } else {
        int32_t need = mxp_CodePageToWide(codePage, bytes, n, nullptr, 0);
        buffer = need > 0 ? static_cast<char16_t *>(xmlAlloc(size_t(need) * sizeof(char16_t))) : nullptr;
        if (!buffer) return XMLERR_NOMEM;
        length = mxp_CodePageToWide(codePage, bytes, n, buffer, need);
    }
    int32_t code = XMLERR_NOMEM;
    if (length > 0) code = xmlCopyUnits(buffer, size_t(DecodeReferences(buffer, length)), out);
    if (buffer != local) xmlFree(buffer);
    return code;
}

}  // namespace mx::xml
