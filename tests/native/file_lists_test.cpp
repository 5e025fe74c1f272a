// MakeFilelist and ScanDirectory: patterns, include and exclude lists,
// subdirectories, the list file's layout and the count.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "builtins/files/file_lists.h"
#include "base/utf8.h"
#include "macro_harness.h"

namespace fs = std::filesystem;
using namespace mx;

namespace {

struct FileLists : ::testing::Test {
    std::string dir = scratchDir();
    std::string out = scratchDir() + "/list.txt";
    void SetUp() override {
        for (const char *name : {"a.txt", "b.TXT", "c.log", "ab.txt", "sub/d.txt", "sub/deep/e.txt",
                                 "sub/f.log", "\xc3\xa4.txt"}) {
            fs::create_directories(fs::path(dir + "/" + name).parent_path());
            writeFile(dir + "/" + name, "x");
        }
    }
    void TearDown() override {
        fs::remove_all(dir);
        fs::remove_all(fs::path(out).parent_path());
    }
    std::string listed(std::initializer_list<const char *> names) const {
        std::string s;
        for (const char *n : names) s += dir + "/" + n + "\n";
        return s;
    }
};

TEST_F(FileLists, ScanMatchesIncludeAndExcludeLists) {
    struct Case {
        const char16_t *include, *exclude;
        int32_t subdirs, flags;
        std::vector<const char *> names;
    } cases[] = {
        {u"*.txt", u"", 0, 0, {"a.txt", "ab.txt", "\xc3\xa4.txt"}},
        {u"*.txt;*.log", u"", 0, 0, {"a.txt", "ab.txt", "c.log", "\xc3\xa4.txt"}},
        {u"*", u"a*", 0, 0, {"b.TXT", "c.log", "\xc3\xa4.txt"}},
        {u"?.txt", u"", 0, 0, {"a.txt", "\xc3\xa4.txt"}},
        {u"*.txt", u"ab.txt; a.txt", 1, 0, {"\xc3\xa4.txt", "sub/d.txt", "sub/deep/e.txt"}},
        {u"\u00e4*", u"", 0, 0, {"\xc3\xa4.txt"}},
        {u"*.log", u"", 0, 1, {"c.log", "sub/f.log"}},
        {u"", u"*.txt;*.TXT", 0, 0, {"c.log"}},
        {u"*.TXT", u"", 0, 0, {"b.TXT"}},
        {u"none*", u"", 1, 0, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(toUtf8(c.include) + " / " + toUtf8(c.exclude));
        std::string expected;
        for (const char *n : c.names) expected += dir + "/" + n + "\n";
        EXPECT_EQ(flScanDirectory(fromUtf8(dir).c_str(), c.include, c.exclude, fromUtf8(out).c_str(),
                                  c.subdirs, c.flags),
                  int32_t(c.names.size()));
        EXPECT_EQ(readFile(out), expected);
    }
}

TEST_F(FileLists, ScanOfAMissingDirectoryWritesNothing) {
    EXPECT_EQ(flScanDirectory(fromUtf8(dir + "/none").c_str(), u"*", u"", fromUtf8(out).c_str(), 1, 0), 0);
    EXPECT_FALSE(fs::exists(out));
    EXPECT_EQ(
        flScanDirectory(fromUtf8(dir).c_str(), u"*", u"", fromUtf8(dir + "/no/such/list").c_str(), 1, 0), 0);
}

TEST_F(FileLists, MakeFilelistTakesDirectoryAndPatternFromTheWildcard) {
    EXPECT_EQ(flMakeFilelist(fromUtf8(dir + "/a*.txt").c_str(), 0, fromUtf8(out).c_str()), 0);
    EXPECT_EQ(readFile(out), listed({"a.txt", "ab.txt"}));
    EXPECT_EQ(flMakeFilelist(fromUtf8(dir + "/sub/*").c_str(), 1, fromUtf8(out).c_str()), 0);
    EXPECT_EQ(readFile(out), listed({"sub/d.txt", "sub/f.log", "sub/deep/e.txt"}));
    EXPECT_EQ(flMakeFilelist(fromUtf8(dir + "/none/*").c_str(), 1, fromUtf8(out).c_str()), 1);
}

TEST_F(FileLists, WildcardWithoutDirectoryScansTheCurrentDirectory) {
    std::string cwd = fs::current_path().string();
    ASSERT_EQ(chdir((dir + "/sub").c_str()), 0);
    MacroRun r = runMemory(u16("Print(MakeFilelist(\"*.log\", 0, \"" + out + "\"));"
                               "Print(ScanDirectory(\"deep\", \"*\", \"\", \"" + out + "2\", 0, 0));"));
    ASSERT_EQ(chdir(cwd.c_str()), 0);
    EXPECT_EQ(r.output, "0\n1\n");
    EXPECT_EQ(readFile(out), listed({"sub/f.log"}));
    EXPECT_EQ(readFile(out + "2"), listed({"sub/deep/e.txt"}));
}

}  // namespace
