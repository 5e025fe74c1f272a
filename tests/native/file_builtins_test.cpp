// The file built-ins through real macros and directly: the five slots, the
// open errors and their boxes, handles that name no stream, line reading in
// pieces, exact writing, copying, renaming, deleting, loading, temporary names,
// directory chains, the file lists of MakeFilelist and ScanDirectory, and files
// that are no regular files: a macro never blocks on a FIFO, never reads a
// device without end, never replaces a link or a device by a file of its own,
// and learns of a write that failed.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>

#include "base/utf8.h"
#include "builtins/files/file_lists.h"
#include "builtins/files/file_ops.h"
#include "builtins/files/streams.h"
#include "builtins/table.h"
#include "engine/dispatcher.h"
#include "engine/run_context.h"
#include "macro_harness.h"
#include "platform/platform.h"

namespace fs = std::filesystem;
using namespace mx;

namespace {

struct FileBuiltins : ::testing::Test {
    std::string dir = scratchDir();
    std::string path(const std::string &name) const { return dir + "/" + name; }
    std::u16string upath(const std::string &name) const { return fromUtf8(path(name)); }
    MacroRun run(const std::string &text) { return runMemory(u16(text)); }
    void TearDown() override { fs::remove_all(dir); }
};

TEST_F(FileBuiltins, SixthOpenAnswersZeroSilentlyAndAFreedSlotIsReused) {
    for (int i = 1; i <= 6; ++i) writeFile(path("f" + std::to_string(i)), "x");
    std::string m = "int h[7]; int i; i = 1;\n";
    for (int i = 1; i <= 6; ++i)
        m += "h[" + std::to_string(i) + "] = OpenFile(\"" + path("f" + std::to_string(i)) + "\", \"r\");\n";
    m += "i = 1; while (i < 7) { Print(h[i]); i = i + 1; }\n"
         "Print(CloseFile(h[3]));\n"
         "Print(OpenFile(\"" + path("f6") + "\", \"r\"));\n";
    // A close frees the slot and the file: the same file opens again, more
    // often than there are slots.
    for (int i = 1; i <= 5; ++i) m += "CloseFile(" + std::to_string(i) + ");";
    m += "i = 0; while (i < 7) { h[0] = OpenFile(\"" + path("f1") + "\", \"w\"); Print(h[0]);"
         " CloseFile(h[0]); i = i + 1; }\n";
    MacroRun r = run(m);
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "1\n2\n3\n4\n5\n0\n0\n3\n1\n1\n1\n1\n1\n1\n1\n");
}

TEST_F(FileBuiltins, OpenErrorKeepsOnly127CharactersOfTheName) {
    RunContext ctx{};
    static std::string box;
    box.clear();
    mxp_SetBoxSink([](const char16_t *, const char16_t *text) { box = toUtf8(text); });
    std::u16string name = upath(std::string(600, 'n'));
    EXPECT_EQ(fsOpenFile(ctx, name.c_str(), u"r"), 0);
    mxp_SetBoxSink(nullptr);
    EXPECT_EQ(ctx.errorCode, 113);
    EXPECT_EQ(std::u16string(ctx.errorArg), name.substr(0, 127));
    EXPECT_NE(box.find(toUtf8(name.substr(0, 127).c_str()) + "' existiert nicht"), std::string::npos);
}

TEST_F(FileBuiltins, FilesOfARunAndOfANestedRunAreClosedAtTheirEnd) {
    writeFile(path("outer.txt"), "o\n");
    for (int i = 1; i <= 5; ++i) writeFile(path("in" + std::to_string(i)), "i\n");
    std::string inner = "Macro \"inner\" begin\n";
    for (int i = 1; i <= 5; ++i)
        inner += "Print(OpenFile(\"" + path("in" + std::to_string(i)) + "\", \"r\"));\n";
    writeFile(path("inner.mac"), inner + "end\n");
    writeFile(path("outer.mac"), "Macro \"outer\" begin int h; char s[8];\n"
                                 "h = OpenFile(\"" + path("outer.txt") + "\", \"r\");\n"
                                 "Call(\"" + path("inner.mac") + "\");\n"
                                 "Print(OpenFile(\"" + path("in1") + "\", \"r\"));\n"
                                 "ReadFile(h, s); Print(s);\nend\n");
    MacroRun r = runFile(upath("outer.mac"));
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "1\n2\n3\n4\n5\n2\no\n\n");
    RunContext ctx{};
    int32_t h = fsOpenFile(ctx, upath("outer.txt").c_str(), u"r");
    EXPECT_EQ(h, 1) << "the run's end closed the outer file";
    fsCloseFile(ctx, h);
}

TEST_F(FileBuiltins, FilesAreClosedWhenARunFailsOrIsAborted) {
    writeFile(path("x.txt"), "x");
    std::string open = "int h; h = OpenFile(\"" + path("x.txt") + "\", \"r\");";
    MacroRun failed = run(open + "Print(h); Print(undeclared);");
    EXPECT_EQ(failed.result, -1);
    MacroRun aborted = runMemory(u16(open + "Print(h); Print(2);"), 1, nullptr, 2);
    EXPECT_EQ(aborted.result, -2);
    EXPECT_EQ(aborted.output, "1\n");
    RunContext ctx{};
    EXPECT_EQ(fsOpenFile(ctx, upath("x.txt").c_str(), u"r"), 1) << "both runs closed the file";
    fsCloseFile(ctx, 1);
}

TEST_F(FileBuiltins, CopyReplacesTheDestinationAndNeedsItsSource) {
    std::string big(5000, 'z');
    big[1023] = '\0';
    writeFile(path("src.bin"), big);
    writeFile(path("dst.bin"), "old content that is longer");
    EXPECT_EQ(foCopyFile(upath("src.bin").c_str(), upath("dst.bin").c_str()), 0);
    EXPECT_EQ(readFile(path("dst.bin")), big);
    EXPECT_EQ(foCopyFile(upath("none.bin").c_str(), upath("new.bin").c_str()), 1);
    EXPECT_FALSE(fs::exists(path("new.bin")));
    EXPECT_EQ(foCopyFile(upath("src.bin").c_str(), upath("src.bin").c_str()), 1);
    EXPECT_EQ(readFile(path("src.bin")), big) << "copying onto itself loses nothing";
    EXPECT_EQ(foCopyFile(upath("src.bin").c_str(), upath("nodir/x").c_str()), 1);
    RunContext ctx{};
    ASSERT_EQ(fsOpenFile(ctx, upath("dst.bin").c_str(), u"r"), 1);
    EXPECT_EQ(foCopyFile(upath("dst.bin").c_str(), upath("copy.bin").c_str()), 1) << "an open file is busy";
    fsCloseFile(ctx, 1);
}

TEST_F(FileBuiltins, DeleteAlwaysAnswersZero) {
    writeFile(path("d"), "x");
    EXPECT_EQ(foDeleteFile(upath("d").c_str()), 0);
    EXPECT_FALSE(fs::exists(path("d")));
    EXPECT_EQ(foDeleteFile(upath("d").c_str()), 0);
    EXPECT_EQ(foDeleteFile(u""), 0);
    EXPECT_EQ(foDeleteFile(upath(std::string(600, 'd')).c_str()), 0);
    // Only the first 511 characters name the file.
    std::string deep = path(std::string(200, 'a') + "/" + std::string(200, 'b') + "/");
    fs::create_directories(deep);
    std::string cut = deep + std::string(511 - deep.size(), 'c');
    writeFile(cut, "x");
    EXPECT_EQ(foDeleteFile(fromUtf8(cut + "cccc").c_str()), 0);
    EXPECT_FALSE(fs::exists(cut));
}

TEST_F(FileBuiltins, LoadFileDecodesByItsMarkWithinTheCapacity) {
    struct Case {
        std::string bytes;
        int32_t capacity;
        int32_t result;
        std::u16string text;
    } cases[] = {
        {"\xef\xbb\xbf" "a\xc3\xa4\r\n", 16, 4, u"a\u00e4\r\n"},
        {std::string("\xff\xfe" "a\0\x01\x01", 6), 16, 2, u"a\u0101"},
        {"a\xe4\xff", 16, 3, u"a\u00e4\u00ff"},
        {"abcdef", 4, 3, u"abc"},
        {"abcdef", 1, 0, u""},
        {"", 8, 0, u""},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.bytes);
        writeFile(path("load.txt"), c.bytes);
        char16_t buf[17];
        std::fill(std::begin(buf), std::end(buf), u'#');
        EXPECT_EQ(foLoadFile(upath("load.txt").c_str(), buf, c.capacity, 99), c.result);
        EXPECT_EQ(std::u16string(buf), c.text);
        EXPECT_EQ(buf[c.capacity], u'#') << "nothing written past the capacity";
    }
    char16_t buf[4] = u"old";
    EXPECT_EQ(foLoadFile(upath("none.txt").c_str(), buf, 4, 0), -1);
    EXPECT_EQ(foLoadFile(fromUtf8(dir).c_str(), buf, 4, 0), -1);
    EXPECT_EQ(std::u16string(buf), u"old");
}

TEST_F(FileBuiltins, TempFileNamesAreNewEmptyFilesStartingWithMX) {
    std::string tmp = dir + "/tmp";
    fs::create_directory(tmp);
    const char *old = getenv("TMPDIR");
    std::string saved = old ? old : "";
    setenv("TMPDIR", tmp.c_str(), 1);
    char16_t a[256], b[256], small[8] = u"keep";
    EXPECT_EQ(foGetTempFileName(a, 256), 0);
    EXPECT_EQ(foGetTempFileName(b, 256), 0);
    EXPECT_EQ(foGetTempFileName(small, 8), -1);
    if (old) setenv("TMPDIR", saved.c_str(), 1);
    else unsetenv("TMPDIR");
    EXPECT_NE(std::u16string(a), std::u16string(b));
    EXPECT_EQ(small[0], 0);
    for (char16_t *name : {a, b}) {
        fs::path p(toUtf8(name));
        EXPECT_EQ(p.parent_path().string(), tmp);
        EXPECT_EQ(p.filename().string().substr(0, 2), "MX");
        EXPECT_TRUE(fs::exists(p));
        EXPECT_EQ(fs::file_size(p), 0u);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(tmp), fs::directory_iterator()), 2);
}

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
