#include "xml/xml_writer.h"

#include <climits>
#include <cstring>

#include "base/u16.h"
#include "xml/xml_alloc.h"
#include "xml/xml_encoding.h"
#include "xml/xml_escape.h"

namespace mx::xml {

namespace {

// Escaped values up to this size are built on the stack.
constexpr int32_t kLocalEscape = 10000;

const char16_t *const kVoidElements[] = {u"input", u"img", u"hr", u"meta", u"link"};

int32_t lengthOf(const char16_t *text) {
    int32_t n = 0;
    if (text)
        while (text[n] && n < INT32_MAX) ++n;
    return n;
}

void put(MxpFile *file, const char *bytes, size_t n) {
    if (n) mxp_FileWriteBytes(file, bytes, n);
}

void putText(MxpFile *file, const char *text) { put(file, text, std::strlen(text)); }

void indent(const XmlDocument *document, MxpFile *file, int32_t k, int32_t flags) {
    if (!(flags & XMLWF_INDENT)) return;
    for (int32_t i = 0; i < k; ++i) put(file, &document->indent, 1);
}

// Writes prefix, the converted text and suffix; nothing at all when the text
// cannot be converted. Returns 0 or -2.
int32_t putConverted(const XmlDocument *document, MxpFile *file, const char *prefix,
                     const char16_t *text, const char *suffix) {
    char *bytes;
    int32_t n;
    int32_t code = EncodeText(document, text, lengthOf(text), &bytes, &n);
    if (code != XMLERR_OK) return code;
    putText(file, prefix);
    put(file, bytes, size_t(n));
    putText(file, suffix);
    xmlFree(bytes);
    return XMLERR_OK;
}

// An element text or attribute value: converted, then escaped. A value that
// cannot be converted is left out.
void putValue(const XmlDocument *document, MxpFile *file, const char16_t *text) {
    char *bytes;
    int32_t n;
    if (EncodeText(document, text, lengthOf(text), &bytes, &n) != XMLERR_OK) return;
    int64_t size = EscapedCapacity(n);
    char local[kLocalEscape];
    char *out = size <= kLocalEscape ? local
                : size <= INT32_MAX  ? static_cast<char *>(xmlAlloc(size_t(size)))
                                     : nullptr;
    if (out) put(file, out, size_t(EscapeText(bytes, n, out, int32_t(size), 0)));
    if (out != local) xmlFree(out);
    xmlFree(bytes);
}

bool isVoidElement(const char16_t *name) {
    for (const char16_t *v : kVoidElements) {
        int32_t i = 0;
        auto lower = [](char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; };
        while (v[i] && lower(name[i]) == v[i]) ++i;
        if (!v[i] && !name[i]) return true;
    }
    return false;
}

void putAttributes(const XmlDocument *document, MxpFile *file, const XmlNode *node) {
    for (const XmlAttribute *a = node->firstAttribute; a; a = a->next) {
        putText(file, " ");
        if (u16IsWhiteText(a->name)) continue;
        if (putConverted(document, file, "", a->name, "=\"") != XMLERR_OK) continue;
        putValue(document, file, a->value);
        putText(file, "\"");
    }
}

// Everything of node up to its children: comment, start tag, attributes, and
// either the whole element (no children) or the text line. *descend tells
// whether the children follow. Returns 0 or -2.
int32_t openElement(const XmlDocument *document, MxpFile *file, const XmlNode *node, int32_t level,
                    int32_t flags, bool *descend) {
    *descend = false;
    if (u16IsWhiteText(node->name)) return XMLERR_OK;
    if ((flags & XMLWF_COMMENTS) && !u16IsWhiteText(node->comment)) {
        putText(file, "\r\n");
        indent(document, file, level, flags);
        int32_t code = putConverted(document, file, "<!--", node->comment, "-->\r\n");
        if (code != XMLERR_OK) return code;
    }
    indent(document, file, level, flags);
    int32_t code = putConverted(document, file, "<", node->name, "");
    if (code != XMLERR_OK) return code;
    putAttributes(document, file, node);
    bool html = flags & XMLWF_HTML;
    if (node->childCount == 0) {
        if (u16IsWhiteText(node->text) && !html) {
            putText(file, "/>\r\n");
            return XMLERR_OK;
        }
        putText(file, ">");
        putValue(document, file, node->text);
        if (html && isVoidElement(node->name)) {
            putText(file, "\r\n");
            return XMLERR_OK;
        }
        return putConverted(document, file, "</", node->name, ">\r\n");
    }
    putText(file, ">\r\n");
    if (!u16IsWhiteText(node->text)) {
        indent(document, file, level + 1, flags);
        putValue(document, file, node->text);
        putText(file, "\r\n");
    }
    *descend = true;
    return XMLERR_OK;
}

int32_t closeElement(const XmlDocument *document, MxpFile *file, const XmlNode *node, int32_t level,
                     int32_t flags) {
    indent(document, file, level, flags);
    return putConverted(document, file, "</", node->name, ">\r\n");
}

}  // namespace

int32_t OpenErrorCode(OpenError why) {
    switch (why) {
        case OpenError::kNotFound: return XMLERR_NOTFOUND;
        case OpenError::kAccessDenied: return XMLERR_ACCESS;
        case OpenError::kExists: return XMLERR_EXISTS;
        case OpenError::kTooManyOpen: return XMLERR_TOOMANY;
        default: return XMLERR_FILE;
    }
}

// Walks the subtree without recursion: down through first children, then
// along next siblings, closing parents on the way up. Any depth is safe.
int32_t WriteElement(const XmlDocument *document, MxpFile *file, const XmlNode *node, int32_t level,
                     int32_t flags) {
    const XmlNode *top = node;
    const XmlNode *cur = node;
    for (;;) {
        bool descend;
        int32_t code = openElement(document, file, cur, level, flags, &descend);
        if (code != XMLERR_OK) return code;
        if (descend) {
            cur = cur->firstChild;
            ++level;
            continue;
        }
        for (;;) {
            if (cur == top) return XMLERR_OK;
            if (cur->nextSibling) {
                cur = cur->nextSibling;
                break;
            }
            cur = cur->parent;
            --level;
            code = closeElement(document, file, cur, level, flags);
            if (code != XMLERR_OK) return code;
        }
    }
}

int32_t WriteDocument(const XmlDocument *document, const char16_t *fileName, int32_t flags) {
    OpenError why = OpenError::kOther;
    MxpFile *file = fileName ? mxp_FileOpen(fileName, u"wb", Share::kDenyNone, &why) : nullptr;
    if (!file) return OpenErrorCode(fileName ? why : OpenError::kNotFound);
    if (flags & XMLWF_HTML) {
        putText(file, "<!DOCTYPE HTML>\r\n\r\n");
    } else {
        putText(file, "<?xml version=\"1.0\" encoding=\"");
        putText(file, EncodingName(document->encoding));
        putText(file, "\"?>\r\n");
    }
    int32_t code = document->root ? WriteElement(document, file, document->root, 0, flags) : XMLERR_OK;
    // The stream remembers any failed write; the close reports it with its
    // own failure (a full disk, a quota), so nothing is lost silently.
    if (mxp_FileClose(file) != 0 && code == XMLERR_OK) code = XMLERR_FILE;
    return code;
}

}  // namespace mx::xml
