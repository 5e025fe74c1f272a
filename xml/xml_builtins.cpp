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

int32_t biXMLCreate(RunContext &, Value **args, int32_t) {
    return xml::xmlCreate(ArgTextZ(args[0]).get(), ArgTextZ(args[1]).get());
}

int32_t biXMLDelete(RunContext &, Value **args, int32_t) { return xml::xmlDelete(argLong(args[0])); }

int32_t biXMLGetRoot(RunContext &, Value **args, int32_t) { return xml::xmlGetRoot(argLong(args[0])); }

int32_t biXMLAddChild(RunContext &, Value **args, int32_t) {
    return xml::xmlAddChild(argLong(args[0]), ArgTextZ(args[1]).get(), ArgTextZ(args[2]).get());
}

int32_t biXMLSetAttr(RunContext &, Value **args, int32_t) {
    return xml::xmlSetAttr(argLong(args[0]), ArgTextZ(args[1]).get(), ArgTextZ(args[2]).get());
}

int32_t biXMLWriteFile(RunContext &, Value **args, int32_t) {
    return xml::xmlWriteFile(argLong(args[0]), ArgTextZ(args[1]).get(), argLong(args[2]));
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
