// The example report engine (examples/report-engine) through the library:
// its preview shows the data source's text in a window owned by the host,
// and its extended print writes the text to the declared output file.
// With MX_PREVIEW_SHOT set, the preview is also saved there as a bitmap
// (that is how the picture in docs/ was made).
#include <gtest/gtest.h>

#include "standin_harness.h"
#include "unattended.h"
#include "win_harness.h"

namespace {

std::wstring previewText;
HWND previewOwner;
HHOOK previewHook;

void saveBitmap(HWND w, const wchar_t *path) {
    RECT r;
    GetWindowRect(w, &r);
    int width = r.right - r.left, height = r.bottom - r.top;
    HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ old = SelectObject(memory, bitmap);
    RedrawWindow(w, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
    BitBlt(memory, 0, 0, width, height, screen, r.left, r.top, SRCCOPY);
    BITMAPINFOHEADER info{sizeof info, width, -height, 1, 24, BI_RGB};
    std::string pixels(size_t((width * 3 + 3) & ~3) * size_t(height), '\0');
    GetDIBits(memory, bitmap, 0, UINT(height), pixels.data(), reinterpret_cast<BITMAPINFO *>(&info), DIB_RGB_COLORS);
    BITMAPFILEHEADER file{0x4D42, DWORD(sizeof file + sizeof info + pixels.size()), 0, 0,
                          DWORD(sizeof file + sizeof info)};
    std::string bytes(reinterpret_cast<char *>(&file), sizeof file);
    bytes.append(reinterpret_cast<char *>(&info), sizeof info);
    winWriteFile(path, bytes + pixels);
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

void CALLBACK readPreview(HWND w, UINT, UINT_PTR id, DWORD) {
    KillTimer(w, id);
    wchar_t text[1024] = L"";
    GetDlgItemTextW(w, 1, text, 1024);
    previewText = text;
    previewOwner = GetWindow(w, GW_OWNER);
    wchar_t shot[MAX_PATH];
    if (GetEnvironmentVariableW(L"MX_PREVIEW_SHOT", shot, MAX_PATH)) saveBitmap(w, shot);
    PostMessageW(w, WM_CLOSE, 0, 0);
}

LRESULT CALLBACK watchPreview(int code, WPARAM wParam, LPARAM lParam) {
    wchar_t cls[64];
    HWND w = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && GetClassNameW(w, cls, 64) && lstrcmpW(cls, L"ReportEnginePreview") == 0)
        SetTimer(w, 1, 200, readPreview);
    return CallNextHookEx(previewHook, code, wParam, lParam);
}

class ExampleEngine : public ::testing::Test {
protected:
    void SetUp() override {
        unattendedStart(nullptr);
        if (!previewHook) previewHook = SetWindowsHookExW(WH_CBT, watchPreview, nullptr, GetCurrentThreadId());
        std::wstring dir = standinDir(L"report", L"full");  // bin\modules\report\full
        dir.resize(dir.rfind(L"\\modules\\"));
        setAppPath(dir + L"\\examples\\report-engine");
        scratch_ = winScratchDir();
        winWriteFile(scratch_ + L"\\kunden.csv", "Kunde;Ort\nM\xC3\xBCller;K\xC3\xB6ln\nSchmidt;Bonn\n");
    }
    void TearDown() override {
        removeAppPath();
        releaseOwner();
    }
    std::u16string path(const std::wstring &name) const {
        std::wstring p = scratch_ + L"\\" + name, escaped;
        for (wchar_t c : p) escaped += c == L'\\' ? std::wstring(L"\\\\") : std::wstring(1, c);
        return std::u16string(escaped.begin(), escaped.end());
    }
    std::wstring scratch_;
};

TEST_F(ExampleEngine, PreviewShowsTheDataSourceInAWindowOfTheHost) {
    HWND owner = activeOwner();
    WinRun r = winRunMemory(u"Print(RunPreview(\"Kundenliste\", \"" + path(L"kunden.csv") + u"\", 0));");
    EXPECT_EQ(r.output, "1\n");
    EXPECT_EQ(previewText, L"Kunde;Ort\r\nM\u00fcller;K\u00f6ln\r\nSchmidt;Bonn\r\n");
    EXPECT_EQ(previewOwner, owner);
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(ExampleEngine, ExtendedPrintWritesTheDeclaredOutputFile) {
    WinRun r = winRunMemory(u"Print(RunReportExtended(\"Kundenliste\", \"" + path(L"kunden.csv") + u"\", \"\", \"" +
                            path(L"kunden.txt") + u"\", \"Kunden\", 1, 1, 1, 0));");
    EXPECT_EQ(r.output, "1\n");
    EXPECT_EQ(winReadFile(scratch_ + L"\\kunden.txt"), "Kunde;Ort\r\nM\xC3\xBCller;K\xC3\xB6ln\r\nSchmidt;Bonn\r\n");
}

}  // namespace
