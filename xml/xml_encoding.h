// The encodings of XML files and the conversions of texts between UTF-16
// and a document's encoding.
#pragma once
#include <cstdint>

#include "xml/xml_model.h"

namespace mx::xml {

// The encoding a name stands for, ignoring the case of ASCII letters:
// blank -> ISO-8859-15; "ISO-8859-15" -> 1; "ISO-8859-1" -> 3; any other
// name starting "ISO-8859" -> 1; "WINDOWS-1252" -> 4; "UTF8" or "UTF-8" -> 2;
// anything else -> 1.
XmlEncoding EncodingFromName(const char16_t *name);

// The canonical name ("ISO-8859-15", "UTF-8", "ISO-8859-1", "WINDOWS-1252");
// an unknown id counts as 1.
const char *EncodingName(int32_t id);

// The code page of the encoding; an unknown id counts as 1.
uint32_t EncodingCodePage(int32_t id);

// The first n units of text in the document's encoding, as a new
// zero-terminated byte text owned by the caller (release with xmlFree), its
// length in *outLength. n = 0 gives the empty byte text. Returns 0, or -2
// when memory runs out or the conversion gives no bytes (*out absent).
int32_t EncodeText(const XmlDocument *document, const char16_t *text, int32_t n, char **out,
                   int32_t *outLength = nullptr);

// n bytes in the document's encoding as a new UTF-16 text owned by the
// caller, numeric character references decoded (DecodeReferences). n = 0
// gives the empty text. Returns 0, or -2 when memory runs out or the
// conversion gives no characters (*out absent).
int32_t DecodeText(const XmlDocument *document, const char *bytes, int32_t n, char16_t **out);

// Decodes numeric character references of the n units of text in place and
// returns the new length. A reference starts at "&#" with at least six units
// left from the "&": "&#x" reads hexadecimal digits (other units count 0),
// any other "&#" reads decimal digits as (low byte - '0') without checking;
// both run to ";" or the end, and the whole reference becomes one unit, its
// value cut to 16 bits. Named entities stay.
int32_t DecodeReferences(char16_t *text, int32_t n);

}  // namespace mx::xml
