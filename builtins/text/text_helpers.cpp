#include "builtins/text/text_helpers.h"

#include "builtins/text/search.h"
#include "helperlib/kelvane_strings.h"

namespace mx {

namespace {
constexpr int32_t kAlwaysOnModes = kReplaceAll | kReplaceCutToFit | kReplaceLiteral;
constexpr int32_t kDigestBytes = 152;
constexpr int32_t kDigestUnits = 33;
}  // namespace

int32_t txtReplaceString(char16_t *s, int32_t cap, TextIn find, TextIn replace, int32_t mode) {
    TextZ f(find), r(replace);
    Kelvane_ReplaceStringW(s, cap, f.get(), r.get(), mode | kAlwaysOnModes);
    return 0;
}

int32_t txtDecodeString(char16_t *s, int32_t cap) {
    if (!s || cap < 1) return 0;
    if (txtLen(s, cap) == cap) s[cap - 1] = 0;
    return Kelvane_DecodeStringW(s);
}

int32_t txtCreateHash(TextIn s, int32_t upperBound) {
    TextZ text(s);
    return Kelvane_CreateHashW(text.get(), upperBound);
}

int32_t txtMD5(TextIn s, char16_t *dst, int32_t cap) {
    if (txtIsStringWhite(s)) {
        txtCopy(dst, cap, TextIn(u"", 1));
        return 0;
    }
    char digest[kDigestBytes] = {};
    {
        TextZ text(s);
        Kelvane_MD5(text.get(), digest, kDigestBytes);
    }
    // The digest is ASCII, which every 8-bit code page maps to the same units.
    char16_t wide[kDigestUnits];
    int32_t n = 0;
    for (; n < kDigestUnits - 1 && digest[n]; ++n) wide[n] = char16_t(static_cast<unsigned char>(digest[n]));
    wide[n] = 0;
    txtCopy(dst, cap, TextIn(wide, kDigestUnits));
    return 0;
}

}  // namespace mx
