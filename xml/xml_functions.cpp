#include "xml/xml_functions.h"

#include "engine/errors.h"
#include "helperlib/kelvane_xml.h"
#include "xml/xml_encoding.h"
#include "xml/xml_handles.h"
#include "xml/xml_model.h"
#include "xml/xml_writer.h"

namespace mx::xml {

namespace {
void showEngineError(int32_t code, const char16_t *text = nullptr) {
    Kelvane_XmlCtlErrorBoxW(0, code, text, 0, 0);
}
}  // namespace

int32_t xmlCreate(const char16_t *rootNode, const char16_t *code) {
    XmlDocument *document = CreateDocument();
    if (!document) {
        errShowSystemError(kErrSysNoMemory);
        return 0;
    }
    document->encoding = EncodingFromName(code);
    if (!document->root) {
        errShowSystemError(kErrSysNoMemory);
        DestroyDocument(document);
        return -1;
    }
    SetName(document->root, rootNode);
    int32_t handle = xmlHandleAddDocument(document);
    if (!handle) {
        errShowSystemError(kErrSysNoMemory);
        DestroyDocument(document);
    }
    return handle;
}

int32_t xmlDelete(int32_t xmlctl) {
    if (xmlctl) DestroyDocument(xmlHandleRemoveDocument(xmlctl));
    return 1;
}

int32_t xmlGetRoot(int32_t xmlctl) {
    XmlDocument *document = xmlHandleDocument(xmlctl);
    if (!document) return 0;
    int32_t root = xmlHandleRoot(xmlctl);
    if (!root) errShowSystemError(kErrSysNoMemory);
    return root;
}

int32_t xmlAddChild(int32_t node, const char16_t *name, const char16_t *content) {
    if (!node) return 0;
    int32_t document;
    XmlNode *parent = xmlHandleNode(node, &document);
    if (!parent) return 0;
    XmlNode *child;
    int32_t code = AddChild(parent, name, &child);
    if (code == XMLERR_OK) code = SetText(child, content);
    int32_t handle = code == XMLERR_OK ? xmlHandleAddNode(document, child) : 0;
    if (code == XMLERR_OK && !handle) code = XMLERR_NOMEM;
    if (code != XMLERR_OK) showEngineError(code);
    return handle;
}

int32_t xmlSetAttr(int32_t node, const char16_t *name, const char16_t *value) {
    if (!node) return 2;
    XmlNode *target = xmlHandleNode(node);
    if (!target) return 2;
    int32_t code = SetAttribute(target, name, value);
    if (code == XMLERR_OK) return 1;
    showEngineError(code);
    return 2;
}

int32_t xmlWriteFile(int32_t xmlctl, const char16_t *filename, int32_t flags) {
    XmlDocument *document = xmlHandleDocument(xmlctl);
    if (!document) return 2;
    int32_t code = WriteDocument(document, filename, flags);
    if (code == XMLERR_OK) return 1;
    showEngineError(code, filename);
    return 2;
}

}  // namespace mx::xml
