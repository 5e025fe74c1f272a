// The XML built-ins on plain values: documents and nodes named by handles
// (xml_handles.h), texts as terminated UTF-16. None of them sets a run
// error; trouble is shown in a box and answered through the result. A
// handle that names no live object of the right kind is answered with the
// function's failure result and no box.
#pragma once
#include <cstdint>

namespace mx::xml {

// A new document with root element rootNode and the encoding named by code
// (blank or unknown: ISO-8859-15). Returns its handle; 0 (or -1 when the
// root is missing) after the system box "s Speichrmangel".
int32_t xmlCreate(const char16_t *rootNode, const char16_t *code);

// Destroys the document with all its nodes; every handle of it becomes
// invalid. Returns 1 in every case (0 and invalid handles change nothing).
int32_t xmlDelete(int32_t xmlctl);

// The handle of the document's root element, the same on every call; 0 for
// an invalid handle, or after the system box when memory runs out.
int32_t xmlGetRoot(int32_t xmlctl);

// Appends a child element name with the text content to node. Returns the
// child's handle; 0 for node 0 or an invalid handle, or after the XML error
// box when memory runs out.
int32_t xmlAddChild(int32_t node, const char16_t *name, const char16_t *content);

// Sets attribute name of node to value (replacing one of the same name in
// place). Returns 1; 2 for node 0 or an invalid handle, or after the XML
// error box when memory runs out.
int32_t xmlSetAttr(int32_t node, const char16_t *name, const char16_t *value);

// Writes the document to filename with the XMLWF_ flags. Returns 1; 2 for an
// invalid handle, or after the XML error box naming the file when the write
// fails.
int32_t xmlWriteFile(int32_t xmlctl, const char16_t *filename, int32_t flags);

}  // namespace mx::xml
