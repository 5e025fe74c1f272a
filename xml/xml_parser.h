// The load operation: a strict reader for a small subset of XML that fills
// a document from a file's bytes, replacing its tree.
//
//   document  := [EF BB BF] ws "<?xml " ws (attribute [ws])* any* "?>" ws element ws END
//   element   := ws [comment ws] "<" name ws (attribute [ws])*
//                ( "/>" | ">" ws [text ws] (element ws)* "</" name ">" )
//   comment   := "<!--" any* "-->"
//   attribute := name ws "=" ws '"' valuebyte* '"'
//   name      := [A-Za-z_] [A-Za-z0-9_-]*
//   ws        := byte 0x01 to 0x20, any number
//   text      := bytes up to the next "<" (or the end)
//   valuebyte := a byte the writer leaves plain (xml_escape.h), or "&"
//
// Attributes must be separated by white space (the loop ends at the first
// one that is not followed by white space); the end tag must repeat the
// start tag's name exactly. Names, values, texts and comments are decoded in
// the document's encoding (numeric references included); "encoding" in the
// declaration switches that encoding.
#pragma once
#include <cstdint>

#include "xml/xml_model.h"

namespace mx::xml {

// Clears the root, reads the whole file (binary, shared) and parses it.
// Returns 0; -10 to -14 when the file cannot be opened; -2 when memory runs
// out; -15 when fewer bytes arrive than the file holds; or a parser code.
// *line and *column tell where parsing failed (both 0 otherwise).
int32_t LoadDocument(XmlDocument *document, const char16_t *fileName, int32_t *line,
                     int32_t *column);

// Parses a zero-terminated byte text (absent: empty) into the document.
// Returns 0 or the first negative code met, with the failure's line
// (1 + LF bytes before it) and column (bytes since the line's start + 1).
int32_t ParseDocument(XmlDocument *document, const char *text, int32_t *line, int32_t *column);

// Reads one element with its subtree into node from *pos, advancing *pos.
// Returns 0 or a negative code (*pos then stands where the failure was found).
int32_t ParseElement(XmlDocument *document, XmlNode *node, const char **pos);

}  // namespace mx::xml
