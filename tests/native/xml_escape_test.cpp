// Escaping of encoded values: every byte class and the space runs.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "xml/xml_escape.h"

using namespace mx::xml;

namespace {

std::string escape(const std::string &in, int32_t options = 0) {
    std::string out(size_t(EscapedCapacity(int64_t(in.size()))), '\0');
    int32_t n = EscapeText(in.data(), int32_t(in.size()), out.data(), int32_t(out.size()), options);
    EXPECT_EQ(out[size_t(n)], '\0');
    return out.substr(0, size_t(n));
}

std::string reference(int b) {
    char buf[8];
    std::snprintf(buf, sizeof buf, "&#x%02X;", b);
    return buf;
}

}  // namespace

// The plain bytes listed as ranges; everything else from 0x01 up is a reference.
TEST(XmlEscape, EveryByteIsPlainOrAReferenceByItsClass) {
    const int plainRanges[][2] = {{0x20, 0x21}, {0x23, 0x25}, {0x27, 0x3B}, {0x3D, 0x3D},
                                  {0x3F, 0x5F}, {0x61, 0xFF}};
    for (int b = 1; b < 256; ++b) {
        bool plain = false;
        for (auto &r : plainRanges) plain = plain || (b >= r[0] && b <= r[1]);
        EXPECT_EQ(IsPlainByte(static_cast<unsigned char>(b)), plain) << b;
        if (b == ' ') continue;  // spaces have their own rule
        std::string in = "x" + std::string(1, char(b));
        EXPECT_EQ(escape(in), plain ? in : "x" + reference(b)) << b;
    }
}

TEST(XmlEscape, SpacesAtTheStartAndInRunsBecomeReferences) {
    struct Case {
        const char *in;
        const char *out;
    } cases[] = {
        {" a  b", "&#x20;a &#x20;b"},
        {"ab ", "ab "},
        {" ", "&#x20;"},
        {"   ", "&#x20;&#x20;&#x20;"},
        {"a   b", "a &#x20;&#x20;b"},
        {"a \"b\"", "a &#x22;b&#x22;"},
        {"a\t b", "a&#x09; b"},         // a tab is no space: the space after it is plain
        {"a \tb", "a &#x09;b"},
        {"a\r\nb", "a&#x0D;&#x0A;b"},
        {"Tom & Jerry <2>", "Tom &#x26; Jerry &#x3C;2&#x3E;"},
        {"it's `x`", "it's &#x60;x&#x60;"},
        {"\xC3\xA4\x7F", "\xC3\xA4\x7F"},  // bytes from 0x7F up pass unchanged
        {"", ""},
    };
    for (const Case &c : cases) EXPECT_EQ(escape(c.in), c.out) << c.in;
}

TEST(XmlEscape, DropCrOptionRemovesCarriageReturnsOnly) {
    EXPECT_EQ(escape("a\r\nb\r", kEscapeDropCR), "a&#x0A;b");
    EXPECT_EQ(escape(" \r ", kEscapeDropCR), "&#x20; ");  // CR still ends a space run
}

TEST(XmlEscape, TheOutputNeverPassesItsSize) {
    char out[10];
    std::memset(out, 'Z', sizeof out);
    // six bytes per reference: only one whole reference fits in 9 bytes
    int32_t n = EscapeText("<<<", 3, out, 9, 0);
    EXPECT_EQ(n, 6);
    EXPECT_STREQ(out, "&#x3C;");
    EXPECT_EQ(out[9], 'Z');
    EXPECT_EQ(EscapeText("abc", 3, out, 0, 0), 0);
    EXPECT_EQ(out[0], '&');
}
