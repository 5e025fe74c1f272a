// TransformString: key lookup in a transform file.
#include <gtest/gtest.h>

#include "builtins/text/transform.h"
#include "macro_harness.h"
#include "platform/files.h"
#include "text_test_util.h"

using namespace mx;
using mxtest::inBuffer;
using mxtest::u8;

namespace {

struct TransformCase {
    const char *file;  // bytes of the transform file
    const char16_t *source;
    int32_t result;
    const char16_t *expected;
};

TEST(TextTransform, LooksTheSourceUpLineByLine) {
    const TransformCase cases[] = {
        {"Herr\tMr.\t\nFrau\tMrs.\t\n", u"Frau", 0, u"Mrs."},
        {"Herr\tMr.\n", u"Herr", 0, u"Mr.\n"},      // the line feed belongs to the replacement
        {"Herr\tMr.", u"Herr", 0, u"Mr."},          // last line without a line break
        {"Herr\tMr.\r\n", u"Herr", 0, u"Mr.\n"},    // text mode reads CR LF as LF
        {"\t\tHerr\t\tMr.\t", u"Herr", 0, u"Mr."},  // runs of TABs separate
        {"Herr\tMr.\n", u"herr", -1, u"herr"},      // compared exactly
        {"Herr\tMr.\n", u"Her", -1, u"Her"},
        {"A\tx\nnoTab\nB\ty\n", u"B", -1, u"B"},    // a line without a second field stops
        {"A\tx\n\nB\ty\n", u"B", -1, u"B"},         // so does an empty line
        {"A\t\n", u"A", 0, u"\n"},                  // a TAB then the line feed: "\n" is the field
        {"A\t", u"A", -1, u"A"},                    // a TAB only at the end
        {"", u"A", -1, u"A"},
        {"K\xE4se\tcheese\n", u"K\u00e4se", 0, u"cheese\n"},  // 8-bit text
        {"A\tB\tC\n", u"A", 0, u"B"},
    };
    std::string dir = scratchDir();
    std::string path = dir + "/t.txt";
    for (const TransformCase &c : cases) {
        writeFile(path, c.file);
        int32_t r = 0;
        std::u16string got = inBuffer(20, u"", [&](char16_t *d, int32_t cap) {
            return txtTransformString(TextIn(u16(path)), TextIn(std::u16string(c.source)), d, cap);
        }, &r);
        EXPECT_EQ(r, c.result) << c.file;
        EXPECT_EQ(u8(got), u8(c.expected)) << c.file;
    }
}

TEST(TextTransform, LongLinesContinueAsTheNextRead) {
    std::string dir = scratchDir();
    std::string path = dir + "/long.txt";
    // 995 characters of filler, then a TAB-separated key and replacement
    // that the 999-character read splits off as a line of its own.
    writeFile(path, std::string(995, 'x') + "\tyy\tKEY\tVAL\t\n");
    int32_t r = 0;
    std::u16string got = inBuffer(20, u"", [&](char16_t *d, int32_t cap) {
        return txtTransformString(TextIn(u16(path)), u"KEY", d, cap);
    }, &r);
    EXPECT_EQ(r, 0);
    EXPECT_EQ(got, u"VAL");
}

TEST(TextTransform, FailuresLeaveTheSourceAndCloseTheFile) {
    std::string dir = scratchDir();
    int32_t r = 0;
    std::u16string got = inBuffer(4, u"", [&](char16_t *d, int32_t cap) {
        return txtTransformString(TextIn(u16(dir + "/missing.txt")), u"source", d, cap);
    }, &r);
    EXPECT_EQ(r, -1);
    EXPECT_EQ(got, u"sou");
    std::string path = dir + "/t.txt";
    writeFile(path, "a\tb\n");
    for (int i = 0; i < 3; ++i)
        inBuffer(8, u"", [&](char16_t *d, int32_t cap) { return txtTransformString(TextIn(u16(path)), u"zz", d, cap); });
    // Closed again: an exclusive open succeeds.
    OpenError why = OpenError::kNone;
    MxpFile *f = mxp_FileOpen(u16(path).c_str(), u"r+t", Share::kDenyReadWrite, &why);
    EXPECT_NE(f, nullptr);
    mxp_FileClose(f);
}

TEST(TextTransform, SourceMayBeTheDestination) {
    std::string dir = scratchDir();
    std::string path = dir + "/t.txt";
    writeFile(path, "abc\tlonger text\n");
    std::u16string got = inBuffer(8, u"abc", [&](char16_t *d, int32_t cap) {
        return txtTransformString(TextIn(u16(path)), TextIn(d, cap), d, cap);
    });
    EXPECT_EQ(got, u"longer ");
}

}  // namespace
