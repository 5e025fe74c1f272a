// Files on the real platform: the default profile in the Windows directory,
// module names and versions, sharing with other openers, and the shared
// stream and profile cases against the Windows runtime and profile functions
// themselves (the native tests hold the Linux build to the same cases).
#include <gtest/gtest.h>
#include <share.h>

#include <cstdio>
#include <cwchar>
#include <filesystem>

#include "platform/file_mode.h"
#include "tests/native/file_mode_cases.h"
#include "tests/native/file_profile_cases.h"
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

TEST_F(WinFiles, RuntimeStreamsWriteAndReadTheSharedCases) {
    std::wstring name = dir + L"\\w.txt";
    for (const filecases::WriteCase &c : filecases::writeCases()) {
        SCOPED_TRACE(utf8(W(c.mode)));
        DeleteFileW(name.c_str());
        if (c.before) winWriteFile(name, std::string(c.before, c.beforeSize));
        FILE *f = _wfsopen(name.c_str(), W(c.mode), _SH_DENYRW);
        ASSERT_NE(f, nullptr);
        int r = fputws(W(c.text.c_str()), f);
        fclose(f);
        EXPECT_EQ(r < 0 || r == int(WEOF) ? -1 : 0, c.result);
        EXPECT_EQ(winReadFile(name), c.bytes);
    }
    for (const filecases::ReadCase &c : filecases::readCases()) {
        SCOPED_TRACE(utf8(W(c.mode)) + " capacity " + std::to_string(c.capacity));
        winWriteFile(name, c.bytes);
        FILE *f = _wfsopen(name.c_str(), W(c.mode), _SH_DENYRW);
        ASSERT_NE(f, nullptr);
        std::vector<std::u16string> lines;
        wchar_t buf[64];
        for (int guard = 0; guard < 20 && fgetws(buf, c.capacity, f); ++guard)
            lines.push_back(reinterpret_cast<const char16_t *>(buf));
        fclose(f);
        EXPECT_EQ(lines, c.lines);
    }
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

TEST_F(WinFiles, ProfileFunctionsReadAndWriteTheSharedCases) {
    std::wstring name = dir + L"\\t.ini";
    winWriteFile(name, filecases::kProfileText);
    for (const filecases::ProfileReadCase &c : filecases::profileReadCases()) {
        wchar_t buf[32];
        std::fill(std::begin(buf), std::end(buf), L'#');
        DWORD n = GetPrivateProfileStringW(W(c.section), W(c.key), W(c.def), buf, DWORD(c.capacity), name.c_str());
        EXPECT_EQ(int(n), c.result);
        EXPECT_EQ(std::u16string(reinterpret_cast<const char16_t *>(buf), c.units.size()), c.units);
        EXPECT_EQ(buf[c.capacity], L'#');
    }
    for (const filecases::ProfileWriteCase &c : filecases::profileWriteCases()) {
        if (c.fresh) DeleteFileW(name.c_str());
        EXPECT_EQ(WritePrivateProfileStringW(W(c.section), W(c.key), W(c.value), name.c_str()), c.result);
        EXPECT_EQ(winReadFile(name), c.file ? std::string(c.file) : std::string());
        EXPECT_EQ(GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES, c.file != nullptr);
    }
    for (const filecases::ProfileRewriteCase &c : filecases::profileRewriteCases()) {
        winWriteFile(name, c.before);
        EXPECT_TRUE(WritePrivateProfileStringW(W(c.section), W(c.key), W(c.value), name.c_str()));
        EXPECT_EQ(winReadFile(name), c.after);
    }
}

}  // namespace
