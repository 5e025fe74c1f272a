// File name surgery, the file version format and the module and directory
// names of the native build.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "builtins/files/modules.h"
#include "base/path_surgery.h"
#include "builtins/files/version_format.h"
#include "base/utf8.h"
#include "helperlib/kelvane_files.h"
#include "macro_harness.h"

namespace fs = std::filesystem;
using namespace mx;

namespace {

TEST(FilePaths, CuttingRules) {
    struct Case {
        std::u16string in, extension, path, filename;
    } cases[] = {
        {u"C:\\dir\\file.txt", u"C:\\dir\\file", u"file.txt", u"C:\\dir"},
        {u"C:\\file.txt", u"C:\\file", u"file.txt", u"C:\\"},
        {u"C:name.txt", u"C:name", u"name.txt", u"C:"},
        {u"\\file", u"\\file", u"file", u"\\"},
        {u"/usr/lib/x.so.1", u"/usr/lib/x.so", u"x.so.1", u"/usr/lib"},
        {u"C:\\a.b\\c", u"C:\\a", u"c", u"C:\\a.b"},
        {u"dir/", u"dir/", u"", u"dir"},
        {u"plain", u"plain", u"plain", u""},
        {u"", u"", u"", u""},
        {u"a\\b/c", u"a\\b/c", u"c", u"a\\b"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(toUtf8(c.in.c_str()));
        char16_t buf[64];
        std::u16string(c.in).copy(buf, c.in.size());
        buf[c.in.size()] = 0;
        psStripExtensionIn(buf, 64);
        EXPECT_EQ(std::u16string(buf), c.extension);
        c.in.copy(buf, c.in.size());
        buf[c.in.size()] = 0;
        psStripPathIn(buf, 64);
        EXPECT_EQ(std::u16string(buf), c.path);
        c.in.copy(buf, c.in.size());
        buf[c.in.size()] = 0;
        psStripFilenameIn(buf, 64);
        EXPECT_EQ(std::u16string(buf), c.filename);
        std::string narrow = toUtf8(c.in.c_str());
        Kelvane_StripFileNameA(narrow.data());
        EXPECT_EQ(fromUtf8(narrow.c_str()), c.filename) << "the helper's 8-bit form agrees";
        narrow = toUtf8(c.in.c_str());
        Kelvane_StripPathA(narrow.data());
        EXPECT_EQ(fromUtf8(narrow.c_str()), c.path);
    }
}

TEST(FilePaths, CuttingFirstTerminatesAtTheCapacity) {
    char16_t unterminated[6] = {u'a', u'.', u'b', u'/', u'c', u'd'};
    psStripPathIn(unterminated, 6);
    EXPECT_EQ(std::u16string(unterminated), u"c");
    char16_t again[6] = {u'a', u'/', u'b', u'.', u'c', u'd'};
    psStripExtensionIn(again, 6);
    EXPECT_EQ(std::u16string(again), u"a/b");
    char16_t one[1] = {u'x'};
    psStripFilenameIn(one, 1);
    EXPECT_EQ(one[0], 0);
}

TEST(FilePaths, AssembleJoinsWithinTheBudget) {
    struct Case {
        std::u16string path, name, ext;
        int32_t result;
        std::u16string out;
    } cases[] = {
        {u"C:\\data", u"list", u"txt", 0, u"C:\\data\\list.txt"},
        {u"C:\\data\\", u"list", u".txt", 0, u"C:\\data\\list.txt"},
        {u"/data/", u"list", u"", 0, u"/data/list."},
        {u"C:\\data", u"list.", u"txt", 0, u"C:\\data\\list.txt"},
        {u"C:\\data", u"list", u"..txt", 0, u"C:\\data\\list..txt"},
        {u"", u"list", u"txt", 0, u"list.txt"},
        {std::u16string(250, u'p'), u"abc", u"", 0, std::u16string(250, u'p') + u"\\abc."},
        {std::u16string(250, u'p'), u"abcd", u"", -1, u"old"},
        {u"p", std::u16string(253, u'n'), u"", -1, u"old"},
        {u"", std::u16string(253, u'n'), u"", 0, std::u16string(253, u'n') + u"."},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(toUtf8(c.name.c_str()).substr(0, 20));
        char16_t dest[300] = u"old";
        EXPECT_EQ(psAssembleFilename(dest, 300, c.path.c_str(), c.name.c_str(), c.ext.c_str()), c.result);
        EXPECT_EQ(std::u16string(dest), c.out);
    }
    char16_t small[6];
    EXPECT_EQ(psAssembleFilename(small, 6, u"C:\\d", u"list", u"txt"), 0);
    EXPECT_EQ(std::u16string(small), u"C:\\d\\");
}

TEST(FilePaths, VersionFormatReadsOnlyTheFourNumbers) {
    const uint16_t v[4] = {1, 2, 30, 400};
    struct Case {
        const char16_t *format;
        std::u16string out;
    } cases[] = {
        {u"%d.%d.%d.%d", u"1.2.30.400"},
        {u"%d.%d", u"1.2"},
        {u"v%02d-%x-%X-%o", u"v01-2-1E-620"},
        {u"%5d|%-3d|%+d", u"    1|2  |+30"},
        {u"%s %s %ls %p", u"1 2 30 400"},
        {u"%d %d %d %d %d %s %n", u"1 2 30 400   "},
        {u"100%% %c", u"100% \x01"},
        {u"%*d", u"1"},
        {u"end %", u"end 1"},
        {u"%.3d", u"001"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(toUtf8(c.format));
        char16_t buf[64];
        vfFormat(buf, 64, c.format, v);
        EXPECT_EQ(std::u16string(buf), c.out);
    }
    char16_t buf[4];
    EXPECT_EQ(vfFormat(buf, 4, u"%d.%d.%d.%d", v), 10);
    EXPECT_EQ(std::u16string(buf), u"1.2");
    std::vector<char16_t> wide(3000);
    vfFormat(wide.data(), 3000, u"%999999999d", v);
    EXPECT_EQ(std::u16string(wide.data()).size(), 1024u) << "widths are bounded";
}

TEST(FilePaths, ModuleNamesComeFromTheRunningExecutable) {
    std::string exe = fs::read_symlink("/proc/self/exe").string();
    char16_t buf[4096];
    EXPECT_EQ(mdGetAppName(nullptr, buf, 4096), 0);
    EXPECT_EQ(toUtf8(buf), exe);
    EXPECT_EQ(mdGetProgPath(nullptr, buf, 4096), 1);
    EXPECT_EQ(toUtf8(buf), fs::path(exe).parent_path().string());
    char16_t small[5];
    mdGetAppName(nullptr, small, 5);
    EXPECT_EQ(toUtf8(small), exe.substr(0, 4));
}

TEST(FilePaths, WindowsDirectoryStandInFollowsTheEnvironment) {
    std::string saved = getenv("MORVIX_WINDOWS_DIR") ? getenv("MORVIX_WINDOWS_DIR") : "";
    setenv("MORVIX_WINDOWS_DIR", "/srv/mx-windows/", 1);
    char16_t buf[64];
    EXPECT_EQ(mdGetUserPath(buf, 64), 0);
    EXPECT_EQ(toUtf8(buf), "/srv/mx-windows");
    unsetenv("MORVIX_WINDOWS_DIR");
    setenv("XDG_CONFIG_HOME", "/cfg", 1);
    mdGetUserPath(buf, 64);
    EXPECT_EQ(toUtf8(buf), "/cfg/morvix");
    unsetenv("XDG_CONFIG_HOME");
    setenv("MORVIX_WINDOWS_DIR", saved.c_str(), 1);
}

TEST(FilePaths, CurrentPathAnswersLikeThePlatform) {
    std::string dir = scratchDir();
    std::string cwd = fs::current_path().string();
    ASSERT_EQ(chdir(dir.c_str()), 0);
    char16_t buf[256];
    EXPECT_EQ(mdGetCurrentPath(buf, 256), int32_t(dir.size()));
    EXPECT_EQ(toUtf8(buf), dir);
    char16_t small[4] = u"old";
    EXPECT_EQ(mdGetCurrentPath(small, 4), int32_t(dir.size()) + 1) << "the size needed";
    EXPECT_EQ(std::u16string(small), u"old");
    ASSERT_EQ(chdir(cwd.c_str()), 0);
    fs::remove_all(dir);
}

TEST(FilePaths, ShortNamesAreThePathsThemselves) {
    std::string dir = scratchDir();
    writeFile(dir + "/a long name.txt", "x");
    std::u16string name = fromUtf8(dir + "/a long name.txt");
    char16_t buf[256];
    EXPECT_EQ(mdLongToShortFilename(name.c_str(), buf, 256), int32_t(name.size()));
    EXPECT_EQ(std::u16string(buf), name);
    char16_t small[4] = u"old";
    EXPECT_EQ(mdLongToShortFilename(name.c_str(), small, 4), int32_t(name.size()) + 1);
    EXPECT_EQ(std::u16string(small), u"old");
    EXPECT_EQ(mdLongToShortFilename(fromUtf8(dir + "/missing").c_str(), buf, 256), 0);
    fs::remove_all(dir);
}

TEST(FilePaths, FilesWithoutVersionResourceAnswerTwo) {
    char16_t buf[16] = u"old";
    EXPECT_EQ(mdGetModuleVersion(u"/proc/self/exe", buf, 16, u"%d.%d"), 2);
    EXPECT_EQ(buf[0], 0);
    MacroRun r =
        runMemory(u"char v[20]; v = \"x\"; Print(GetModuleVersion(\"/bin/sh\", v, \"\")); Print(v);");
    EXPECT_EQ(r.output, "2\n\n");
}

}  // namespace
