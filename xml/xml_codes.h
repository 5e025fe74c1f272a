// Engine result codes, encodings and write flags of the XML document engine.
// The numbers are fixed: macros see the write flags, and the error box of the
// helper library receives the result codes.
#pragma once
#include <cstdint>

namespace mx::xml {

// 0 is success; every failure is one of these negative codes.
enum XmlResult : int32_t {
    XMLERR_OK = 0,
    XMLERR_NOMEM = -2,         // no memory, or a text that cannot be converted
    XMLERR_FILE = -10,         // the file cannot be opened, any other cause
    XMLERR_EXISTS = -11,       // open failed: the file exists
    XMLERR_NOTFOUND = -12,     // open failed: file or path not found
    XMLERR_ACCESS = -13,       // open failed: access denied
    XMLERR_TOOMANY = -14,      // open failed: too many open files
    XMLERR_READ = -15,         // fewer bytes read than the file holds
    XMLERR_NOPROLOG = -20,     // no "<?xml " at the start, or no "?>"
    XMLERR_TRAILING = -21,     // more than white space after the root element
    XMLERR_NOTAGOPEN = -22,    // "<" expected at the start of an element
    XMLERR_NOTAGCLOSE = -23,   // ">" expected after a start tag or an end tag's name
    XMLERR_NOENDTAG = -24,     // "</" expected after an element's content
    XMLERR_TAGMISMATCH = -25,  // end tag name differs from the start tag name
    XMLERR_NOELEMNAME = -26,   // no element name after "<" or "</"
    XMLERR_NOEQUALS = -28,     // "=" expected after an attribute name
    XMLERR_NOQUOTE = -29,      // double quote expected around an attribute value
    XMLERR_NOCOMMENTEND = -31, // a comment without "-->"
};

// The character encoding of a document's file. Ids outside 1..4 act as 1.
enum XmlEncoding : int32_t {
    XMLENC_ISO8859_15 = 1,
    XMLENC_UTF8 = 2,
    XMLENC_ISO8859_1 = 3,
    XMLENC_WIN1252 = 4,
};

// Bits of the flags argument of the writer; other bits are ignored.
enum XmlWriteFlags : int32_t {
    XMLWF_HTML = 1,      // doctype line, no self-closing tags, void elements
    XMLWF_COMMENTS = 2,  // write each element's comment before it
    XMLWF_INDENT = 4,    // one indent character per nesting level
};

}  // namespace mx::xml
