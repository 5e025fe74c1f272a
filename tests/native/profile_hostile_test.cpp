// Hostile section, key and value names in the Linux profile store: every
// name it accepts reads back unchanged, and a name that the line format
// cannot hold is refused (write answers 0, the file stays as it was), so no
// entry is lost or injected.
#include <gtest/gtest.h>

#include "macro_harness.h"
#include "platform/profile.h"

namespace {

struct HostileProfile : ::testing::Test {
    std::string dir = scratchDir();
    std::u16string file = u16(dir + "/h.ini");
    int32_t write(const std::u16string &s, const std::u16string &k, const std::u16string &v) {
        return mx::mxp_ProfileWrite(file.c_str(), s.c_str(), k.c_str(), v.c_str());
    }
    std::u16string read(const std::u16string &s, const std::u16string &k) {
        char16_t buf[200];
        mx::mxp_ProfileRead(file.c_str(), s.c_str(), k.c_str(), u"<none>", buf, 200);
        return buf;
    }
};

}  // namespace

TEST_F(HostileProfile, NamesTheLineFormatCanHoldRoundTrip) {
    const std::u16string names[] = {u"[lead", u"a[b", u"semi;colon", u"quote\"d", u"tab\tinside", u"=eq", u"ü€"};
    for (const std::u16string &n : names) {
        ASSERT_NE(write(n, u"key", u"v"), 0);
        EXPECT_EQ(read(n, u"key"), u"v");
    }
    const std::u16string keys[] = {u";comment", u"a[b]", u"sp ace", u"ü€", u"\"q\""};
    for (const std::u16string &k : keys) {
        ASSERT_NE(write(u"s", k, u"w"), 0);
        EXPECT_EQ(read(u"s", k), u"w");
    }
    const std::u16string values[] = {u"a=b", u"[x]", u"trailing  x", u"ü€", u";c", u"\"inner\" quote"};
    for (const std::u16string &v : values) {
        ASSERT_NE(write(u"s", u"val", v), 0);
        EXPECT_EQ(read(u"s", u"val"), v);
    }
}

TEST_F(HostileProfile, NamesItCannotHoldAreRefusedAndInjectNothing) {
    ASSERT_NE(write(u"s", u"k", u"1"), 0);
    std::string before = readFile(dir + "/h.ini");
    struct Case {
        std::u16string s, k, v;
    } const cases[] = {
        {u"s", u"k", u"2\r\nevil=1"}, {u"s", u"k", u"2\nevil=1"}, {u"a]b", u"k", u"1"},
        {u"new\n[s]", u"k", u"1"},    {u" s", u"k", u"1"},         {u"s", u" k", u"1"},
        {u"s", u"k ", u"1"},          {u"s", u"a=b", u"1"},        {u"s", u"[t]", u"1"},
        {u"s", u"k\nevil", u"1"},
    };
    for (const Case &c : cases) EXPECT_EQ(write(c.s, c.k, c.v), 0);
    EXPECT_EQ(readFile(dir + "/h.ini"), before);
    EXPECT_EQ(read(u"s", u"evil"), u"<none>");
    EXPECT_EQ(read(u"s", u"k"), u"1");
}
