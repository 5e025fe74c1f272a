#include "base/case_rules.h"

namespace mx {

namespace {

// Latin Extended-A pairs capital and small letters as neighbours: the capital
// is even in U+0100..U+0137 and U+014A..U+0177, odd in U+0139..U+0148 and
// U+0179..U+017E. U+0130, U+0131, U+0138, U+0149 and U+017F have no partner
// in the Windows tables; U+0178 pairs with U+00FF.
bool extendedPairCapital(char16_t c, bool *isCapital) {
    if ((c >= 0x100 && c <= 0x12F) || (c >= 0x132 && c <= 0x137) || (c >= 0x14A && c <= 0x177)) {
        *isCapital = (c % 2) == 0;
        return true;
    }
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) {
        *isCapital = (c % 2) == 1;
        return true;
    }
    return false;
}

char16_t foldForName(char16_t c) { return c < kLatinCaseEnd ? caseLatinUpper(c) : c; }

}  // namespace

char16_t caseLatinUpper(char16_t c) {
    if (c >= u'a' && c <= u'z') return char16_t(c - 32);
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return char16_t(c - 32);
    if (c == 0xFF) return 0x178;
    bool capital = false;
    if (extendedPairCapital(c, &capital) && !capital) return char16_t(c - 1);
    return c;
}

char16_t caseLatinLower(char16_t c) {
    if (c >= u'A' && c <= u'Z') return char16_t(c + 32);
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return char16_t(c + 32);
    if (c == 0x178) return 0xFF;
    bool capital = false;
    if (extendedPairCapital(c, &capital) && capital) return char16_t(c + 1);
    return c;
}

bool caseEqualNames(const std::u16string &a, const std::u16string &b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (foldForName(a[i]) != foldForName(b[i])) return false;
    return true;
}

std::u16string caseFoldName(const std::u16string &name) {
    std::u16string folded(name);
    for (char16_t &c : folded) c = foldForName(c);
    return folded;
}

}  // namespace mx
