// The writer: a document as an XML (or simple HTML) file in the document's
// encoding, one element per line with CR LF line ends.
#pragma once
#include <cstdint>

#include "platform/files.h"
#include "xml/xml_model.h"

namespace mx::xml {

// Maps why a file could not be opened to -10 ... -14.
int32_t OpenErrorCode(OpenError why);

// Creates or truncates the file (binary, shared) and writes the declaration
// (or with XMLWF_HTML the doctype and an empty line) and the root element.
// Returns 0; -10 to -14 when the file cannot be opened (nothing written);
// -2 when an element name or a comment cannot be converted (the file keeps
// what was written before). Write errors on the open file are not detected.
int32_t WriteDocument(const XmlDocument *document, const char16_t *fileName, int32_t flags);

// Writes node and its subtree at nesting depth level (0 for the root) to an
// open file. An element with a blank name is skipped with its subtree.
// Returns 0, or -2 when a name or comment cannot be converted.
int32_t WriteElement(const XmlDocument *document, MxpFile *file, const XmlNode *node, int32_t level,
                     int32_t flags);

}  // namespace mx::xml
