#include "xml/xml_handles.h"

#include <new>
#include <unordered_map>
#include <vector>

namespace mx::xml {

namespace {

struct Entry {
    XmlDocument *document;  // the document the handle belongs to
    XmlNode *node;          // absent: the handle names the document itself
    int32_t owner;          // the document's handle
};

struct DocumentHandles {
    int32_t root = 0;
    std::vector<int32_t> nodes;  // every node handle given out, root included
};

struct HandleTable {
    std::unordered_map<int32_t, Entry> entries;
    std::unordered_map<int32_t, DocumentHandles> documents;
    int32_t last = 0;

    // The next handle not in use, counting up and wrapping to 1 after the
    // largest long (only then can a long-deleted handle come back).
    int32_t next() {
        do last = last == INT32_MAX ? 1 : last + 1;
        while (entries.count(last));
        return last;
    }
};

// Never destroyed: documents stay usable until the process ends.
HandleTable &table() {
    static HandleTable *t = new HandleTable;
    return *t;
}

}  // namespace

int32_t xmlHandleAddDocument(XmlDocument *document) {
    HandleTable &t = table();
    try {
        int32_t h = t.next();
        t.documents.emplace(h, DocumentHandles{});
        try {
            t.entries.emplace(h, Entry{document, nullptr, h});
        } catch (const std::bad_alloc &) {
            t.documents.erase(h);
            return 0;
        }
        return h;
    } catch (const std::bad_alloc &) {
        return 0;
    }
}

XmlDocument *xmlHandleDocument(int32_t handle) {
    auto &entries = table().entries;
    auto it = entries.find(handle);
    return it != entries.end() && !it->second.node ? it->second.document : nullptr;
}

int32_t xmlHandleAddNode(int32_t document, XmlNode *node) {
    HandleTable &t = table();
    auto doc = t.documents.find(document);
    XmlDocument *owner = xmlHandleDocument(document);
    if (doc == t.documents.end() || !owner || !node) return 0;
    try {
        // Room first, so that the push below cannot fail after the entry is
        // made; doubling keeps adding n nodes linear.
        std::vector<int32_t> &nodes = doc->second.nodes;
        if (nodes.size() == nodes.capacity()) nodes.reserve(nodes.size() * 2 + 16);
        int32_t h = t.next();
        t.entries.emplace(h, Entry{owner, node, document});
        nodes.push_back(h);
        return h;
    } catch (const std::bad_alloc &) {
        return 0;
    }
}

XmlNode *xmlHandleNode(int32_t handle, int32_t *document) {
    if (document) *document = 0;
    HandleTable &t = table();
    auto it = t.entries.find(handle);
    if (it == t.entries.end() || !it->second.node) return nullptr;
    if (document) *document = it->second.owner;
    return it->second.node;
}

int32_t xmlHandleRoot(int32_t document) {
    HandleTable &t = table();
    XmlDocument *owner = xmlHandleDocument(document);
    if (!owner || !owner->root) return 0;
    auto doc = t.documents.find(document);
    if (doc == t.documents.end()) return 0;
    if (!doc->second.root) doc->second.root = xmlHandleAddNode(document, owner->root);
    return doc->second.root;
}

XmlDocument *xmlHandleRemoveDocument(int32_t handle) {
    HandleTable &t = table();
    XmlDocument *document = xmlHandleDocument(handle);
    auto doc = t.documents.find(handle);
    if (!document || doc == t.documents.end()) return nullptr;
    for (int32_t h : doc->second.nodes) t.entries.erase(h);
    t.documents.erase(doc);
    t.entries.erase(handle);
    return document;
}

int64_t xmlHandleCount() { return int64_t(table().entries.size()); }

int32_t xmlHandleAnyDocument() {
    const HandleTable &t = table();
    return t.documents.empty() ? 0 : t.documents.begin()->first;
}

}  // namespace mx::xml
