// The linear text search against the obvious one on every short text over a
// two-letter alphabet (where borders and overlaps abound), and the search
// functions built on it on the texts that made the old search slow.
#include <gtest/gtest.h>

#include <string>

#include "base/u16_find.h"
#include "builtins/text/search.h"
#include "helperlib/kelvane_strings.h"

namespace {

int naiveFind(const std::u16string &t, const std::u16string &p, size_t from) {
    for (size_t i = from; i + p.size() <= t.size(); ++i)
        if (t.compare(i, p.size(), p) == 0) return int(i);
    return -1;
}

// Every text of length n over "ab", in order.
std::u16string nth(unsigned bits, int n) {
    std::u16string s;
    for (int i = 0; i < n; ++i) s += (bits >> i) & 1 ? u'b' : u'a';
    return s;
}

}  // namespace

TEST(TextFind, AgreesWithTheObviousSearchOnEveryShortText) {
    for (int n = 0; n <= 9; ++n)
        for (unsigned t = 0; t < (1u << n); ++t)
            for (int m = 1; m <= 4; ++m)
                for (unsigned p = 0; p < (1u << m); ++p) {
                    std::u16string text = nth(t, n), pattern = nth(p, m);
                    mx::U16Finder f(pattern.data(), m);
                    ASSERT_EQ(f.find(text.data(), n), naiveFind(text, pattern, 0)) << n << " " << t << " " << p;
                    ASSERT_EQ(f.find(text.data(), n, 2), naiveFind(text, pattern, 2));
                    std::vector<bool> starts;
                    f.markAll(text.data(), n, starts);
                    for (int i = 0; i < n; ++i)
                        ASSERT_EQ(starts[size_t(i)], i + m <= n && text.compare(size_t(i), size_t(m), pattern) == 0);
                }
}

TEST(TextFind, SearchFunctionsOnTheSlowTextsOfTheOldSearch) {
    std::u16string text(20000, u'a'), find(2000, u'a');
    find.back() = u'b';
    EXPECT_EQ(mx::txtStrStr(mx::TextIn(text), mx::TextIn(find)), -1);
    text[15000] = u'b';
    EXPECT_EQ(mx::txtStrStr(mx::TextIn(text), mx::TextIn(find)), 15000 - 1999);
    EXPECT_EQ(mx::txtFindString(mx::TextIn(text), mx::TextIn(find)), 15000 - 1999 + 1);
    // Overlapping candidates are replaced left to right without overlap, and
    // case is ignored on request.
    std::u16string work = u"aAaAa";
    work.resize(40);
    EXPECT_EQ(mx::Kelvane_ReplaceStringW(work.data(), 40, u"aa", u"x", mx::kReplaceAll | mx::kReplaceIgnoreCase), 2);
    EXPECT_EQ(std::u16string(work.c_str()), u"xxa");
    work = u"ab abab ab";
    work.resize(40);
    EXPECT_EQ(mx::Kelvane_ReplaceStringW(work.data(), 40, u"ab", u"Y", mx::kReplaceAll | mx::kReplaceWholeWords), 2);
    EXPECT_EQ(std::u16string(work.c_str()), u"Y abab Y");
}
