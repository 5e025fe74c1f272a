#include "builtins/files/modules.h"

#include "base/path_surgery.h"
#include "builtins/files/version_format.h"
#include "base/u16.h"
#include "platform/paths.h"

namespace mx {

int32_t mdGetAppName(ModuleHandle host, char16_t *buf, int32_t capacity) {
    mxp_ModuleFileName(host, buf, capacity);
    return 0;
}

int32_t mdGetProgPath(ModuleHandle host, char16_t *buf, int32_t capacity) {
    mxp_ModuleFileName(host, buf, capacity);
    psStripFilenameIn(buf, capacity);
    return 1;
}

int32_t mdGetUserPath(char16_t *buf, int32_t capacity) {
    mxp_WindowsDirectory(buf, capacity);
    return 0;
}

int32_t mdGetCurrentPath(char16_t *buf, int32_t capacity) { return mxp_CurrentDirectory(buf, capacity); }

int32_t mdLongToShortFilename(const char16_t *path, char16_t *buf, int32_t capacity) {
    return mxp_ShortPathName(path, buf, capacity);
}

int32_t mdGetModuleVersion(const char16_t *module, char16_t *buf, int32_t capacity, const char16_t *format) {
    u16Copy(buf, capacity, u"");
    uint16_t version[4];
    if (!mxp_FileVersion(module, version)) return 2;
    vfFormat(buf, capacity, u16IsWhiteText(format) ? u"%d.%d.%d.%d" : format, version);
    return 1;
}

}  // namespace mx
