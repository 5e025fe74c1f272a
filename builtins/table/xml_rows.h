// Rows of the XML document functions (no German twins).
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kXmlRows[] = {
    {u"XMLCreate", 301, u"C[]C[]", u"rootNode, code"},
    {u"XMLDelete", 302, u"L", u"xmlctl"},
    {u"XMLGetRoot", 303, u"L", u"xmlctl"},
    {u"XMLAddChild", 304, u"LC[]C[]", u"node, name, content"},
    {u"XMLSetAttr", 305, u"LC[]C[]", u"node, name, value"},
    {u"XMLWriteFile", 306, u"LC[]L", u"xmlctl, filename, flags"},
};

}  // namespace mx::rows
