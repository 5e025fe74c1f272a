// Rows of the XML document functions (no German twins).
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kXmlRows[] = {
    {u"XMLCreate", fnum::XMLCreate, u"C[]C[]", u"rootNode, code"},
    {u"XMLDelete", fnum::XMLDelete, u"L", u"xmlctl"},
    {u"XMLGetRoot", fnum::XMLGetRoot, u"L", u"xmlctl"},
    {u"XMLAddChild", fnum::XMLAddChild, u"LC[]C[]", u"node, name, content"},
    {u"XMLSetAttr", fnum::XMLSetAttr, u"LC[]C[]", u"node, name, value"},
    {u"XMLWriteFile", fnum::XMLWriteFile, u"LC[]L", u"xmlctl, filename, flags"},
};

}  // namespace mx::rows
