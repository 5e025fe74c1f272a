#include "xml/xml_parser.h"

#include <cstring>

#include "base/byte_order_mark.h"
#include "base/u16.h"
#include "platform/files.h"
#include "xml/xml_alloc.h"
#include "xml/xml_encoding.h"
#include "xml/xml_escape.h"
#include "xml/xml_writer.h"

namespace mx::xml {

namespace {

using Byte = unsigned char;

bool isWhite(char c) { return u16IsWhite(char16_t(Byte(c))); }
bool isNameStart(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; }
bool isNameChar(char c) { return isNameStart(c) || (c >= '0' && c <= '9') || c == '-'; }
bool isValueByte(char c) { return c == '&' || (c != 0 && IsPlainByte(Byte(c))); }
bool startsWith(const char *p, const char *s) { return std::strncmp(p, s, std::strlen(s)) == 0; }

void skipWhite(const char **p) {
    while (isWhite(**p)) ++*p;
}

// Reads a name at *p (the caller knows one starts there) and decodes it.
int32_t readName(const XmlDocument *document, const char **p, char16_t **out) {
    const char *start = *p;
    while (isNameChar(**p)) ++*p;
    return DecodeText(document, start, int32_t(*p - start), out);
}

// attribute := name ws "=" ws '"' valuebyte* '"'; decoded into *name and
// *value (owned by the caller, also when a later step fails).
int32_t readAttribute(const XmlDocument *document, const char **p, char16_t **name, char16_t **value) {
    int32_t code = readName(document, p, name);
    if (code != XMLERR_OK) return code;
    skipWhite(p);
    if (**p != '=') return XMLERR_NOEQUALS;
    ++*p;
    skipWhite(p);
    if (**p != '"') return XMLERR_NOQUOTE;
    const char *start = ++*p;
    while (isValueByte(**p)) ++*p;
    if (**p != '"') return XMLERR_NOQUOTE;
    const char *end = (*p)++;
    return DecodeText(document, start, int32_t(end - start), value);
}

// The element text: every byte up to the next "<", decoded, without the
// codes 0 to 31 at its end.
int32_t readText(XmlDocument *document, XmlNode *node, const char **p) {
    const char *start = *p;
    while (**p && **p != '<') ++*p;
    int32_t code = DecodeText(document, start, int32_t(*p - start), &node->text);
    if (code != XMLERR_OK) return code;
    size_t n = 0;
    while (node->text[n]) ++n;
    while (n > 0 && node->text[n - 1] < 32) node->text[--n] = 0;
    return XMLERR_OK;
}

// An optional comment in front of the element: kept with SetComment.
int32_t readComment(XmlDocument *document, XmlNode *node, const char **p) {
    *p += 4;
    const char *end = std::strstr(*p, "-->");
    if (!end) return XMLERR_NOCOMMENTEND;
    char16_t *text;
    int32_t code = DecodeText(document, *p, int32_t(end - *p), &text);
    if (code == XMLERR_OK) code = SetComment(node, text);
    xmlFree(text);
    *p = end + 3;
    skipWhite(p);
    return code;
}

// Steps of an element up to its children: comment, start tag, attributes,
// and text. *closed is set for "/>" (nothing more follows).
int32_t readStart(XmlDocument *document, XmlNode *node, const char **p, bool *closed) {
    *closed = false;
    ClearNode(node);
    skipWhite(p);
    if (startsWith(*p, "<!--")) {
        int32_t code = readComment(document, node, p);
        if (code != XMLERR_OK) return code;
    }
    if (**p != '<') return XMLERR_NOTAGOPEN;
    ++*p;
    if (!isNameStart(**p)) return XMLERR_NOELEMNAME;
    int32_t code = readName(document, p, &node->name);
    if (code != XMLERR_OK) return code;
    skipWhite(p);
    while (isNameStart(**p)) {
        XmlAttribute *a;
        code = AddAttribute(node, &a);
        if (code == XMLERR_OK) code = readAttribute(document, p, &a->name, &a->value);
        if (code != XMLERR_OK) return code;
        if (!isWhite(**p)) break;
        skipWhite(p);
    }
    if (startsWith(*p, "/>")) {
        *p += 2;
        *closed = true;
        return XMLERR_OK;
    }
    if (**p != '>') return XMLERR_NOTAGCLOSE;
    ++*p;
    skipWhite(p);
    if (**p != '<') {
        code = readText(document, node, p);
        if (code != XMLERR_OK) return code;
        skipWhite(p);
    }
    return XMLERR_OK;
}

// "</" name ">", the name equal to the node's.
int32_t readEnd(const XmlDocument *document, const XmlNode *node, const char **p) {
    if (!startsWith(*p, "</")) return XMLERR_NOENDTAG;
    *p += 2;
    if (!isNameStart(**p)) return XMLERR_NOELEMNAME;
    char16_t *name;
    int32_t code = readName(document, p, &name);
    if (code != XMLERR_OK) return code;
    if (**p != '>') code = XMLERR_NOTAGCLOSE;
    else ++*p;
    if (code == XMLERR_OK) {
        const char16_t *have = node->name ? node->name : u"";
        size_t i = 0;
        while (have[i] && have[i] == name[i]) ++i;
        if (have[i] != name[i]) code = XMLERR_TAGMISMATCH;
    }
    xmlFree(name);
    return code;
}

bool childFollows(const char *p) { return p[0] == '<' && p[1] != '/'; }

// The declaration: "<?xml " and its attributes up to "?>".
int32_t readDeclaration(XmlDocument *document, const char **p) {
    if (!startsWith(*p, "<?xml ")) return XMLERR_NOPROLOG;
    *p += 6;
    skipWhite(p);
    while (isNameStart(**p)) {
        char16_t *name = nullptr, *value = nullptr;
        int32_t code = readAttribute(document, p, &name, &value);
        if (code == XMLERR_OK && u16Eq(name, u"encoding"))
            document->encoding = EncodingFromName(value);
        xmlFree(name);
        xmlFree(value);
        if (code != XMLERR_OK) return code;
        if (!isWhite(**p)) break;
        skipWhite(p);
    }
    const char *end = std::strstr(*p, "?>");
    if (!end) return XMLERR_NOPROLOG;
    *p = end + 2;
    skipWhite(p);
    return XMLERR_OK;
}

int32_t readDocument(XmlDocument *document, const char **p) {
    ClearNode(document->root);
    if (bomDetect(*p, strnlen(*p, 3)) == ByteOrderMark::kUtf8) *p += bomLength(ByteOrderMark::kUtf8);
    skipWhite(p);
    int32_t code = readDeclaration(document, p);
    if (code == XMLERR_OK) code = ParseElement(document, document->root, p);
    if (code != XMLERR_OK) return code;
    skipWhite(p);
    return **p ? XMLERR_TRAILING : XMLERR_OK;
}

}  // namespace

// Without recursion: the parent links are the stack. After an element ends,
// its parent goes on with its next child or its end tag.
int32_t ParseElement(XmlDocument *document, XmlNode *node, const char **p) {
    XmlNode *cur = node;
    for (;;) {
        bool closed;
        int32_t code = readStart(document, cur, p, &closed);
        if (code != XMLERR_OK) return code;
        XmlNode *child;
        if (!closed && childFollows(*p)) {
            if ((code = AddChild(cur, nullptr, &child)) != XMLERR_OK) return code;
            cur = child;
            continue;
        }
        if (!closed && (code = readEnd(document, cur, p)) != XMLERR_OK) return code;
        for (;;) {
            if (cur == node) return XMLERR_OK;
            cur = cur->parent;
            skipWhite(p);
            if (childFollows(*p)) break;
            if ((code = readEnd(document, cur, p)) != XMLERR_OK) return code;
        }
        if ((code = AddChild(cur, nullptr, &child)) != XMLERR_OK) return code;
        cur = child;
    }
}

int32_t ParseDocument(XmlDocument *document, const char *text, int32_t *line, int32_t *column) {
    *line = *column = 0;
    if (!document || !document->root) return XMLERR_NOMEM;
    const char *start = text ? text : "";
    const char *p = start;
    int32_t code = readDocument(document, &p);
    if (code == XMLERR_OK) return code;
    const char *lineStart = start;
    *line = 1;
    for (const char *q = start; q < p; ++q)
        if (*q == '\n') ++*line, lineStart = q + 1;
    *column = int32_t(p - lineStart) + 1;
    return code;
}

int32_t LoadDocument(XmlDocument *document, const char16_t *fileName, int32_t *line,
                     int32_t *column) {
    *line = *column = 0;
    if (!document || !document->root) return XMLERR_NOMEM;
    ClearNode(document->root);
    OpenError why = OpenError::kNotFound;
    MxpFile *file = fileName ? mxp_FileOpen(fileName, u"rb", Share::kDenyNone, &why) : nullptr;
    if (!file) return OpenErrorCode(why);
    int64_t size = mxp_FileLength(file);
    char *data = size >= 0 && uint64_t(size) < SIZE_MAX ? static_cast<char *>(xmlAlloc(size_t(size) + 1))
                                                         : nullptr;
    if (!data) {
        mxp_FileClose(file);
        return size < 0 ? XMLERR_READ : XMLERR_NOMEM;
    }
    int64_t got = 0;
    while (got < size) {
        int64_t n = mxp_FileReadBytes(file, data + got, size_t(size - got));
        if (n <= 0) break;
        got += n;
    }
    mxp_FileClose(file);
    if (got < size) {
        xmlFree(data);
        return XMLERR_READ;
    }
    data[size] = 0;
    int32_t code = ParseDocument(document, data, line, column);
    xmlFree(data);
    return code;
}

}  // namespace mx::xml
