// The shared stream and profile cases against the Windows runtime and
// profile functions themselves (under Wine): the native tests hold the
// Linux build to the same cases, so both builds treat the same files alike.
#include <gtest/gtest.h>
#include <share.h>
#include <windows.h>

#include <cstdio>
#include <filesystem>

#include "platform/file_mode.h"
#include "tests/native/file_mode_cases.h"
#include "tests/native/file_profile_cases.h"
#include "win_harness.h"

namespace fs = std::filesystem;

namespace {

const wchar_t *W(const char16_t *s) { return reinterpret_cast<const wchar_t *>(s); }

struct WinModes : ::testing::Test {
    std::wstring dir = winScratchDir();
    void TearDown() override { fs::remove_all(dir); }
};

TEST_F(WinModes, RuntimeWritesTheExpectedBytes) {
    std::wstring name = dir + L"\\w.txt";
    for (const filecases::WriteCase &c : filecases::writeCases()) {
        SCOPED_TRACE(fs::path(W(c.mode)).string());
        DeleteFileW(name.c_str());
        if (c.before) winWriteFile(name, std::string(c.before, c.beforeSize));
        FILE *f = _wfsopen(name.c_str(), W(c.mode), _SH_DENYRW);
        ASSERT_NE(f, nullptr);
        int r = fputws(W(c.text.c_str()), f);
        fclose(f);
        EXPECT_EQ(r < 0 || r == int(WEOF) ? -1 : 0, c.result);
        EXPECT_EQ(winReadFile(name), c.bytes);
    }
}

TEST_F(WinModes, RuntimeReadsTheExpectedLines) {
    std::wstring name = dir + L"\\r.txt";
    for (const filecases::ReadCase &c : filecases::readCases()) {
        SCOPED_TRACE(fs::path(W(c.mode)).string() + " capacity " + std::to_string(c.capacity));
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

TEST_F(WinModes, RuntimeRefusesTheInvalidModes) {
    std::wstring name = dir + L"\\x.txt";
    winWriteFile(name, "x");
    for (const char16_t *mode : filecases::invalidModes()) {
        SCOPED_TRACE(fs::path(W(mode)).string());
        errno = 0;
        EXPECT_EQ(_wfsopen(name.c_str(), W(mode), _SH_DENYNO), nullptr);
        EXPECT_EQ(errno, EINVAL);
    }
}

// The library reads mode texts itself before the runtime sees them, so the
// reading must accept exactly the modes the runtime accepts.
TEST_F(WinModes, TheLibrarysModeReadingAgreesWithTheRuntime) {
    std::wstring name = dir + L"\\m.txt";
    std::vector<const char16_t *> modes = filecases::invalidModes();
    for (const filecases::WriteCase &c : filecases::writeCases()) modes.push_back(c.mode);
    for (const filecases::ReadCase &c : filecases::readCases()) modes.push_back(c.mode);
    for (const char16_t *m : {u"rt", u"r+b", u"rb+", u"a+t", u"R", u"rN", u"rS", u"rc", u"w ", u" r",
                              u"r, ccs=utf-16le", u"r,ccs=UNICODE", u"r , ccs=UTF-8", u"r,  ccs = UTF-8 ",
                              u"x", u"+r", u"r,ccs=", u"r, ccs=UTF-16", u"r, ccs=UTF8"})
        modes.push_back(m);
    for (const char16_t *mode : modes) {
        SCOPED_TRACE(fs::path(W(mode)).string());
        winWriteFile(name, "x");
        FILE *f = _wfsopen(name.c_str(), W(mode), _SH_DENYNO);
        if (f) fclose(f);
        EXPECT_EQ(mx::fileModeParse(mode).valid, f != nullptr);
    }
}

TEST_F(WinModes, ProfileFunctionsReadAndWriteAsExpected) {
    std::wstring name = dir + L"\\t.ini";
    winWriteFile(name, filecases::kProfileText);
    for (const filecases::ProfileReadCase &c : filecases::profileReadCases()) {
        wchar_t buf[32];
        std::fill(std::begin(buf), std::end(buf), L'#');
        DWORD n =
            GetPrivateProfileStringW(W(c.section), W(c.key), W(c.def), buf, DWORD(c.capacity), name.c_str());
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
