// Dispatch entries of the numbers built-ins.
#include "builtins/args.h"
#include "builtins/dispatch.h"

namespace mx {

namespace {
const DispatchEntry kEntries[] = {
    {0, nullptr},  // placeholder: no entries yet
};
}  // namespace

const DispatchFamily kNumberFamily = {"numbers", kEntries, 0};

}  // namespace mx
