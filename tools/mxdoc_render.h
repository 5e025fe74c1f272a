// The function reference (docs/functions.md) as text, produced from the
// built-in function table, the list of implemented numbers and the
// one-line descriptions, so that it can never disagree with the table.
#pragma once
#include <string>

namespace mxdoc {

// The whole reference as Markdown (UTF-8, "\n" line ends). No side effects.
std::string docRender();

}  // namespace mxdoc
