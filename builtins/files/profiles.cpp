#include "builtins/files/profiles.h"

#include "base/path_surgery.h"
#include "base/u16.h"
#include "platform/paths.h"
#include "platform/profile.h"

namespace mx {

namespace {

constexpr int32_t kModuleNameCapacity = 4096;
constexpr int32_t kDefaultNameLimit = 123;  // ".ini" is added below this length

// The profile a name selects: the name cut to 127 characters, or the
// default profile for an empty name.
void profileName(ModuleHandle host, const char16_t *file, char16_t *buf) {
    if (file && *file) u16Copy(buf, kProfileNameCapacity, file);
    else pfDefaultProfile(host, buf);
}

}  // namespace

void pfDefaultProfile(ModuleHandle host, char16_t *buf) {
    char16_t module[kModuleNameCapacity];
    mxp_ModuleFileName(host, module, kModuleNameCapacity);
    psStripPath(module);
    psStripExtension(module);
    u16Copy(buf, kProfileNameCapacity, module);
    if (u16Len(module) < kDefaultNameLimit) u16Append(buf, kProfileNameCapacity, u".ini");
}

int32_t pfReadProfile(ModuleHandle host, const char16_t *file, const char16_t *section,
                      const char16_t *item, char16_t *buf, int32_t capacity) {
    char16_t name[kProfileNameCapacity];
    profileName(host, file, name);
    mxp_ProfileRead(name, u16IsWhiteText(section) ? nullptr : section, u16IsWhiteText(item) ? nullptr : item, u"", buf,
                    capacity);
    return 0;
}

int32_t pfWriteProfile(ModuleHandle host, const char16_t *file, const char16_t *section,
                       const char16_t *item, const char16_t *text) {
    char16_t name[kProfileNameCapacity];
    profileName(host, file, name);
    mxp_ProfileWrite(name, section, item, text);
    return 0;
}

int32_t pfDeleteProfileItem(const char16_t *file, const char16_t *section, const char16_t *item) {
    char16_t name[kProfileNameCapacity];
    u16Copy(name, kProfileNameCapacity, file);
    return mxp_ProfileWrite(name, section, item, nullptr);
}

int32_t pfDeleteProfileSection(const char16_t *file, const char16_t *section) {
    char16_t name[kProfileNameCapacity];
    u16Copy(name, kProfileNameCapacity, file);
    return mxp_ProfileWrite(name, section, nullptr, nullptr);
}

}  // namespace mx
