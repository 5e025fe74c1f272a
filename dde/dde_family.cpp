// Dispatch entries of the DDE client functions (88-92): each reads its bound
// arguments and calls the plain function of dde_functions.h.
#include <new>
#include <string>

#include "dde/dde_family.h"
#include "dde/dde_functions.h"
#include "engine/args.h"
#include "engine/function_numbers.h"

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

// Activation (the fifth argument) is accepted and has no effect.
int32_t biDDEInitiate(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    const char16_t *prg = textArg(args[0], a), *topic = textArg(args[1], b);
    if (!prg || !topic) return 0;
    return ddeInitiate(prg, topic, argLong(args[2]), argLong(args[3]));
}

int32_t biDDETerminate(RunContext &, Value **args, int32_t) { return ddeTerminate(argLong(args[0])); }

int32_t biDDEExecute(RunContext &, Value **args, int32_t) {
    std::u16string a;
    const char16_t *commands = textArg(args[1], a);
    if (!commands) return -1;
    return ddeExecute(argLong(args[0]), commands, argLong(args[2]));
}

int32_t biDDEPoke(RunContext &, Value **args, int32_t) {
    std::u16string a, b;
    const char16_t *item = textArg(args[1], a), *data = textArg(args[2], b);
    if (!item || !data) return -1;
    return ddePoke(argLong(args[0]), item, data, argLong(args[3]));
}

int32_t biDDERequest(RunContext &, Value **args, int32_t) {
    std::u16string a;
    const char16_t *item = textArg(args[1], a);
    char16_t *out = argText(args[3]);
    int32_t capacity = argCapacity(args[3]);
    if (!item) {
        if (out && capacity > 0) out[0] = 0;
        return -1;
    }
    return ddeRequest(argLong(args[0]), item, argLong(args[2]), out, capacity, argLong(args[4]));
}

const DispatchEntry kEntries[] = {
    {fnum::DDEInitiate, u"C[]C[]LLL", biDDEInitiate},
    {fnum::DDETerminate, u"L", biDDETerminate},
    {fnum::DDEExecute, u"LC[]L", biDDEExecute},
    {fnum::DDEPoke, u"LC[]C[]L", biDDEPoke},
    {fnum::DDERequest, u"LC[]L*C[]L", biDDERequest},
};

}  // namespace

const DispatchFamily kDdeFamily = {"dde", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
