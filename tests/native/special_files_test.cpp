// Files that are not regular files, links and failing writes: a macro never
// blocks on a FIFO, never reads a device without end, never replaces a link
// or a device by a file of its own, and learns of a write that failed.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "macro_harness.h"

namespace {

struct SpecialFiles : ::testing::Test {
    std::string dir = scratchDir();
    std::string fifo = dir + "/pipe";
    void SetUp() override { ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0); }
    MacroRun run(const std::string &body) { return runMemory(u16(body)); }
    bool isFifo(const std::string &path) {
        struct stat st;
        return lstat(path.c_str(), &st) == 0 && S_ISFIFO(st.st_mode);
    }
};

}  // namespace

TEST_F(SpecialFiles, OpenFileRefusesAFifoInsteadOfWaitingForAWriter) {
    MacroRun r = run("Print(OpenFile(\"" + fifo + "\", \"r\")); Print(OpenFile(\"" + fifo + "\", \"w\"));");
    EXPECT_EQ(r.result, 0);
    std::string refused = "Makrofehler: Fehler in Zeile 1 des Makros \n\nDie Datei '" + fifo +
                          "' ist bereits im Zugriff\n\n0\n";
    EXPECT_EQ(r.output, refused + refused);
    EXPECT_TRUE(isFifo(fifo));
}

TEST_F(SpecialFiles, DevicesAreNoFilesForCopyProfilesOrTheLoader) {
    MacroRun r = run("char s[20]; Print(CopyFile(\"/dev/zero\", \"" + dir + "/copy\"));"
                     " ReadProfile(\"/dev/zero\", \"a\", \"b\", s); Print(StrLen(s));"
                     " ReadProfile(\"" + fifo + "\", \"a\", \"b\", s); Print(StrLen(s));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "1\n0\n0\n");
    EXPECT_EQ(access((dir + "/copy").c_str(), F_OK), -1);
    CoreRun c = runCore(u16(fifo), true);
    EXPECT_EQ(c.errorCode, 115);
    EXPECT_EQ(runCore(u"/dev/zero", true).errorCode, 115);
}

TEST_F(SpecialFiles, WriteProfileWritesThroughALinkAndLeavesSpecialFilesAlone) {
    writeFile(dir + "/real.ini", "[s]\nold=1\n");
    ASSERT_EQ(symlink("real.ini", (dir + "/link.ini").c_str()), 0);
    ASSERT_EQ(symlink("missing.ini", (dir + "/dangling.ini").c_str()), 0);
    MacroRun r = run("WriteProfile(\"" + dir + "/link.ini\", \"s\", \"new\", \"2\");"
                     "WriteProfile(\"" + fifo + "\", \"s\", \"k\", \"v\");"
                     "WriteProfile(\"" + dir + "/dangling.ini\", \"s\", \"k\", \"v\");");
    EXPECT_EQ(r.result, 0);
    struct stat st;
    ASSERT_EQ(lstat((dir + "/link.ini").c_str(), &st), 0);
    EXPECT_TRUE(S_ISLNK(st.st_mode));
    EXPECT_EQ(readFile(dir + "/real.ini"), "[s]\r\nold=1\r\nnew=2\r\n");
    EXPECT_TRUE(isFifo(fifo));
    ASSERT_EQ(lstat((dir + "/dangling.ini").c_str(), &st), 0);
    EXPECT_TRUE(S_ISLNK(st.st_mode));
    EXPECT_EQ(access((dir + "/missing.ini").c_str(), F_OK), -1);
}

TEST_F(SpecialFiles, XmlWriteFileReportsAWriteThatFailed) {
    // A file size limit makes the writes fail on a regular file, as a full
    // disk or an exhausted quota would.
    std::string body;
    for (int i = 0; i < 200; ++i) body += " XMLAddChild(XMLGetRoot(d), \"item\", \"some text to fill the file\");";
    struct rlimit saved;
    getrlimit(RLIMIT_FSIZE, &saved);
    struct rlimit small = saved;
    small.rlim_cur = 1000;
    auto oldHandler = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    MacroRun r = run("int d; d = XMLCreate(\"r\", \"utf8\");" + body + " Print(XMLWriteFile(d, \"" + dir +
                     "/big.xml\", 0)); XMLDelete(d);");
    setrlimit(RLIMIT_FSIZE, &saved);
    signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(r.result, 0);
    EXPECT_NE(r.output.find("-10"), std::string::npos) << r.output;
    EXPECT_EQ(r.output.substr(r.output.size() - 2), "2\n");
    // A device is refused at the open.
    r = run("int d; d = XMLCreate(\"r\", \"utf8\"); Print(XMLWriteFile(d, \"/dev/full\", 0)); XMLDelete(d);");
    EXPECT_EQ(r.output.substr(r.output.size() - 2), "2\n");
}

TEST(Loader, TooLargeIsCheckedBeforeEachByteOnly) {
    // Every line's open quote is closed by the loader, so the text grows by
    // one unit per line: ten such lines fill the buffer to capacity - 10
    // exactly at the end of the file, which is no byte and no error.
    std::string dir = scratchDir();
    std::string text;
    for (int i = 0; i < 10; ++i) text += "\"\n";
    writeFile(dir + "/grow.mac", text);
    EXPECT_NE(runCore(u16(dir + "/grow.mac"), true).errorCode, 152);
    // Two more, and the last line feed meets the limit.
    writeFile(dir + "/grow.mac", text + "\"\n\"\n");
    EXPECT_EQ(runCore(u16(dir + "/grow.mac"), true).errorCode, 152);
}
