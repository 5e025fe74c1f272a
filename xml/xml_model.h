// The document model: one XML document in memory as a tree of elements with
// attributes, text and comments, all text UTF-16. Plain records with owning
// pointers and doubly linked lists; every operation answers an engine result
// code (xml_codes.h) and leaves the tree consistent when memory runs out.
#pragma once
#include <cstdint>

#include "xml/xml_codes.h"

namespace mx::xml {

struct XmlAttribute {
    XmlAttribute *previous;  // not owned; absent for the first
    XmlAttribute *next;      // owned through the node's list; absent for the last
    char16_t *name;          // owned, or absent
    char16_t *value;         // owned; never absent when set through SetAttribute
};

struct XmlNode {
    XmlNode *parent;           // not owned; absent for the root
    XmlNode *previousSibling;  // not owned; absent for a first child
    XmlNode *nextSibling;      // owned through the parent's child list
    XmlNode *firstChild;       // owned
    XmlNode *lastChild;
    XmlAttribute *firstAttribute;  // owned
    XmlAttribute *lastAttribute;
    char16_t *name;     // owned, or absent
    char16_t *text;     // owned character content, or absent
    uint32_t childCount;      // zero exactly when there are no children
    uint32_t attributeCount;
    char16_t *comment;  // owned comment written before the element, or absent
};

struct XmlDocument {
    XmlNode *root;         // owned, created with the document, never replaced
    XmlEncoding encoding;  // the file's encoding
    char indent;           // repeated once per nesting level by the writer
};

// A new document: encoding UTF-8, indent character space, an empty root.
// Absent when the document record cannot be allocated; a document whose root
// could not be allocated has an absent root.
XmlDocument *CreateDocument();

// Releases the whole tree, the root and the document. Absent is harmless.
void DestroyDocument(XmlDocument *document);

// Releases and nulls the node's name, text and comment, all its children with
// everything below them and all its attributes; the counts become 0. The
// node, its parent and its siblings stay.
void ClearNode(XmlNode *node);

// Replaces the name by a copy of name (absent stays absent). 0 or -2 (the
// name is then absent).
int32_t SetName(XmlNode *node, const char16_t *name);

// Replaces the text by a copy of text, the empty text for absent. 0 or -2.
int32_t SetText(XmlNode *node, const char16_t *text);

// Replaces the comment by a copy of text (absent stays absent) in which
// every "-->" has become ">", scanning left to right. 0 or -2.
int32_t SetComment(XmlNode *node, const char16_t *text);

// Appends a new child named by a copy of name (absent: no name) as the last
// child of node. 0 with *child set, or -2 with node unchanged.
int32_t AddChild(XmlNode *node, const char16_t *name, XmlNode **child);

// The first attribute whose name equals name code unit by code unit (absent
// names compare as empty), or absent.
XmlAttribute *FindAttribute(const XmlNode *node, const char16_t *name);

// Appends an attribute with all fields absent. 0 with *attribute set, or -2.
int32_t AddAttribute(XmlNode *node, XmlAttribute **attribute);

// Sets the attribute name to value: an existing one keeps its place, a new
// one is appended. Answers the code of storing the value.
int32_t SetAttribute(XmlNode *node, const char16_t *name, const char16_t *value);

}  // namespace mx::xml
