// The Linux file streams against the C runtime's behaviour (the shared case
// tables), their Windows-like sharing, within the process and between
// processes, and the file system operations that refuse open files.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "base/utf8.h"
#include "file_mode_cases.h"
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

TEST_F(StreamTest, RenameNeverOverwritesAndRefusesOpenFiles) {
    writeFile(dir + "/a.txt", "A");
    writeFile(dir + "/b.txt", "B");
    EXPECT_EQ(mxp_FileRename(path("a.txt").c_str(), path("b.txt").c_str()), -1);
    EXPECT_EQ(readFile(dir + "/b.txt"), "B");
    MxpFile *f = mxp_FileOpen(path("a.txt").c_str(), u"r", Share::kDenyWrite, nullptr);
    EXPECT_EQ(mxp_FileRename(path("a.txt").c_str(), path("c.txt").c_str()), -1);
    EXPECT_EQ(mxp_FileRemove(path("a.txt").c_str()), -1);
    mxp_FileClose(f);
    EXPECT_EQ(mxp_FileRename(path("a.txt").c_str(), path("c.txt").c_str()), 0);
    EXPECT_EQ(readFile(dir + "/c.txt"), "A");
    EXPECT_FALSE(fs::exists(dir + "/a.txt"));
    EXPECT_EQ(mxp_FileRemove(path("c.txt").c_str()), 0);
    EXPECT_EQ(mxp_FileRemove(path("c.txt").c_str()), -1);
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

}  // namespace
