// The DLL as a host sees it: every export answers, macros call back into the
// host, the real error box appears with its title and text, aborts show
// nothing, and the host window is the top-level ancestor.
#include <gtest/gtest.h>

#include <string>

#include "unattended.h"
#include "win_harness.h"

namespace {
std::u16string u(const wchar_t *s) { return std::u16string(s, s + wcslen(s)); }
std::wstring text(const WCHAR *s) { return std::wstring(s); }
}  // namespace

TEST(WinExports, EveryExportAnswers) {
    const WinExports &e = dll();
    ASSERT_NE(e.dll, nullptr);
    WCHAR buf[64];
    // The version resource says what the header says.
    const std::string version = MORVIX_VERSION_TEXT;
    const std::wstring wide(version.begin(), version.end());
    EXPECT_EQ(e.getVersion(buf, 64), LONG(wide.size()));
    EXPECT_EQ(text(buf), wide);
    EXPECT_EQ(e.getMacroLibVersion(buf, 64), LONG(wide.size()));
    EXPECT_EQ(text(buf), wide);
    EXPECT_EQ(e.getTlxModuleName(buf, 64), 9);
    EXPECT_EQ(text(buf), L"MORVIXDLL");
    EXPECT_EQ(e.getTlxModuleName(buf, 4), 3);
    EXPECT_EQ(text(buf), L"MOR");
    EXPECT_EQ(e.getInstance(), e.dll);
    const MX_FUNCTION_ROW *rows = e.getFunctionList();
    ASSERT_NE(rows, nullptr);
    EXPECT_NE(rows[0].name, nullptr);
}

TEST(WinExports, GetMacroHeader) {
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\t.mac", "Macro \"Test\" begin end");
    WCHAR name[50];
    EXPECT_EQ(dll().getMacroHeader((dir + L"\\missing.mac").c_str(), name, 50), -2);
    EXPECT_EQ(dll().getMacroHeader((dir + L"\\t.mac").c_str(), name, 50), 0);
    EXPECT_EQ(text(name), L"Test");
    EXPECT_EQ(dll().getMacroHeader((dir + L"\\t.mac").c_str(), name, 3), 0);
    EXPECT_EQ(text(name), L"Te");
}

TEST(WinExports, MacrosCallBackIntoTheHost) {
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\p.mac", "Macro \"P\" begin int i; while (i < 3) begin Print(i); i = i + 1; end end");
    WinRun r = winRunFile(u((dir + L"\\p.mac").c_str()));
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "0\n1\n2\n");
    r = winRunMemory(u"char s[8]; s = \"mem\"; Print(s); Print(2.5);", L"Title");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "mem\n2.500000\n");
}

TEST(WinExports, TheErrorBoxIsRealAndNamesLineAndTitle) {
    WinRun r = winRunMemory(u"int x;\nx = 1 / 0;", L"Startup");
    EXPECT_EQ(r.result, -1);
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 2 des Makros Startup\n\nDivision durch Null\n\n");
    r = winRunMemory(u"Makro = 1;");
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 1 des Makros \n\nVariable 'Makro' ist nicht deklariert\n\n");
}

TEST(WinExports, AnAbortReturnsMinusTwoWithoutABox) {
    WinRun r = winRunMemory(u"Print(1); Print(2); Print(3);", nullptr, 2);
    EXPECT_EQ(r.result, -2);
    EXPECT_EQ(r.output, "1\n2\n");
}

TEST(WinExports, AChildWindowIsReplacedByItsTopLevelAncestor) {
    HWND top = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr,
                               nullptr, GetModuleHandleW(nullptr), nullptr);
    HWND middle = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 100, 50, top, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 50, 20, middle, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(child, nullptr);
    WinRun r = winRunMemory(u"x = 1;", nullptr, -1, child);
    EXPECT_EQ(r.result, -1);
    EXPECT_EQ(unattendedLastOwner(), top);
    DestroyWindow(top);
}
