// The native build compiles the string table in (generated from
// resources/messages.txt) and knows its own version from the build.
#include "base/u16.h"
#include "mx_version.h"
#include "platform/platform.h"

namespace mx {

namespace {
struct StringResource {
    uint32_t id;
    const char16_t *text;
};
const StringResource kStrings[] = {
#include "messages_table.inc"
};
}  // namespace

int32_t mxp_LoadString(ModuleHandle, uint32_t id, char16_t *buf, int32_t capacity) {
    for (const StringResource &s : kStrings)
        if (s.id == id) return u16Copy(buf, capacity, s.text);
    return u16Copy(buf, capacity, u"");
}

int32_t mxp_ModuleFileVersion(ModuleHandle, char16_t *buf, int32_t capacity) {
    return u16Copy(buf, capacity, MX_VERSION_TEXT);
}

}  // namespace mx
