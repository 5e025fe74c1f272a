#include "builtins/numbers/colours.h"
#include "base/u16.h"

namespace mx {

namespace {

void set(int32_t *target, int32_t v) {
    if (target) *target = v;
}
}  // namespace

int32_t numHtmlToRgb(TextIn html, int32_t *red, int32_t *green, int32_t *blue) {
    set(red, 0), set(green, 0), set(blue, 255);
    if (txtLen(html) != 7 || html.s[0] != u'#') return -1;
    int32_t v[6];
    for (int32_t i = 0; i < 6; ++i)
        if ((v[i] = u16HexDigit(html.s[i + 1])) < 0) return -1;
    set(red, v[0] * 16 + v[1]), set(green, v[2] * 16 + v[3]), set(blue, v[4] * 16 + v[5]);
    return 0;
}

int32_t numRgbToHtml(int32_t red, int32_t green, int32_t blue, char16_t *dst, int32_t cap) {
    const char16_t *hex = u"0123456789ABCDEF";
    char16_t text[8] = {u'#'};
    int32_t parts[3] = {red, green, blue};
    for (int32_t i = 0; i < 3; ++i) {
        int32_t c = parts[i] < 0 || parts[i] > 255 ? 255 : parts[i];
        text[1 + 2 * i] = hex[c / 16];
        text[2 + 2 * i] = hex[c % 16];
    }
    txtCopy(dst, cap, TextIn(text, 8));
    return 0;
}

}  // namespace mx
