// The registry: round trips with defaults through the built-ins, colour
// packing, deletion rules, the roots, the store's text form and concurrent
// writers in several processes.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "builtins/files/registry_access.h"
#include "base/utf8.h"
#include "helperlib/kelvane_registry.h"
#include "macro_harness.h"
#include "platform/posix/registry_store.h"
#include "platform/registry.h"

namespace fs = std::filesystem;
using namespace mx;

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

TEST_F(Registry, OtherRootsSelectNoHive) {
    for (int32_t root : {0, 3, -1, INT32_MIN + 1}) {
        SCOPED_TRACE(root);
        char16_t buf[8];
        EXPECT_EQ(rgWriteString(root, u"K", u"N", u"v"), 0);
        EXPECT_EQ(rgReadString(root, u"K", u"N", u"d", buf, 8), 0);
        EXPECT_EQ(std::u16string(buf), u"d");
        EXPECT_EQ(rgDeleteItem(root, u"K", u"N"), -1);
        EXPECT_EQ(rgDeleteKey(root, u"K"), 0);
    }
    EXPECT_FALSE(fs::exists(dir)) << "nothing was stored";
}

TEST_F(Registry, DeletionNeedsTheValueAndSparesKeysWithSubkeys) {
    rgWriteInt(1, u"A\\B\\C", u"x", 1);
    rgWriteInt(1, u"A\\B", u"y", 2);
    EXPECT_EQ(rgDeleteItem(1, u"A\\B", u"missing"), -1);
    EXPECT_EQ(rgDeleteItem(1, u"A\\Z", u"y"), -1);
    EXPECT_EQ(rgDeleteItem(1, u"a\\b", u"Y"), 0);
    EXPECT_EQ(rgReadInt(1, u"A\\B", u"y", -1), -1);
    EXPECT_EQ(mxp_RegDeleteKey(RegRoot::kCurrentUser, u"A\\B"), -1) << "it has a subkey";
    EXPECT_EQ(rgReadInt(1, u"A\\B\\C", u"x", -1), 1);
    EXPECT_EQ(mxp_RegDeleteKey(RegRoot::kCurrentUser, u"A\\B\\C"), 0);
    EXPECT_EQ(rgReadInt(1, u"A\\B\\C", u"x", -1), -1);
    EXPECT_EQ(mxp_RegDeleteKey(RegRoot::kCurrentUser, u"A\\B"), 0);
    EXPECT_EQ(mxp_RegDeleteKey(RegRoot::kCurrentUser, u"A\\B"), -1);
    EXPECT_EQ(rgDeleteKey(1, u"A\\B"), 0) << "the built-in answers 0 anyway";
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

TEST_F(Registry, MacrosReachTheRegistryByName) {
    MacroRun r = runMemory(
        u"char s[20]; int red; int green; int blue;"
        u"WriteStringToRegistry(HKCU, \"Software\\\\Mx\", \"S\", \"text\");"
        u"ReadStringFromRegistry(HKEY_CURRENT_USER, \"Software\\\\Mx\", \"S\", \"d\", s); Print(s);"
        u"WriteIntToRegistry(HKCU, \"Software\\\\Mx\", \"I\", 77);"
        u"Print(ReadIntFromRegistry(HKCU, \"Software\\\\Mx\", \"I\", 0));"
        u"red = 1; green = 2; blue = 3;"
        u"Print(ReadColorFromRegistry(HKCU, \"Software\\\\Mx\", \"C\", red, green, blue));"
        u"WriteColorToRegistry(HKCU, \"Software\\\\Mx\", \"C\", 4, 5, 6);"
        u"Print(ReadColorFromRegistry(HKCU, \"Software\\\\Mx\", \"C\", red, green, blue));"
        u"Print(blue);"
        u"Print(DeleteRegistryItem(3, \"Software\\\\Mx\", \"I\"));"
        u"Print(DeleteRegistryItem(HKCU, \"Software\\\\Mx\", \"I\"));"
        u"Print(ReadIntFromRegistry(HKCU, \"Software\\\\Mx\", \"I\", -9));"
        u"Print(DeleteRegistryKey(HKCU, \"Software\"));");
    EXPECT_EQ(r.output, "text\n77\n197121\n394500\n6\n-1\n0\n-9\n0\n");
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
