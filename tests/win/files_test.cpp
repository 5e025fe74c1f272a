// Files on the real platform: the default profile in the Windows directory,
// module names and versions, sharing with other openers, and the library's
// reading of mode texts against the runtime's own. What the streams and
// profiles write is checked by the file cases on both hosts.
#include <gtest/gtest.h>
#include <share.h>

#include <cstdio>
#include <cwchar>
#include <filesystem>

#include "platform/file_mode.h"
#include "tests/native/file_mode_cases.h"
#include "win_harness.h"

namespace fs = std::filesystem;

namespace {

const wchar_t *W(const char16_t *s) { return reinterpret_cast<const wchar_t *>(s); }

struct WinFiles : ::testing::Test {
    std::wstring dir = winScratchDir();
    wchar_t cwd[MAX_PATH], windows[MAX_PATH], exe[MAX_PATH];
    void SetUp() override {
        GetCurrentDirectoryW(MAX_PATH, cwd);
        GetWindowsDirectoryW(windows, MAX_PATH);
        GetModuleFileNameW(nullptr, exe, MAX_PATH);
        SetCurrentDirectoryW(dir.c_str());
    }
    void TearDown() override {
        SetCurrentDirectoryW(cwd);
        fs::remove_all(dir);
    }
};

TEST_F(WinFiles, DefaultProfileIsTheHostsIniInTheWindowsDirectory) {
    std::wstring ini = std::wstring(windows) + L"\\" + fs::path(exe).stem().wstring() + L".ini";
    DeleteFileW(ini.c_str());
    EXPECT_EQ(runIn(nullptr, "char s[20]; WriteProfile(\"\", \"Own\", \"key\", \"mine\");"
                             "ReadProfile(\"\", \"own\", \"KEY\", s); Print(s);"),
              "mine\n");
    EXPECT_EQ(winReadFile(ini), "[Own]\r\nkey=mine\r\n");
    DeleteFileW(ini.c_str());
}

TEST_F(WinFiles, ModuleDirectoryNamesAndTheVersionResource) {
    EXPECT_EQ(runIn(nullptr, "char s[300]; GetAppName(s); Print(s); Print(GetProgPath(s)); Print(s);"
                             "Print(GetWindowsPath(s)); Print(s);"),
              utf8(exe) + "\n1\n" + utf8(fs::path(exe).parent_path().wstring()) + "\n0\n" + utf8(windows) + "\n");
    wchar_t module[MAX_PATH];
    GetModuleFileNameW(dll().dll, module, MAX_PATH);
    WCHAR text[64] = {};
    unsigned v[4] = {};
    dll().getVersion(text, 64);
    std::swscanf(text, L"%u.%u.%u.%u", &v[0], &v[1], &v[2], &v[3]);
    char expected[200];
    std::snprintf(expected, sizeof expected, "1\n%u.%u\n1\n%u|%03x|%u|%u||\n2\n0\n", v[0], v[1], v[0], v[1], v[2], v[3]);
    EXPECT_EQ(runIn(nullptr, "char v[40]; char mod[300]; mod = \"" + macroPath(module) + "\";"
                             "Print(GetModuleVersion(mod, v, \"%d.%d\")); Print(v);"
                             "Print(GetModuleVersion(mod, v, \"%s|%03x|%d|%d|%d|%d\")); Print(v);"
                             "v = \"old\"; Print(GetModuleVersion(\"missing.dll\", v, \"\")); Print(StrLen(v));"),
              expected);
}

TEST_F(WinFiles, AnOpenFileIsBusyForOtherOpeners) {
    winWriteFile(dir + L"\\busy.txt", "data\r\n");
    FILE *other = _wfsopen(L"busy.txt", L"r", _SH_DENYNO);
    ASSERT_NE(other, nullptr);
    std::string held = runIn(nullptr, "Print(OpenFile(\"busy.txt\", \"r\")); Print(CopyFile(\"busy.txt\", \"c.txt\"));");
    fclose(other);
    EXPECT_EQ(held, "Makrofehler: Fehler in Zeile 1 des Makros \n\nDie Datei 'busy.txt' ist bereits im Zugriff\n\n0\n1\n");
    EXPECT_EQ(runIn(nullptr, "int h; char s[9]; h = OpenFile(\"busy.txt\", \"r\"); Print(h); Print(ReadFile(h, s)); Print(s);"),
              "1\n0\ndata\n\n");
}

// The library reads mode texts itself before the runtime sees them, so the
// reading must accept exactly the modes the runtime accepts.
TEST_F(WinFiles, TheLibrarysModeReadingAgreesWithTheRuntime) {
    std::wstring name = dir + L"\\m.txt";
    std::vector<const char16_t *> modes = filecases::invalidModes();
    for (const filecases::WriteCase &c : filecases::writeCases()) modes.push_back(c.mode);
    for (const char16_t *m : {u"rt", u"r+b", u"rb+", u"a+t", u"R", u"rN", u"rS", u"rc", u"w ", u" r",
                              u"r, ccs=utf-16le", u"r,ccs=UNICODE", u"r , ccs=UTF-8", u"r,  ccs = UTF-8 ",
                              u"x", u"+r", u"r,ccs=", u"r, ccs=UTF-16", u"r, ccs=UTF8"})
        modes.push_back(m);
    for (const char16_t *mode : modes) {
        SCOPED_TRACE(utf8(W(mode)));
        winWriteFile(name, "x");
        FILE *f = _wfsopen(name.c_str(), W(mode), _SH_DENYNO);
        if (f) fclose(f);
        EXPECT_EQ(mx::fileModeParse(mode).valid, f != nullptr);
    }
}

}  // namespace
