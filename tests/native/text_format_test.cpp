// MakeText1..5 and MakeTextInt: printf conventions, the capacity rule, and
// that no pattern can make the formatter read beyond its parameters.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>

#include "builtins/text/format.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

std::u16string make(int32_t cap, const std::u16string &pattern, std::vector<std::u16string> params,
                    int32_t *result = nullptr) {
    std::vector<TextIn> in;
    for (const auto &p : params) in.emplace_back(p);
    return inBuffer(cap, u"", [&](char16_t *d, int32_t n) {
        return txtMakeText(d, n, TextIn(pattern), in.data(), int32_t(in.size()));
    }, result);
}

std::u16string makeInt(int32_t cap, const std::u16string &pattern, int32_t v, int32_t *result = nullptr) {
    return inBuffer(cap, u"", [&](char16_t *d, int32_t n) { return txtMakeTextInt(d, n, TextIn(pattern), v); },
                    result);
}

std::u16string ascii(const std::string &s) { return std::u16string(s.begin(), s.end()); }

TEST(TextFormat, TextsGoIntoTheirPlaces) {
    int32_t r = 0;
    EXPECT_EQ(make(20, u"%s-%s", {u"a", u"b"}, &r), u"a-b");
    EXPECT_EQ(r, 3);
    EXPECT_EQ(make(3, u"%s-%s", {u"a", u"b"}, &r), u"a-");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(make(4, u"%s-%s", {u"a", u"b"}, &r), u"a-b");  // exactly fits with its terminator
    EXPECT_EQ(r, 3);
    EXPECT_EQ(make(1, u"%s", {u"a"}, &r), u"");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(make(1, u"", {u"a"}, &r), u"");
    EXPECT_EQ(r, 0);
    EXPECT_EQ(make(40, u"%s|%s|%s|%s|%s", {u"1", u"2", u"3", u"4", u"5"}, &r), u"1|2|3|4|5");
    EXPECT_EQ(make(40, u"100%% %s", {u"\u00e4\u20ac"}, &r), u"100% \u00e4\u20ac");
    EXPECT_EQ(r, 7);
}

TEST(TextFormat, FlagsWidthsAndPrecisionsOfTexts) {
    EXPECT_EQ(make(40, u"[%5s]", {u"ab"}), u"[   ab]");
    EXPECT_EQ(make(40, u"[%-5s]", {u"ab"}), u"[ab   ]");
    EXPECT_EQ(make(40, u"[%.1s]", {u"ab"}), u"[a]");
    EXPECT_EQ(make(40, u"[%*s]", {u"4", u"ab"}), u"[  ab]");
    EXPECT_EQ(make(40, u"[%-*.*s]", {u"4", u"1", u"ab"}), u"[a   ]");
    EXPECT_EQ(make(40, u"[%*s]", {u"-3", u"x"}), u"[x  ]");  // a negative width justifies left
    EXPECT_EQ(make(40, u"[%ls|%hs|%S|%ws]", {u"a", u"b", u"c", u"d"}), u"[a|b|c|d]");
}

// Well-typed directives must agree with the C library's own formatting.
TEST(TextFormat, IntegerDirectivesAgreeWithTheCLibrary) {
    const char *patterns[] = {"%d",   "%i",    "%5d",  "%-5d|", "%05d",  "%+d",   "% d",  "%.3d",
                              "%8.3d", "%-8.3d|", "%u",  "%x",    "%X",    "%#x",   "%#X",  "%o",
                              "%#o",  "%.0d",  "%#.0o", "%hd",  "%hu",   "%hhd",  "%hhx", "%c",
                              "%3c",  "%-3c|", "%+.0d", "%08.3x", "%-+6d|", "%%d=%d"};
    const int32_t values[] = {0, 1, -1, 42, -42, 255, 65, 2147483647, -2147483647 - 1, 1000000, -65536};
    for (const char *p : patterns)
        for (int32_t v : values) {
            if ((std::string(p).find('c') != std::string::npos) && (v < 32 || v > 126)) continue;
            char want[128];
            std::snprintf(want, sizeof want, p, v);
            EXPECT_EQ(u8(makeInt(128, ascii(p), v)), want) << p << " with " << v;
        }
}

TEST(TextFormat, LengthModifiersFollowTheWindowsSizes) {
    const struct {
        const char16_t *pattern;
        int32_t value;
        const char16_t *expected;
    } cases[] = {
        {u"%ld", -1, u"-1"},   {u"%lu", -1, u"4294967295"},  {u"%lx", -1, u"ffffffff"},  // long has 32 bits
        {u"%llu", -1, u"18446744073709551615"}, {u"%I64x", -1, u"ffffffffffffffff"},
        {u"%I32u", -1, u"4294967295"}, {u"%hd", 70000, u"4464"}, {u"%hhu", 70000, u"112"}, {u"%zd", 70000, u"70000"},
    };
    for (auto &c : cases) EXPECT_EQ(u8(makeInt(64, c.pattern, c.value)), u8(c.expected)) << u8(c.pattern);
}

TEST(TextFormat, TextDirectivesAgreeWithTheCLibrary) {
    const char *patterns[] = {"%s", "%8s", "%-8s|", "%.2s", "%8.2s", "%-8.0s|", "<%s>%s"};
    const char *texts[] = {"", "a", "hello", "with blanks"};
    for (const char *p : patterns)
        for (const char *t : texts) {
            char want[128];
            std::snprintf(want, sizeof want, p, t, t);
            EXPECT_EQ(u8(make(128, ascii(p), {ascii(t), ascii(t)})), want) << p << " with " << t;
        }
}

TEST(TextFormat, FloatDirectivesFormatTheIntegerValue) {
    EXPECT_EQ(makeInt(64, u"%f", 42), u"42.000000");
    EXPECT_EQ(makeInt(64, u"%.2e", -1500), u"-1.50e+03");
    EXPECT_EQ(makeInt(64, u"%G", 1000000), u"1E+06");
    EXPECT_EQ(makeInt(64, u"%08.1f", -5), u"-00005.0");
    EXPECT_EQ(makeInt(64, u"%a", 1), u"0x1p+0");
}

TEST(TextFormat, MismatchedDirectivesReadOnlyTheGivenParameters) {
    EXPECT_EQ(make(40, u"%d", {u"  -12abc"}), u"-12");       // a text read as its number
    EXPECT_EQ(make(40, u"%x", {u"255"}), u"ff");
    EXPECT_EQ(make(40, u"%c", {u"xyz"}), u"x");
    EXPECT_EQ(makeInt(40, u"%s", -7), u"-7");                 // a long written in decimal
    EXPECT_EQ(makeInt(40, u"%s and %s", 5), u"5 and %s");     // no parameter left: as written
    EXPECT_EQ(makeInt(40, u"%*d", 5), u"%*d");
    EXPECT_EQ(makeInt(40, u"%n%d", 9), u"9");                 // %n writes and takes nothing
    EXPECT_EQ(make(40, u"%y%s", {u"a"}), u"%ya");             // unknown conversion: as written
    EXPECT_EQ(make(40, u"tail %-0", {u"a"}), u"tail %-0");    // cut off by the pattern's end
    EXPECT_EQ(make(40, u"%p", {u"a"}), u"%p");
}

TEST(TextFormat, HugeWidthsStopAtTheCapacity) {
    int32_t r = 0;
    EXPECT_EQ(makeInt(6, u"%999999999999d", 1, &r), u"     ");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(makeInt(6, u"%.2147483647d", 1, &r), u"00000");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(make(6, u"%*s", {u"2000000000", u"a"}, &r), u"     ");
    EXPECT_EQ(r, -1);
    EXPECT_EQ(makeInt(120, u"%.1000f", 1, &r).size(), 102u);  // decimals are limited to 100
}

TEST(TextFormat, ResultMayBeAParameterOrThePattern) {
    EXPECT_EQ(inBuffer(20, u"ab", [](char16_t *d, int32_t cap) {
                  TextIn self[2] = {TextIn(d, cap), TextIn(d, cap)};
                  return txtMakeText(d, cap, u"<%s|%s>", self, 2);
              }),
              u"<ab|ab>");
    EXPECT_EQ(inBuffer(20, u"%d!", [](char16_t *d, int32_t cap) { return txtMakeTextInt(d, cap, TextIn(d, cap), 7); }),
              u"7!");
}

// Random patterns from an alphabet rich in directive characters, random
// parameters and capacities: under AddressSanitizer any read past a
// parameter or the pattern, or any write past the result, stops the test.
TEST(TextFormat, RandomPatternsNeverReachBeyondTheirInputs) {
    std::mt19937 rng(20240229);
    const char16_t alphabet[] = u"%%%%%sdicCSnxXopeEfgGaA*.-+ #0123456789hlLIjztw6432abc\u00e4";
    const int32_t alphabetLen = int32_t(sizeof alphabet / sizeof alphabet[0]) - 1;
    for (int round = 0; round < 20000; ++round) {
        int32_t patternLen = int32_t(rng() % 24);
        // Patterns and parameters live in buffers of exactly their size, some
        // without a terminator, so ASan sees a read past them.
        std::unique_ptr<char16_t[]> pattern(new char16_t[size_t(patternLen) + 1]);
        for (int32_t i = 0; i < patternLen; ++i) pattern[size_t(i)] = alphabet[rng() % uint32_t(alphabetLen)];
        bool terminated = rng() % 2;
        pattern[size_t(patternLen)] = terminated ? 0 : u'%';
        int32_t count = int32_t(rng() % 6);
        std::vector<std::unique_ptr<char16_t[]>> storage;
        std::vector<TextIn> params;
        for (int32_t k = 0; k < count; ++k) {
            int32_t len = int32_t(rng() % 5);
            storage.emplace_back(new char16_t[size_t(len) + 1]);
            for (int32_t i = 0; i < len; ++i) storage.back()[size_t(i)] = char16_t(u'0' + rng() % 10);
            storage.back()[size_t(len)] = rng() % 4 ? 0 : u'9';
            params.emplace_back(storage.back().get(), len + 1);
        }
        int32_t cap = int32_t(rng() % 12) + 1;
        int32_t r = 0;
        std::u16string out = inBuffer(cap, u"", [&](char16_t *d, int32_t n) {
            TextIn p(pattern.get(), patternLen + 1);
            return count == 0 ? txtMakeTextInt(d, n, p, int32_t(rng())) : txtMakeText(d, n, p, params.data(), count);
        }, &r);
        ASSERT_TRUE(r == -1 || (r >= 0 && r < cap)) << r;
        if (r >= 0) { ASSERT_LE(out.size(), size_t(r)); }  // "%c" of a zero may end the text early
    }
}

}  // namespace
