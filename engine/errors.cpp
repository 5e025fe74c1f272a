#include "engine/errors.h"

#include "base/u16.h"
#include "helperlib/kelvane_message.h"
#include "engine/process_state.h"
#include "platform/platform.h"

namespace mx {

namespace {
constexpr int32_t kMessageCapacity = 200;
constexpr uint32_t kMacroErrorMessageNumber = 0x8004A001;
constexpr uint32_t kDefaultMessageNumber = 0x8004A000;

// String number -> message number of the system error box.
const KelvaneTranslatePair kMessageNumbers[] = {
    {100, 0x8004A001},
    {2000, 0x8004A02C},
    {2001, 0x8004A029},
    {0, 0},
};
}  // namespace

void errSet(RunContext &ctx, int32_t code, const char16_t *arg) {
    ctx.errorCode = code;
    u16Copy(ctx.errorArg, kErrorArgCapacity, arg);
}

void errSetN(RunContext &ctx, int32_t code, const char16_t *arg, int32_t n) {
    ctx.errorCode = code;
    int32_t i = 0;
    for (; arg && i < n && i < kErrorArgCapacity - 1; ++i) ctx.errorArg[i] = arg[i];
    ctx.errorArg[i] = 0;
}

int32_t errOpenFailure(OpenError why) {
    switch (why) {
        case OpenError::kNotFound: return kErrFileNotFound;
        case OpenError::kAccessDenied: return kErrFileAccess;
        case OpenError::kExists: return kErrFileExists;
        case OpenError::kTooManyOpen: return kErrTooManyFiles;
        default: return kErrFile;
    }
}

int32_t errLoadMessage(uint32_t number, char16_t *buf, int32_t capacity) {
    mxp_LoadString(gProcess.module, number, buf, capacity);
    return TLX_TranslateStringW(gProcess.tlxModuleName, 0, buf, capacity);
}

int32_t errFormatMessage(const RunContext &ctx, char16_t *buf, int32_t capacity) {
    char16_t msg[kMessageCapacity];
    int32_t len = errLoadMessage(uint32_t(ctx.errorCode), msg, kMessageCapacity);
    int32_t argLen = u16Len(ctx.errorArg);
    for (int32_t i = 0; i + 1 < len; ++i) {
        if (msg[i] != u'%' || msg[i + 1] != u's') continue;
        if (len - 2 + argLen + 1 < kMessageCapacity - 1) {
            char16_t out[kMessageCapacity];
            u16Copy(out, i + 1, msg);
            u16Append(out, kMessageCapacity, ctx.errorArg);
            u16Append(out, kMessageCapacity, msg + i + 2);
            return u16Copy(buf, capacity, out);
        }
        break;
    }
    return u16Copy(buf, capacity, msg);
}

namespace {
// A message record of the library's own texts: title 101, one error icon.
KelvaneMessage libraryMessage(uint32_t textId, const char16_t *a1, const char16_t *a2,
                              const char16_t *a3, uint32_t messageNumber) {
    KelvaneMessage box{};
    box.module = gProcess.module;
    box.titleId = kErrTitle;
    box.textId = textId;
    box.tlxModule = gProcess.tlxModuleName;
    box.args[0] = a1;
    box.args[1] = a2;
    box.args[2] = a3;
    box.style = 1;
    box.messageNumber = messageNumber;
    return box;
}
}  // namespace

void errShowMacroError(const RunContext &ctx) {
    char16_t message[kMessageCapacity];
    errFormatMessage(ctx, message, kMessageCapacity);
    char16_t line[16];
    u16FromLong(line, 16, ctx.line);
    KelvaneMessage box =
        libraryMessage(kErrFrame, line, ctx.macroTitle, message, kMacroErrorMessageNumber);
    box.owner = ctx.hostWindow;  // the box belongs to the host's window
    Kelvane_Message_BoxW(&box);
}

void errShowSystemError(uint32_t number, const char16_t *a1, const char16_t *a2,
                        const char16_t *a3) {
    KelvaneMessage box = libraryMessage(
        number, a1, a2, a3, Kelvane_Translate(number, kMessageNumbers, 0, kDefaultMessageNumber, 0));
    Kelvane_Message_BoxW(&box);
}

}  // namespace mx
