// Dispatch entries of the text built-ins.
#include "builtins/args.h"
#include "builtins/dispatch.h"

namespace mx {

namespace {
const DispatchEntry kEntries[] = {
    {0, nullptr},  // placeholder: no entries yet
};
}  // namespace

const DispatchFamily kTextFamily = {"text", kEntries, 0};

}  // namespace mx
