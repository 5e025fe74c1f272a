// Dispatch entries of the language built-ins.
#include "builtins/args.h"
#include "builtins/dispatch.h"

namespace mx {

namespace {
const DispatchEntry kEntries[] = {
    {0, nullptr},  // placeholder: no entries yet
};
}  // namespace

const DispatchFamily kLanguageFamily = {"language", kEntries, 0};

}  // namespace mx
