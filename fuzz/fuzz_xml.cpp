// Feeds arbitrary bytes to the XML load operation's parser.
#include <cstddef>
#include <cstdint>
#include <string>

#include "xml/xml_model.h"
#include "xml/xml_parser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    std::string text(reinterpret_cast<const char *>(data), size);
    mx::xml::XmlDocument *doc = mx::xml::CreateDocument();
    if (!doc) return 0;
    int32_t line = 0, column = 0;
    mx::xml::ParseDocument(doc, text.c_str(), &line, &column);
    mx::xml::DestroyDocument(doc);
    return 0;
}
