// Profiles and the registry on Linux with the Windows semantics: profile reads
// and writes (the case tables shared with the Windows tests), the forms a file
// keeps, the directory of bare names, sharing with open streams, the default
// profile, hostile names (a name the line format cannot hold is refused, so no
// entry is lost or injected); registry round trips with defaults, colour
// packing, deletion rules, the roots, the store's text form and concurrent
// writers in several processes.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "base/utf8.h"
#include "builtins/files/profiles.h"
#include "builtins/files/registry_access.h"
#include "file_profile_cases.h"
#include "helperlib/kelvane_registry.h"
#include "macro_harness.h"
#include "platform/files.h"
#include "platform/posix/profile_text.h"
#include "platform/posix/registry_store.h"
#include "platform/profile.h"
#include "platform/registry.h"

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

namespace {

struct Registry : ::testing::Test {
    std::string dir = std::string(getenv("MORVIX_REGISTRY_DIR"));
    void SetUp() override { fs::remove_all(dir); }
    void TearDown() override { fs::remove_all(dir); }
};

TEST_F(Registry, ValuesRoundTripWithDefaults) {
    char16_t buf[16];
    EXPECT_EQ(rgReadString(1, u"Software\\Mx", u"Name", u"dflt", buf, 16), 0);
    EXPECT_EQ(std::u16string(buf), u"dflt");
    EXPECT_EQ(rgReadInt(1, u"Software\\Mx", u"Count", -5), -5);
    EXPECT_EQ(rgWriteString(1, u"Software\\Mx", u"Name", u"value = 100%\nnext"), 0);
    EXPECT_EQ(rgWriteInt(1, u"Software\\Mx", u"Count", -42), 0);
    EXPECT_EQ(rgReadString(1, u"software\\MX", u"NAME", u"dflt", buf, 16), 0);
    EXPECT_EQ(std::u16string(buf), u"value = 100%\nne") << "cut to the capacity";
    EXPECT_EQ(rgReadInt(1, u"Software\\Mx", u"Count", 0), -42);
    EXPECT_EQ(rgReadInt(1, u"Software\\Mx", u"Name", 7), 7) << "a text is no 32-bit value";
    EXPECT_EQ(rgReadString(1, u"Software\\Mx", u"Count", u"d", buf, 16), 0);
    EXPECT_EQ(std::u16string(buf), u"d");
    EXPECT_EQ(rgReadInt(2, u"Software\\Mx", u"Count", 3), 3) << "the hives are apart";
    EXPECT_EQ(rgWriteInt(1, u"Software\\Mx", u"Count", 9), 0);
    EXPECT_EQ(rgReadInt(1, u"Software\\Mx", u"Count", 0), 9);
}

TEST_F(Registry, ColoursPackTheLowBytes) {
    int32_t r = 0x1FF, g = 0x102, b = 0x3;
    EXPECT_EQ(rgReadColor(1, u"Software\\Mx", u"Color", &r, &g, &b), 0x0302FF) << "the default";
    EXPECT_EQ(r, 0xFF);
    EXPECT_EQ(g, 2);
    EXPECT_EQ(b, 3);
    EXPECT_EQ(rgWriteColor(1, u"Software\\Mx", u"Color", 10, 20, 0x11E), 0);
    EXPECT_EQ(rgReadInt(1, u"Software\\Mx", u"Color", 0), 10 + 20 * 256 + 0x1E * 65536);
    EXPECT_EQ(rgReadColor(1, u"Software\\Mx", u"Color", &r, &g, &b), 10 + 20 * 256 + 0x1E * 65536);
    EXPECT_EQ(r, 10);
    EXPECT_EQ(g, 20);
    EXPECT_EQ(b, 0x1E);
}

TEST_F(Registry, KeyNamesHaveAtMost255Characters) {
    std::u16string ok = u"Software\\" + std::u16string(255, u'k');
    std::u16string tooLong = u"Software\\" + std::u16string(256, u'k');
    EXPECT_TRUE(mxp_RegWriteDword(RegRoot::kCurrentUser, ok.c_str(), u"n", 1));
    EXPECT_FALSE(mxp_RegWriteDword(RegRoot::kCurrentUser, tooLong.c_str(), u"n", 1));
    EXPECT_EQ(rgReadInt(1, ok.c_str(), u"n", -1), 1);
    EXPECT_EQ(rgReadInt(1, tooLong.c_str(), u"n", -1), -1);
    EXPECT_EQ(rgDeleteItem(1, tooLong.c_str(), u"n"), -1);
}

TEST_F(Registry, TheCurrentUserHelperJoinsKeyAndSubkey) {
    mxp_RegWriteString(RegRoot::kCurrentUser, u"Software\\Kelvane Software\\Report\\Install", u"AppPath",
                       u"/opt/r");
    char16_t buf[512];
    EXPECT_EQ(Kelvane_ReadStringFromHKCUW(u"Software\\Kelvane Software\\Report", u"Install", u"AppPath", u"",
                                          buf, 512),
              1);
    EXPECT_EQ(std::u16string(buf), u"/opt/r");
    EXPECT_EQ(Kelvane_ReadStringFromHKCUW(u"Software\\Kelvane Software\\Report", u"Install", u"None", u"d",
                                          buf, 512),
              0);
    EXPECT_EQ(std::u16string(buf), u"d");
}

TEST(RegistryStore, TextFormRoundTripsAwkwardNames) {
    RegistryStore s;
    RegKey &k = s.create(u"\\a=b\\\\c]d\\");
    k.values.push_back({u"n=1%", false, u"line1\r\nline2 = x ]", 0});
    k.values.push_back({u"", true, u"", 4000000000u});
    std::string text = s.serialize();
    RegistryStore back = RegistryStore::parse(text + "garbage line\n");
    ASSERT_EQ(back.keys.size(), 1u);
    EXPECT_EQ(back.keys[0].path, u"a=b\\c]d");
    ASSERT_EQ(back.keys[0].values.size(), 2u);
    EXPECT_EQ(back.keys[0].values[0].name, u"n=1%");
    EXPECT_EQ(back.keys[0].values[0].text, u"line1\r\nline2 = x ]");
    EXPECT_TRUE(back.keys[0].values[1].isDword);
    EXPECT_EQ(back.keys[0].values[1].dword, 4000000000u);
    EXPECT_EQ(back.serialize(), text);
}

// Parents are implied by their subkeys: a deep path is one line of its own
// length, and deleting the last subkey leaves its parent in place.
TEST(RegistryStore, ParentsAreImpliedAndOutliveTheirLastSubkey) {
    RegistryStore s;
    std::u16string deep = u"top";
    for (int i = 0; i < 4000; ++i) deep += u"\\k";
    s.create(deep).values.push_back({u"v", false, u"x", 0});
    EXPECT_LT(s.serialize().size(), deep.size() + 64);
    EXPECT_TRUE(s.hasSubkeys(u"TOP\\K"));
    EXPECT_FALSE(s.hasSubkeys(deep));
    EXPECT_FALSE(s.removeKey(u"top"));
    s.create(u"top\\other");
    ASSERT_TRUE(s.removeKey(u"top\\OTHER"));
    ASSERT_TRUE(s.removeKey(deep));
    RegistryStore back = RegistryStore::parse(s.serialize());
    EXPECT_NE(back.find(deep.substr(0, deep.size() - 2)), nullptr);
    EXPECT_EQ(back.find(deep), nullptr);
    EXPECT_TRUE(back.hasSubkeys(u"top"));
    EXPECT_FALSE(back.removeKey(u"top\\other"));
}

TEST_F(Registry, ConcurrentWritersLoseNothing) {
    constexpr int kWriters = 4, kValues = 25;
    std::vector<pid_t> children;
    for (int w = 0; w < kWriters; ++w) {
        pid_t pid = fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            for (int i = 0; i < kValues; ++i) {
                std::u16string name = fromUtf8("w" + std::to_string(w) + "v" + std::to_string(i));
                mxp_RegWriteDword(RegRoot::kCurrentUser, u"Software\\Race", name.c_str(),
                                  uint32_t(w * 100 + i));
            }
            _exit(0);
        }
        children.push_back(pid);
    }
    for (pid_t pid : children) waitpid(pid, nullptr, 0);
    for (int w = 0; w < kWriters; ++w)
        for (int i = 0; i < kValues; ++i) {
            std::u16string name = fromUtf8("w" + std::to_string(w) + "v" + std::to_string(i));
            uint32_t v = 0;
            EXPECT_TRUE(mxp_RegReadDword(RegRoot::kCurrentUser, u"Software\\Race", name.c_str(), &v));
            EXPECT_EQ(v, uint32_t(w * 100 + i));
        }
    for (auto &e : fs::directory_iterator(dir))
        EXPECT_EQ(e.path().string().find(".mx-"), std::string::npos) << "no temporary left";
}

}  // namespace
