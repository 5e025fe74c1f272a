// The platform's file layer on Linux: the streams against the C runtime's
// behaviour (the case tables shared with the Windows tests), Windows-like
// sharing within the process and between processes, file name surgery, the
// file version format, and the module and directory names.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "base/path_surgery.h"
#include "base/utf8.h"
#include "builtins/files/modules.h"
#include "builtins/files/version_format.h"
#include "file_mode_cases.h"
#include "helperlib/kelvane_files.h"
#include "macro_harness.h"
#include "platform/files.h"

namespace fs = std::filesystem;
using namespace mx;

namespace {

struct StreamTest : ::testing::Test {
    std::string dir = scratchDir();
    std::u16string path(const std::string &name) const { return fromUtf8(dir + "/" + name); }
    void TearDown() override { fs::remove_all(dir); }
};

std::string show(const std::u16string &s) {
    std::string out;
    for (char16_t c : s)
        out += c >= 32 && c < 127 ? std::string(1, char(c)) : "<" + std::to_string(int(c)) + ">";
    return out;
}

TEST_F(StreamTest, WritingInEachModeGivesTheRuntimesBytes) {
    for (const filecases::WriteCase &c : filecases::writeCases()) {
        SCOPED_TRACE(toUtf8(c.mode) + " text " + show(c.text));
        std::string name = dir + "/w.txt";
        fs::remove(name);
        if (c.before) writeFile(name, std::string(c.before, c.beforeSize));
        OpenError why;
        MxpFile *f = mxp_FileOpen(fromUtf8(name).c_str(), c.mode, Share::kDenyReadWrite, &why);
        ASSERT_NE(f, nullptr);
        EXPECT_EQ(mxp_FilePutText(f, c.text.c_str()), c.result);
        mxp_FileClose(f);
        EXPECT_EQ(readFile(name), c.bytes);
    }
}

TEST_F(StreamTest, ReadingLinesInEachModeGivesTheRuntimesUnits) {
    for (const filecases::ReadCase &c : filecases::readCases()) {
        SCOPED_TRACE(toUtf8(c.mode) + " capacity " + std::to_string(c.capacity));
        std::string name = dir + "/r.txt";
        writeFile(name, c.bytes);
        MxpFile *f = mxp_FileOpen(fromUtf8(name).c_str(), c.mode, Share::kDenyReadWrite, nullptr);
        ASSERT_NE(f, nullptr);
        std::vector<std::u16string> lines;
        char16_t buf[64];
        for (int guard = 0; guard < 20; ++guard) {
            int32_t n = mxp_FileReadLine(f, buf, c.capacity);
            if (n < 0) {
                EXPECT_EQ(buf[0], 0);
                break;
            }
            EXPECT_EQ(size_t(n), std::u16string(buf).size());
            lines.push_back(buf);
        }
        mxp_FileClose(f);
        EXPECT_EQ(lines, c.lines);
    }
}

TEST_F(StreamTest, InvalidModesFailAsOtherErrors) {
    writeFile(dir + "/x.txt", "x");
    for (const char16_t *mode : filecases::invalidModes()) {
        SCOPED_TRACE(toUtf8(mode));
        OpenError why = OpenError::kNone;
        EXPECT_EQ(mxp_FileOpen(path("x.txt").c_str(), mode, Share::kDenyNone, &why), nullptr);
        EXPECT_EQ(why, OpenError::kOther);
    }
    EXPECT_EQ(readFile(dir + "/x.txt"), "x");
}

TEST_F(StreamTest, OpenFailuresNameTheirCause) {
    struct Case {
        std::u16string name;
        const char16_t *mode;
        OpenError why;
    } cases[] = {
        {path("missing.txt"), u"r", OpenError::kNotFound},
        {u"", u"r", OpenError::kNotFound},
        {path("nodir/x.txt"), u"w", OpenError::kNotFound},
        {path(std::string(600, 'a')), u"r", OpenError::kNotFound},
        {path(std::string(600, 'a')), u"w", OpenError::kNotFound},
        {fromUtf8(dir), u"r", OpenError::kAccessDenied},
        {fromUtf8(dir), u"w", OpenError::kAccessDenied},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(toUtf8(c.name.c_str()).substr(0, 80));
        OpenError why = OpenError::kNone;
        EXPECT_EQ(mxp_FileOpen(c.name.c_str(), c.mode, Share::kDenyReadWrite, &why), nullptr);
        EXPECT_EQ(why, c.why);
    }
}

// Each row: the first open's mode and sharing, the second's, and whether
// the second succeeds (the Windows sharing rules).
TEST_F(StreamTest, SharingFollowsTheWindowsRules) {
    struct Case {
        const char16_t *mode1;
        Share share1;
        const char16_t *mode2;
        Share share2;
        bool second;
    } cases[] = {
        {u"r", Share::kDenyReadWrite, u"r", Share::kDenyReadWrite, false},
        {u"r", Share::kDenyReadWrite, u"r", Share::kDenyNone, false},
        {u"r", Share::kDenyWrite, u"r", Share::kDenyWrite, true},
        {u"r", Share::kDenyWrite, u"a", Share::kDenyNone, false},
        {u"r", Share::kDenyNone, u"r", Share::kDenyReadWrite, false},
        {u"a", Share::kDenyNone, u"r", Share::kDenyWrite, false},
        {u"a", Share::kDenyNone, u"r", Share::kDenyNone, true},
        {u"r", Share::kDenyNone, u"a", Share::kDenyWrite, true},
    };
    writeFile(dir + "/s.txt", "data");
    for (const Case &c : cases) {
        SCOPED_TRACE(toUtf8(c.mode1) + " then " + toUtf8(c.mode2));
        MxpFile *first = mxp_FileOpen(path("s.txt").c_str(), c.mode1, c.share1, nullptr);
        ASSERT_NE(first, nullptr);
        OpenError why = OpenError::kNone;
        MxpFile *second = mxp_FileOpen(path("s.txt").c_str(), c.mode2, c.share2, &why);
        EXPECT_EQ(second != nullptr, c.second);
        if (!second) {
            EXPECT_EQ(why, OpenError::kAccessDenied);
        }
        mxp_FileClose(second);
        mxp_FileClose(first);
        EXPECT_NE(second = mxp_FileOpen(path("s.txt").c_str(), c.mode2, c.share2, nullptr), nullptr)
            << "closing the first open frees the file";
        mxp_FileClose(second);
    }
}

TEST_F(StreamTest, RefusedWriteOpenLeavesTheFileIntact) {
    writeFile(dir + "/keep.txt", "precious");
    MxpFile *reader = mxp_FileOpen(path("keep.txt").c_str(), u"r", Share::kDenyReadWrite, nullptr);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(mxp_FileOpen(path("keep.txt").c_str(), u"w", Share::kDenyReadWrite, nullptr), nullptr);
    EXPECT_EQ(mxp_FileOpen(path("keep.txt").c_str(), u"w, ccs=UTF-8", Share::kDenyNone, nullptr), nullptr);
    mxp_FileClose(reader);
    EXPECT_EQ(readFile(dir + "/keep.txt"), "precious");
}

TEST_F(StreamTest, AnotherProcessCannotOpenAnExclusiveFile) {
    writeFile(dir + "/p.txt", "x");
    int ready[2], done[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(done), 0);
    pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        MxpFile *f = mxp_FileOpen(path("p.txt").c_str(), u"r", Share::kDenyReadWrite, nullptr);
        char c = f ? '1' : '0';
        (void)!write(ready[1], &c, 1);
        (void)!read(done[0], &c, 1);
        _exit(0);
    }
    char c = 0;
    ASSERT_EQ(read(ready[0], &c, 1), 1);
    ASSERT_EQ(c, '1');
    OpenError why = OpenError::kNone;
    EXPECT_EQ(mxp_FileOpen(path("p.txt").c_str(), u"r", Share::kDenyNone, &why), nullptr);
    EXPECT_EQ(why, OpenError::kAccessDenied);
    EXPECT_EQ(mxp_FileRemove(path("p.txt").c_str()), -1) << "an open file cannot be deleted";
    (void)!write(done[1], &c, 1);
    int status = 0;
    waitpid(child, &status, 0);
    MxpFile *f = mxp_FileOpen(path("p.txt").c_str(), u"r", Share::kDenyReadWrite, nullptr);
    EXPECT_NE(f, nullptr) << "the child's exit released the file";
    mxp_FileClose(f);
    for (int fd : {ready[0], ready[1], done[0], done[1]}) close(fd);
}

TEST_F(StreamTest, OpenFilesCannotBeRenamedOrRemoved) {
    writeFile(dir + "/a.txt", "A");
    MxpFile *f = mxp_FileOpen(path("a.txt").c_str(), u"r", Share::kDenyWrite, nullptr);
    EXPECT_EQ(mxp_FileRename(path("a.txt").c_str(), path("c.txt").c_str()), -1);
    EXPECT_EQ(mxp_FileRemove(path("a.txt").c_str()), -1);
    mxp_FileClose(f);
    EXPECT_EQ(mxp_FileRemove(path("a.txt").c_str()), 0);
    EXPECT_EQ(mxp_FileRemove(path("a.txt").c_str()), -1);
}

TEST_F(StreamTest, ReadingAndWritingSwitchAtTheCurrentPlace) {
    writeFile(dir + "/rw.txt", "line1\r\nline2\r\n");
    MxpFile *f = mxp_FileOpen(path("rw.txt").c_str(), u"r+", Share::kDenyReadWrite, nullptr);
    char16_t buf[32];
    ASSERT_EQ(mxp_FileReadLine(f, buf, 32), 6);
    EXPECT_EQ(mxp_FilePutText(f, u"XY"), 0);
    ASSERT_EQ(mxp_FileReadLine(f, buf, 32), 4);
    EXPECT_EQ(std::u16string(buf), u"ne2\n");
    mxp_FileClose(f);
    EXPECT_EQ(readFile(dir + "/rw.txt"), "line1\r\nXYne2\r\n");
}

TEST_F(StreamTest, ReplaceSwapsTheWholeFileUnlessItIsLocked) {
    writeFile(dir + "/r.ini", "old");
    EXPECT_TRUE(mxp_FileReplace(path("r.ini").c_str(), "new", 3));
    EXPECT_EQ(readFile(dir + "/r.ini"), "new");
    MxpFile *f = mxp_FileOpen(path("r.ini").c_str(), u"r", Share::kDenyReadWrite, nullptr);
    EXPECT_FALSE(mxp_FileReplace(path("r.ini").c_str(), "newer", 5));
    mxp_FileClose(f);
    EXPECT_EQ(readFile(dir + "/r.ini"), "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 1) << "no temporary left";
}

TEST_F(StreamTest, ListingSortsAndMarksRealDirectories) {
    fs::create_directory(dir + "/sub");
    writeFile(dir + "/b.txt", "");
    writeFile(dir + "/a.txt", "");
    fs::create_directory_symlink(dir + "/sub", dir + "/link");
    std::vector<MxpDirEntry> entries;
    ASSERT_TRUE(mxp_ListDirectory(fromUtf8(dir).c_str(), entries));
    ASSERT_EQ(entries.size(), 4u);
    EXPECT_EQ(entries[0].name, u"a.txt");
    EXPECT_EQ(entries[2].name, u"link");
    EXPECT_FALSE(entries[2].directory) << "links to directories are not descended";
    EXPECT_TRUE(entries[3].directory);
    EXPECT_FALSE(mxp_ListDirectory(path("missing").c_str(), entries));
}


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

TEST(FilePaths, FilesWithoutVersionResourceAnswerTwo) {
    char16_t buf[16] = u"old";
    EXPECT_EQ(mdGetModuleVersion(u"/proc/self/exe", buf, 16, u"%d.%d"), 2);
    EXPECT_EQ(buf[0], 0);
}

}  // namespace
