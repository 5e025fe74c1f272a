// The file built-ins of morvix32w.dll on the real platform: the default
// profile in the Windows directory, module names and versions, the five
// slots, long names and sharing with other openers.
#include <gtest/gtest.h>
#include <share.h>
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <filesystem>
#include <vector>

#include "win_harness.h"

namespace fs = std::filesystem;

namespace {

std::u16string u(const std::wstring &s) { return std::u16string(s.begin(), s.end()); }
std::string narrow(const std::wstring &s) { return fs::path(s).string(); }

struct WinFiles : ::testing::Test {
    std::wstring dir = winScratchDir();
    std::wstring cwd;
    void SetUp() override {
        wchar_t buf[MAX_PATH];
        GetCurrentDirectoryW(MAX_PATH, buf);
        cwd = buf;
        SetCurrentDirectoryW(dir.c_str());
    }
    void TearDown() override {
        SetCurrentDirectoryW(cwd.c_str());
        fs::remove_all(dir);
    }
};

TEST_F(WinFiles, DefaultProfileIsTheHostsIniInTheWindowsDirectory) {
    wchar_t windows[MAX_PATH], exe[MAX_PATH];
    GetWindowsDirectoryW(windows, MAX_PATH);
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    std::wstring ini = std::wstring(windows) + L"\\" + fs::path(exe).stem().wstring() + L".ini";
    DeleteFileW(ini.c_str());
    WinRun r = winRunMemory(u"char s[20]; WriteProfile(\"\", \"Own\", \"key\", \"mine\");"
                            u"ReadProfile(\"\", \"own\", \"KEY\", s); Print(s);"
                            u"ReadProfile(\"\", \"Own\", \"none\", s); Print(StrLen(s));"
                            u"Print(DeleteProfileItem(\"\", \"Own\", \"key\"));");
    EXPECT_EQ(r.output, "mine\n0\n0\n");
    EXPECT_EQ(winReadFile(ini), "[Own]\r\nkey=mine\r\n");
    DeleteFileW(ini.c_str());
}

TEST_F(WinFiles, ModuleAndDirectoryNames) {
    wchar_t windows[MAX_PATH], exe[MAX_PATH];
    GetWindowsDirectoryW(windows, MAX_PATH);
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    WinRun r = winRunMemory(u"char s[300]; GetAppName(s); Print(s); Print(GetProgPath(s)); Print(s);"
                            u"Print(GetWindowsPath(s)); Print(s); GetUserPath(s); Print(s);");
    std::string folder = narrow(fs::path(exe).parent_path().wstring());
    EXPECT_EQ(r.output,
              narrow(exe) + "\n1\n" + folder + "\n0\n" + narrow(windows) + "\n" + narrow(windows) + "\n");
}

// The four numbers of the library's version resource, as its own export
// Morvix_GetVersion gives them ("a.b.c.d").
std::vector<unsigned> dllVersion() {
    WCHAR text[64] = {};
    dll().getVersion(text, 64);
    std::vector<unsigned> v(4, 0);
    std::swscanf(text, L"%u.%u.%u.%u", &v[0], &v[1], &v[2], &v[3]);
    return v;
}

TEST_F(WinFiles, ModuleVersionFormatsTheFileVersion) {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(dll().dll, path, MAX_PATH);
    std::u16string module = u(path);
    std::u16string m = u"char v[40]; char mod[300]; mod = \"" + module + u"\";"
                       u"Print(GetModuleVersion(mod, v, \"%d.%d\")); Print(v);"
                       u"Print(GetModuleVersion(mod, v, \" \")); Print(v);"
                       u"Print(GetModuleVersion(mod, v, \"%s|%03x|%d|%d|%d|%d\")); Print(v);"
                       u"v = \"old\"; Print(GetModuleVersion(\"missing.dll\", v, \"\")); Print(StrLen(v));";
    for (char16_t &c : m)
        if (c == u'\\') c = u'/';
    WinRun r = winRunMemory(m);
    std::vector<unsigned> v = dllVersion();
    char expected[200];
    std::snprintf(expected, sizeof expected, "1\n%u.%u\n1\n%u.%u.%u.%u\n1\n%u|%03x|%u|%u||\n2\n0\n", v[0],
                  v[1], v[0], v[1], v[2], v[3], v[0], v[1], v[2], v[3]);
    EXPECT_EQ(r.output, expected);
}

TEST_F(WinFiles, SixthOpenIsSilentAndLongNamesGiveTheirBox) {
    std::u16string m =
        u"int h[7]; char name[700]; int i; i = 1;"
        u"h[1] = OpenFile(\"a1\", \"w\"); h[2] = OpenFile(\"a2\", \"w\"); h[3] = OpenFile(\"a3\", \"w\");"
        u"h[4] = OpenFile(\"a4\", \"w\"); h[5] = OpenFile(\"a5\", \"w\"); h[6] = OpenFile(\"a6\", \"w\");"
        u"Print(h[6]); Print(CloseFile(h[2])); Print(OpenFile(\"a6\", \"w\"));";
    WinRun r = winRunMemory(m);
    EXPECT_EQ(r.output, "0\n0\n2\n");
    r = winRunMemory(u"char name[700]; int i; name = \"\"; i = 0;"
                     u"while (i < 600) { StrCat(name, \"n\"); i = i + 1; }"
                     u"Print(OpenFile(name, \"r\")); Print(OpenFile(name, \"w\")); Print(StrLen(name));");
    std::string cut(127, 'n');
    std::string box =
        "Makrofehler: Fehler in Zeile 1 des Makros \n\nDie Datei '" + cut + "' existiert nicht\n\n";
    EXPECT_EQ(r.output, box + "0\n" + box + "0\n600\n");
}

TEST_F(WinFiles, AnOpenFileIsBusyForOtherOpeners) {
    winWriteFile(dir + L"\\busy.txt", "data\r\n");
    FILE *other = _wfsopen(L"busy.txt", L"r", _SH_DENYNO);
    ASSERT_NE(other, nullptr);
    WinRun r =
        winRunMemory(u"Print(OpenFile(\"busy.txt\", \"r\")); Print(CopyFile(\"busy.txt\", \"c.txt\"));");
    fclose(other);
    EXPECT_EQ(r.output,
              "Makrofehler: Fehler in Zeile 1 des Makros \n\nDie Datei 'busy.txt' ist bereits im "
              "Zugriff\n\n0\n1\n");
    r = winRunMemory(u"int h; char s[9]; h = OpenFile(\"busy.txt\", \"r\");"
                     u"Print(h); Print(ReadFile(h, s)); Print(s);");
    EXPECT_EQ(r.output, "1\n0\ndata\n\n");
}

}  // namespace
