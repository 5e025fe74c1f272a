// Comparing names without case the way Windows does for profile sections,
// profile entries and registry keys: ASCII, Latin-1 and Latin Extended-A
// letters fold to upper case.
#pragma once
#include <string>

namespace mx {

// The upper-case form of c for comparing names; other characters stay.
inline char16_t nfFold(char16_t c) {
    if (c >= u'a' && c <= u'z') return char16_t(c - 32);
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return char16_t(c - 32);
    if (c == 0xFF) return 0x178;
    if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149 &&
        c != 0x17F) {
        bool oddUpper = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
        bool isLower = oddUpper ? (c % 2 == 0) : (c % 2 == 1);
        return isLower ? char16_t(c - 1) : c;
    }
    return c;
}

// True when a and b are the same name apart from case.
inline bool nfEqual(const std::u16string &a, const std::u16string &b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (nfFold(a[i]) != nfFold(b[i])) return false;
    return true;
}

}  // namespace mx
