// The case rules of the Windows tables for Latin-1 and Latin Extended-A
// (U+0000 to U+017F), worked out by rule: the native case mapping and every
// comparison of names without case (profile sections and entries, registry
// keys) use them. Above U+017F the platform decides.
#pragma once
#include <cstdint>
#include <string>

namespace mx {

// First unit after Latin Extended-A: the rules cover the units below it.
constexpr char16_t kLatinCaseEnd = 0x180;

// The capital and the small form of c (c below kLatinCaseEnd); a unit
// without one comes back unchanged: "ß" has no capital, "ÿ" maps to "Ÿ", the
// dotless and dotted "i" stay. No side effects.
char16_t caseLatinUpper(char16_t c);
char16_t caseLatinLower(char16_t c);

// True when a and b are the same name apart from the case of Latin letters.
bool caseEqualNames(const std::u16string &a, const std::u16string &b);

// The name with every unit folded as caseEqualNames folds it: two names are
// equal without case exactly when their folded forms are equal. Same length.
std::u16string caseFoldName(const std::u16string &name);

}  // namespace mx
