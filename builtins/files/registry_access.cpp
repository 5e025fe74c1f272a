#include "builtins/files/registry_access.h"

#include "helperlib/kelvane_registry.h"

namespace mx {

int32_t rgReadString(int32_t root, const char16_t *key, const char16_t *item, const char16_t *def,
                     char16_t *result, int32_t capacity) {
    Kelvane_ReadStringFromRegistryW(regRootOf(root), key, 0, 0, item, def, result, capacity);
    return 0;
}

int32_t rgReadInt(int32_t root, const char16_t *key, const char16_t *item, int32_t def) {
    return Kelvane_ReadLongFromRegistryW(regRootOf(root), key, 0, 0, item, def);
}

int32_t rgReadColor(int32_t root, const char16_t *key, const char16_t *item, int32_t *red,
                    int32_t *green, int32_t *blue) {
    int32_t color = Kelvane_ReadColorFromRegistryW(regRootOf(root), key, 0, 0, item,
                                                   rgPackColor(*red, *green, *blue));
    *red = color & 0xFF;
    *green = (color >> 8) & 0xFF;
    *blue = (color >> 16) & 0xFF;
    return color;
}

int32_t rgWriteString(int32_t root, const char16_t *key, const char16_t *item, const char16_t *value) {
    Kelvane_WriteStringToRegistryW(regRootOf(root), key, 0, 0, item, value);
    return 0;
}

int32_t rgWriteInt(int32_t root, const char16_t *key, const char16_t *item, int32_t value) {
    Kelvane_WriteLongToRegistryW(regRootOf(root), key, 0, 0, item, value);
    return 0;
}

int32_t rgWriteColor(int32_t root, const char16_t *key, const char16_t *item, int32_t red, int32_t green,
                     int32_t blue) {
    Kelvane_WriteColorToRegistryW(regRootOf(root), key, 0, 0, item, rgPackColor(red, green, blue));
    return 0;
}

int32_t rgDeleteItem(int32_t root, const char16_t *key, const char16_t *item) {
    return mxp_RegDeleteValue(regRootOf(root), key, item);
}

int32_t rgDeleteKey(int32_t root, const char16_t *key) {
    mxp_RegDeleteKey(regRootOf(root), key);
    return 0;
}

}  // namespace mx
