#include "xml/xml_model.h"

#include "xml/xml_alloc.h"

namespace mx::xml {

namespace {

void releaseAttributes(XmlNode *node) {
    for (XmlAttribute *a = node->firstAttribute; a;) {
        XmlAttribute *next = a->next;
        xmlFree(a->name);
        xmlFree(a->value);
        xmlFree(a);
        a = next;
    }
    node->firstAttribute = node->lastAttribute = nullptr;
    node->attributeCount = 0;
}

void releaseTexts(XmlNode *node) {
    xmlFree(node->name);
    xmlFree(node->text);
    xmlFree(node->comment);
    node->name = node->text = node->comment = nullptr;
}

// Releases top with everything below it. Walks the tree without recursion
// (always freeing a leaf and unlinking it from its parent), so that any
// nesting depth is safe.
void releaseSubtree(XmlNode *top) {
    XmlNode *cur = top;
    for (;;) {
        while (cur->firstChild) cur = cur->firstChild;
        XmlNode *parent = cur->parent;
        XmlNode *next = cur->nextSibling;
        bool last = cur == top;
        releaseTexts(cur);
        releaseAttributes(cur);
        xmlFree(cur);
        if (last) return;
        parent->firstChild = next;
        cur = next ? next : parent;
    }
}

// Replaces *field by an owned copy of text (absent stays absent).
int32_t storeCopy(char16_t **field, const char16_t *text) {
    xmlFree(*field);
    return xmlCopyText(text, field);
}

}  // namespace

XmlDocument *CreateDocument() {
    auto *document = static_cast<XmlDocument *>(xmlAlloc(sizeof(XmlDocument)));
    if (!document) return nullptr;
    document->root = static_cast<XmlNode *>(xmlAlloc(sizeof(XmlNode)));
    document->encoding = XMLENC_UTF8;
    document->indent = ' ';
    return document;
}

void DestroyDocument(XmlDocument *document) {
    if (!document) return;
    if (document->root) {
        ClearNode(document->root);
        xmlFree(document->root);
    }
    xmlFree(document);
}

void ClearNode(XmlNode *node) {
    if (!node) return;
    releaseTexts(node);
    for (XmlNode *child = node->firstChild; child;) {
        XmlNode *next = child->nextSibling;
        releaseSubtree(child);
        child = next;
    }
    node->firstChild = node->lastChild = nullptr;
    node->childCount = 0;
    releaseAttributes(node);
}

int32_t SetName(XmlNode *node, const char16_t *name) { return storeCopy(&node->name, name); }

int32_t SetText(XmlNode *node, const char16_t *text) {
    return storeCopy(&node->text, text ? text : u"");
}

int32_t SetComment(XmlNode *node, const char16_t *text) {
    int32_t code = storeCopy(&node->comment, text);
    char16_t *c = node->comment;
    if (!c) return code;
    // In place: the text only shrinks. A ">" that was written is not looked
    // at again, so "---->" keeps the "-->" it forms with its left part.
    char16_t *out = c;
    for (const char16_t *in = c; *in;) {
        if (in[0] == u'-' && in[1] == u'-' && in[2] == u'>') {
            *out++ = u'>';
            in += 3;
        } else {
            *out++ = *in++;
        }
    }
    *out = 0;
    return code;
}

int32_t AddChild(XmlNode *node, const char16_t *name, XmlNode **child) {
    *child = nullptr;
    auto *made = static_cast<XmlNode *>(xmlAlloc(sizeof(XmlNode)));
    if (!made) return XMLERR_NOMEM;
    if (name && xmlCopyText(name, &made->name) != XMLERR_OK) {
        xmlFree(made);
        return XMLERR_NOMEM;
    }
    made->parent = node;
    made->previousSibling = node->lastChild;
    if (node->lastChild) node->lastChild->nextSibling = made;
    else node->firstChild = made;
    node->lastChild = made;
    ++node->childCount;
    *child = made;
    return XMLERR_OK;
}

XmlAttribute *FindAttribute(const XmlNode *node, const char16_t *name) {
    const char16_t *want = name ? name : u"";
    for (XmlAttribute *a = node->firstAttribute; a; a = a->next) {
        const char16_t *have = a->name ? a->name : u"";
        size_t i = 0;
        while (have[i] && have[i] == want[i]) ++i;
        if (have[i] == want[i]) return a;
    }
    return nullptr;
}

int32_t AddAttribute(XmlNode *node, XmlAttribute **attribute) {
    *attribute = nullptr;
    auto *made = static_cast<XmlAttribute *>(xmlAlloc(sizeof(XmlAttribute)));
    if (!made) return XMLERR_NOMEM;
    made->previous = node->lastAttribute;
    if (node->lastAttribute) node->lastAttribute->next = made;
    else node->firstAttribute = made;
    node->lastAttribute = made;
    ++node->attributeCount;
    *attribute = made;
    return XMLERR_OK;
}

int32_t SetAttribute(XmlNode *node, const char16_t *name, const char16_t *value) {
    XmlAttribute *a = FindAttribute(node, name);
    if (!a) {
        int32_t code = AddAttribute(node, &a);
        if (code != XMLERR_OK) return code;
    }
    storeCopy(&a->name, name);  // only the value's result counts
    return storeCopy(&a->value, value ? value : u"");
}

}  // namespace mx::xml
