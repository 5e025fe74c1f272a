// Profile files on Linux with the Windows semantics (the shared cases), the
// forms they keep, the directory that bare names live in, sharing with open
// streams, and the profile built-ins with the default profile.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "builtins/files/profiles.h"
#include "base/utf8.h"
#include "file_profile_cases.h"
#include "macro_harness.h"
#include "platform/files.h"
#include "platform/posix/profile_text.h"
#include "platform/profile.h"

namespace fs = std::filesystem;
using namespace mx;

namespace {

struct Profiles : ::testing::Test {
    std::string dir = scratchDir();
    std::string file = dir + "/t.ini";
    std::u16string ufile = fromUtf8(file);
    std::string windows = getenv("MORVIX_WINDOWS_DIR");
    void TearDown() override { fs::remove_all(dir); }
};

TEST_F(Profiles, ReadsAsTheWindowsFunctionsDo) {
    writeFile(file, filecases::kProfileText);
    for (const filecases::ProfileReadCase &c : filecases::profileReadCases()) {
        SCOPED_TRACE(toUtf8(c.section) + " / " + toUtf8(c.key) + " capacity " + std::to_string(c.capacity));
        char16_t buf[32];
        std::fill(std::begin(buf), std::end(buf), u'#');
        EXPECT_EQ(mxp_ProfileRead(ufile.c_str(), c.section, c.key, c.def, buf, c.capacity), c.result);
        EXPECT_EQ(std::u16string(buf, c.units.size()), c.units);
        EXPECT_EQ(buf[c.capacity], u'#');
    }
}

TEST_F(Profiles, WritesAsTheWindowsFunctionsDo) {
    writeFile(file, filecases::kProfileText);
    for (const filecases::ProfileWriteCase &c : filecases::profileWriteCases()) {
        SCOPED_TRACE(toUtf8(c.section) + " / " + toUtf8(c.key) + " = " + toUtf8(c.value));
        if (c.fresh) fs::remove(file);
        EXPECT_EQ(mxp_ProfileWrite(ufile.c_str(), c.section, c.key, c.value), c.result);
        EXPECT_EQ(fs::exists(file), c.file != nullptr);
        if (c.file) {
            EXPECT_EQ(readFile(file), c.file);
        }
    }
    for (const filecases::ProfileRewriteCase &c : filecases::profileRewriteCases()) {
        writeFile(file, c.before);
        EXPECT_EQ(mxp_ProfileWrite(ufile.c_str(), c.section, c.key, c.value), 1);
        EXPECT_EQ(readFile(file), c.after);
    }
}

TEST_F(Profiles, KeepsBlankLinesCommentsAndTheFilesForm) {
    writeFile(file, "[s]\r\n; note\r\nk=1\r\n\r\n\r\n[t]\r\nx=1\r\n");
    EXPECT_EQ(mxp_ProfileWrite(ufile.c_str(), u"s", u"j", u"2"), 1);
    EXPECT_EQ(readFile(file), "[s]\r\n; note\r\nk=1\r\nj=2\r\n\r\n\r\n[t]\r\nx=1\r\n");
    writeFile(file, "[s]\r\nk=\xe4\r\n");  // 8-bit text stays 8-bit
    EXPECT_EQ(mxp_ProfileWrite(ufile.c_str(), u"s", u"j", u"\u00f6\u0101"), 1);
    EXPECT_EQ(readFile(file), "[s]\r\nk=\xe4\r\nj=\xf6?\r\n");
    char16_t buf[8];
    mxp_ProfileRead(ufile.c_str(), u"s", u"k", u"", buf, 8);
    EXPECT_EQ(std::u16string(buf), u"\u00e4");
    fs::remove(file);
    EXPECT_EQ(mxp_ProfileWrite(ufile.c_str(), u"s", u"k", u"\u20ac"), 1);
    EXPECT_EQ(readFile(file), "[s]\r\nk=\xe2\x82\xac\r\n") << "new files are UTF-8";
}

TEST_F(Profiles, BareNamesLiveInTheWindowsDirectory) {
    fs::remove_all(windows);
    EXPECT_EQ(mxp_ProfileWrite(u"bare.ini", u"s", u"k", u"v"), 1);
    EXPECT_EQ(readFile(windows + "/bare.ini"), "[s]\r\nk=v\r\n");
    char16_t buf[8];
    EXPECT_EQ(mxp_ProfileRead(u"bare.ini", u"s", u"k", u"", buf, 8), 1);
    EXPECT_EQ(mxp_ProfileRead(u"", u"s", u"k", u"d", buf, 8), 1) << "an empty name gives the default";
    EXPECT_EQ(std::u16string(buf), u"d");
    EXPECT_EQ(mxp_ProfileWrite(u"", u"s", u"k", u"v"), 0);
    EXPECT_EQ(mxp_ProfileWrite(fromUtf8(dir + "/no/dir.ini").c_str(), u"s", u"k", u"v"), 0);
    fs::remove(windows + "/bare.ini");
}

TEST_F(Profiles, AFileOpenedExclusivelyCannotBeReadOrWritten) {
    writeFile(file, "[s]\r\nk=v\r\n");
    MxpFile *f = mxp_FileOpen(ufile.c_str(), u"r", Share::kDenyReadWrite, nullptr);
    char16_t buf[8];
    EXPECT_EQ(mxp_ProfileRead(ufile.c_str(), u"s", u"k", u"d", buf, 8), 1);
    EXPECT_EQ(std::u16string(buf), u"d");
    EXPECT_EQ(mxp_ProfileWrite(ufile.c_str(), u"s", u"k", u"w"), 0);
    mxp_FileClose(f);
    EXPECT_EQ(readFile(file), "[s]\r\nk=v\r\n");
}

TEST_F(Profiles, DefaultProfileIsNamedAfterTheHostModule) {
    char16_t name[kProfileNameCapacity];
    pfDefaultProfile(nullptr, name);
    EXPECT_EQ(toUtf8(name), fs::path(fs::read_symlink("/proc/self/exe")).stem().string() + ".ini");
    std::string own = windows + "/" + toUtf8(name);
    fs::create_directories(windows);
    writeFile(own, "[Own]\r\nkey=mine\r\n");
    MacroRun r = runMemory(u"char s[20]; ReadProfile(\"\", \"Own\", \"key\", s); Print(s);"
                           u"ReadProfile(\"\", \"Own\", \"none\", s); Print(StrLen(s));"
                           u"WriteProfile(\"\", \"Own\", \"new\", \"1\");"
                           u"ReadProfile(\"\", \" \", \"\", s); Print(s);"
                           u"ReadProfile(\"\", \"Own\", \"\t\", s); Print(s);");
    EXPECT_EQ(r.output, "mine\n0\nOwn\nkey\n");
    EXPECT_EQ(readFile(own), "[Own]\r\nkey=mine\r\nnew=1\r\n");
    fs::remove(own);
}

TEST_F(Profiles, BuiltinsCutNamesAndDeleteOnlyNamedFiles) {
    std::string longName = dir + "/" + std::string(200, 'p') + ".ini";
    std::string cut = longName.substr(0, 127);
    std::u16string ulong = fromUtf8(longName);
    EXPECT_EQ(pfWriteProfile(nullptr, ulong.c_str(), u"s", u"k", u"v"), 0);
    EXPECT_EQ(readFile(cut), "[s]\r\nk=v\r\n") << "the name is cut to 127 characters";
    EXPECT_NE(pfDeleteProfileItem(ulong.c_str(), u"s", u"k"), 0);
    EXPECT_EQ(readFile(cut), "[s]\r\n");
    EXPECT_NE(pfDeleteProfileSection(ulong.c_str(), u"s"), 0);
    EXPECT_EQ(readFile(cut), "");
    EXPECT_EQ(pfDeleteProfileItem(u"", u"s", u"k"), 0) << "no default profile for deletions";
    EXPECT_EQ(pfDeleteProfileSection(u"", u"s"), 0);
    char16_t buf[4] = u"old";
    EXPECT_EQ(pfReadProfile(nullptr, ufile.c_str(), u"s", u"k", buf, 4), 0);
    EXPECT_EQ(buf[0], 0) << "a missing entry gives the empty text";
}

TEST(ProfileText, SectionLinesAndEntriesAreRecognised) {
    ProfileText p = ProfileText::parse(u" [ Spaced ] tail\n\tkey\t=\t'v'\nnokey\n[other]\r\n");
    EXPECT_EQ(p.sectionNames(), (std::vector<std::u16string>{u"Spaced", u"other"}));
    std::u16string v;
    ASSERT_TRUE(p.value(u"SPACED", u"KEY", &v));
    EXPECT_EQ(v, u"v");
    EXPECT_FALSE(p.value(u"spaced", u"nokey", &v));
    EXPECT_EQ(p.entryNames(u"spaced"), std::vector<std::u16string>{u"key"});
    EXPECT_TRUE(p.removeSection(u"SPACED"));
    EXPECT_EQ(p.serialize(), u"[other]\r\n");
    EXPECT_FALSE(p.removeEntry(u"other", u"x"));
}

}  // namespace
