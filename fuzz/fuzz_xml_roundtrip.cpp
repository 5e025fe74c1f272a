// XML write and load: a document built from fuzzed names, texts, attribute
// values and encoding is written to a scratch file and loaded again. Nothing
// may fault; a document whose names are plain letters and whose texts are
// printable ASCII must load back with the same root name, text and value.
#include <unistd.h>

#include <cstdlib>

#include "fuzz_input.h"
#include "xml/xml_model.h"
#include "xml/xml_parser.h"
#include "xml/xml_writer.h"

namespace {
std::u16string gPath;

bool letters(const std::u16string &s) {
    if (s.empty()) return false;
    for (char16_t c : s)
        if (!((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'))) return false;
    return true;
}
bool printable(const std::u16string &s) {
    for (char16_t c : s)
        if (c < 0x21 || c > 0x7E) return false;  // blanks at the ends are not kept
    return true;
}
}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    char dir[] = "/tmp/mxfuzzxml.XXXXXX";
    if (!mkdtemp(dir)) std::abort();
    std::string p = std::string(dir) + "/d.xml";
    gPath.assign(p.begin(), p.end());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    using namespace mx::xml;
    FuzzInput in{data, size};
    uint8_t options = in.byte();
    bool wide = options & 1;
    int32_t flags = (options >> 1) & 7;
    std::u16string rootName = in.text(wide), text = in.text(wide), attr = in.text(wide),
                   value = in.text(wide), child = in.text(wide), comment = in.text(wide);
    XmlDocument *doc = CreateDocument();
    if (!doc) return 0;
    doc->encoding = XmlEncoding(1 + (options >> 4) % 4);
    SetName(doc->root, rootName.c_str());
    SetText(doc->root, text.c_str());
    SetAttribute(doc->root, attr.c_str(), value.c_str());
    XmlNode *c = nullptr;
    if (AddChild(doc->root, child.c_str(), &c) == 0 && c) SetComment(c, comment.c_str());
    int32_t written = WriteDocument(doc, gPath.c_str(), flags);
    XmlDocument *back = CreateDocument();
    int32_t line = 0, column = 0;
    int32_t loaded = back ? LoadDocument(back, gPath.c_str(), &line, &column) : -2;
    bool plain = letters(rootName) && letters(attr) && letters(child) && printable(text) &&
                 printable(value) && !(flags & 3);
    if (written == 0 && plain && back) {
        if (loaded != 0) std::abort();
        if (std::u16string(back->root->name) != rootName) std::abort();
        XmlAttribute *a = FindAttribute(back->root, attr.c_str());
        if (!a || std::u16string(a->value) != value) std::abort();
    }
    DestroyDocument(back);
    DestroyDocument(doc);
    return 0;
}
