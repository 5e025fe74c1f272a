// Dispatch entries of the XML built-ins (301 to 306): each reads its bound
// arguments and calls the plain function of xml_functions.h.
#include <new>
#include <string>

#include "engine/args.h"
#include "engine/function_numbers.h"
#include "xml/xml_family.h"
#include "xml/xml_functions.h"

namespace mx {

namespace {

// The text of a C[] argument, terminated: a vector filled up to its last
// element without a terminator is copied into holder first. Absent when
// that copy cannot be made.
const char16_t *textArg(Value *v, std::u16string &holder) {
    const char16_t *text = argText(v);
    int32_t capacity = argCapacity(v);
    if (!text) return nullptr;
    for (int32_t i = 0; i < capacity; ++i)
        if (!text[i]) return text;
    try {
        holder.assign(text, size_t(capacity > 0 ? capacity : 0));
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
    return holder.c_str();
}

int32_t biXMLCreate(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    return xml::xmlCreate(textArg(args[0], a), textArg(args[1], b));
}

int32_t biXMLDelete(RunContext &, Value **args, int32_t) { return xml::xmlDelete(argLong(args[0])); }

int32_t biXMLGetRoot(RunContext &, Value **args, int32_t) { return xml::xmlGetRoot(argLong(args[0])); }

int32_t biXMLAddChild(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    return xml::xmlAddChild(argLong(args[0]), textArg(args[1], a), textArg(args[2], b));
}

int32_t biXMLSetAttr(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    return xml::xmlSetAttr(argLong(args[0]), textArg(args[1], a), textArg(args[2], b));
}

int32_t biXMLWriteFile(RunContext &, Value **args, int32_t) {
    std::u16string a;
    return xml::xmlWriteFile(argLong(args[0]), textArg(args[1], a), argLong(args[2]));
}

const DispatchEntry kEntries[] = {
    {fnum::XMLCreate, u"C[]C[]", biXMLCreate},
    {fnum::XMLDelete, u"L", biXMLDelete},
    {fnum::XMLGetRoot, u"L", biXMLGetRoot},
    {fnum::XMLAddChild, u"LC[]C[]", biXMLAddChild},
    {fnum::XMLSetAttr, u"LC[]C[]", biXMLSetAttr},
    {fnum::XMLWriteFile, u"LC[]L", biXMLWriteFile},
};

}  // namespace

const DispatchFamily kXmlFamily = {"xml", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
