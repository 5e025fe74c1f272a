#include "builtins/dispatch.h"

namespace mx {

namespace {

constexpr int32_t kHighestNumber = 306;
constexpr int32_t kListDialog = 9000;
constexpr int32_t kListDialogAnsi = 9001;

// Every family of built-ins; together they are the list of what is implemented.
const DispatchFamily *const kFamilies[] = {
    &kLanguageFamily, &kTextFamily, &kNumberFamily, &kFileFamily, &kXmlFamily,
};

struct NumberTable {
    BuiltinHandler byNumber[kHighestNumber + 1] = {};
    BuiltinHandler listDialog = nullptr;
    BuiltinHandler listDialogAnsi = nullptr;

    NumberTable() {
        for (const DispatchFamily *family : kFamilies)
            for (int32_t i = 0; i < family->count; ++i) add(family->entries[i]);
    }
    void add(const DispatchEntry &e) {
        if (e.number == kListDialog) listDialog = e.handler;
        else if (e.number == kListDialogAnsi) listDialogAnsi = e.handler;
        else if (e.number >= 1 && e.number <= kHighestNumber) byNumber[e.number] = e.handler;
    }
    BuiltinHandler find(int32_t number) const {
        if (number == kListDialog) return listDialog;
        if (number == kListDialogAnsi) return listDialogAnsi;
        if (number >= 1 && number <= kHighestNumber) return byNumber[number];
        return nullptr;
    }
};

const NumberTable &numberTable() {
    static const NumberTable table;
    return table;
}

}  // namespace

int32_t biDispatch(RunContext &ctx, int32_t number, Value **args, int32_t count) {
    BuiltinHandler handler = numberTable().find(number);
    return handler ? handler(ctx, args, count) : 0;
}

bool biImplemented(int32_t number) { return numberTable().find(number) != nullptr; }

}  // namespace mx
