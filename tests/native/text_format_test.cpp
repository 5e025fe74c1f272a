// MakeText1..5 and MakeTextInt against the C library, and no pattern makes
// the formatter read beyond its inputs (the rest are cases in text.cases).
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
