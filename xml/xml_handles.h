// Handles: the non-zero longs by which macros name documents and nodes.
// Addresses do not fit in 32 bits on 64-bit builds, so a process-wide table
// maps handles to objects. Handles count up from 1 and are never reused
// while the table can avoid it; deleting a document removes the handles of
// the document and of all its nodes, so stale, unknown and wrong-kind
// handles are recognised. The table lives as long as the process: documents
// outlive the run that created them.
#pragma once
#include <cstdint>

#include "xml/xml_model.h"

namespace mx::xml {

// A new handle for document. Returns it, or 0 when memory runs out.
int32_t xmlHandleAddDocument(XmlDocument *document);

// The document of a document handle; absent for 0, unknown, deleted and
// node handles.
XmlDocument *xmlHandleDocument(int32_t handle);

// A new handle for node, which belongs to the document of handle document.
// Returns it, or 0 when memory runs out or document is not a document handle.
int32_t xmlHandleAddNode(int32_t document, XmlNode *node);

// The node of a node handle and the handle of its document; absent for 0,
// unknown, deleted and document handles.
XmlNode *xmlHandleNode(int32_t handle, int32_t *document = nullptr);

// The handle of the document's root node, the same on every call (made on
// the first). 0 when document is not a document handle, the root is absent
// or memory runs out.
int32_t xmlHandleRoot(int32_t document);

// Forgets the document handle and the handles of its nodes and returns the
// document for the caller to destroy; absent when handle is not a document
// handle (nothing changes then).
XmlDocument *xmlHandleRemoveDocument(int32_t handle);

// Number of live handles (documents and nodes), for tests.
int64_t xmlHandleCount();

// The handle of some live document, 0 when there is none; for tests and
// fuzzing, which delete every document between inputs.
int32_t xmlHandleAnyDocument();

}  // namespace mx::xml
