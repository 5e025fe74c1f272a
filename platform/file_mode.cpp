// Mode text grammar:
//   mode   = blank* letter flag* [ "," blank* "ccs" blank* "=" blank* name blank* ]
//   letter = r | w | a            (either case)
//   flag   = "+" | "t" | "b" | any other character but ","   (others ignored)
//   name   = UTF-8 | UTF-16LE | UNICODE                       (any case)
#include "platform/file_mode.h"

#include <cstdint>

namespace mx {

namespace {

char16_t fold(char16_t c) { return c >= u'a' && c <= u'z' ? char16_t(c - 32) : c; }

// True when p starts with word (ASCII, compared without case); moves p past it.
bool takeWord(const char16_t *&p, const char *word) {
    const char16_t *q = p;
    for (; *word; ++word, ++q)
        if (fold(*q) != fold(char16_t(*word))) return false;
    p = q;
    return true;
}

void skipBlanks(const char16_t *&p) {
    while (*p == u' ') ++p;
}

bool readLetter(char16_t c, FileMode &m) {
    switch (fold(c)) {
        case u'R': m.read = true; return true;
        case u'W': m.write = m.create = m.truncate = true; return true;
        case u'A': m.write = m.create = m.append = true; return true;
        default: return false;
    }
}

bool readCcs(const char16_t *&p, FileMode &m) {
    skipBlanks(p);
    if (!takeWord(p, "ccs")) return false;
    skipBlanks(p);
    if (*p++ != u'=') return false;
    skipBlanks(p);
    if (takeWord(p, "UTF-8")) m.ccs = Ccs::kUtf8;
    else if (takeWord(p, "UTF-16LE")) m.ccs = Ccs::kUtf16;
    else if (takeWord(p, "UNICODE")) m.ccs = Ccs::kUnicode;
    else return false;
    skipBlanks(p);
    return *p == 0;
}

}  // namespace

FileMode fileModeParse(const char16_t *mode) {
    FileMode m;
    if (!mode) return m;
    const char16_t *p = mode;
    skipBlanks(p);
    if (!readLetter(*p++, m)) return FileMode{};
    for (; *p && *p != u','; ++p) {
        if (*p == u'+') m.read = m.write = true;
        else if (*p == u'b' || *p == u'B') m.text = false;
        else if (*p == u't') m.text = true;
    }
    if (*p == u',' && !readCcs(++p, m)) return FileMode{};
    m.valid = true;
    return m;
}

}  // namespace mx
