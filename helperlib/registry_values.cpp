// Helper library: typed registry values over the platform's registry.
#include "base/u16.h"
#include "helperlib/kelvane_registry.h"

namespace mx {

namespace {
constexpr uint32_t kColorMask = 0xFFFFFF;
}

int32_t Kelvane_ReadStringFromRegistryW(RegRoot root, const char16_t *key, int32_t, int32_t,
                                        const char16_t *name, const char16_t *def, char16_t *result,
                                        int32_t capacity) {
    std::u16string value;
    bool found = mxp_RegReadString(root, key, name, &value);
    u16Copy(result, capacity, found ? value.c_str() : def);
    return found ? 1 : 0;
}

int32_t Kelvane_ReadLongFromRegistryW(RegRoot root, const char16_t *key, int32_t, int32_t,
                                      const char16_t *name, int32_t def) {
    uint32_t value = 0;
    return mxp_RegReadDword(root, key, name, &value) ? int32_t(value) : def;
}

int32_t Kelvane_ReadColorFromRegistryW(RegRoot root, const char16_t *key, int32_t, int32_t,
                                       const char16_t *name, int32_t def) {
    uint32_t value = 0;
    return mxp_RegReadDword(root, key, name, &value) ? int32_t(value & kColorMask) : def;
}

int32_t Kelvane_WriteStringToRegistryW(RegRoot root, const char16_t *key, int32_t, int32_t,
                                       const char16_t *name, const char16_t *value) {
    return mxp_RegWriteString(root, key, name, value) ? 0 : -1;
}

int32_t Kelvane_WriteLongToRegistryW(RegRoot root, const char16_t *key, int32_t, int32_t,
                                     const char16_t *name, int32_t value) {
    return mxp_RegWriteDword(root, key, name, uint32_t(value)) ? 0 : -1;
}

int32_t Kelvane_WriteColorToRegistryW(RegRoot root, const char16_t *key, int32_t, int32_t,
                                      const char16_t *name, int32_t color) {
    return mxp_RegWriteDword(root, key, name, uint32_t(color) & kColorMask) ? 0 : -1;
}

int32_t Kelvane_ReadStringFromHKCUW(const char16_t *key, const char16_t *subkey, const char16_t *name,
                                    const char16_t *def, char16_t *buffer, int32_t capacity) {
    std::u16string path = key ? key : u"";
    if (subkey && *subkey) {
        path += u'\\';
        path += subkey;
    }
    return Kelvane_ReadStringFromRegistryW(RegRoot::kCurrentUser, path.c_str(), 0, 0, name, def, buffer,
                                           capacity);
}

}  // namespace mx
