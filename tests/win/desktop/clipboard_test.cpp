// The clipboard under Wine, with the test host's frame as the host window
// (kept alive across each write/read pair, since Wine drops the clipboard
// when its last window goes).
#include <gtest/gtest.h>

#include "test_desktop.h"
#include "win_harness.h"

namespace {

struct Clipboard : ::testing::Test {
    const TestDesktop &d = testDesktop();
    std::string run(const std::string &text) { return runIn(d.frame, text); }
    // True when nobody holds the clipboard open.
    static bool closed() {
        if (!OpenClipboard(nullptr)) return false;
        CloseClipboard();
        return true;
    }
};

}  // namespace

TEST_F(Clipboard, WrittenTextComesBackUnchangedAndTheHostOwnsTheClipboard) {
    const std::string text = "Gr\xC3\xBC\xC3\x9F" "e \xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82 \xE6\x97\xA5\xE6\x9C\xAC \xE2\x82\xAC";
    EXPECT_EQ(run("char t[40]; Print(WriteClipboard(\"" + text + "\", 0)); Print(ReadClipboard(t, 0)); Print(t);"),
              "0\n0\n" + text + "\n");
    EXPECT_TRUE(closed());
    EXPECT_EQ(GetClipboardOwner(), d.frame);
    // Another program's text is read the same way; a small variable gets the
    // start of it.
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, sizeof L"outside text");
    memcpy(GlobalLock(block), L"outside text", sizeof L"outside text");
    GlobalUnlock(block);
    SetClipboardData(CF_UNICODETEXT, block);
    CloseClipboard();
    EXPECT_EQ(run("char t[8]; Print(ClipBoardLesen(t, 0)); Print(t);"), "0\noutside\n");
    EXPECT_EQ(run("Print(ClipBoardSchreiben(\"\", 5)); char t[5]; t = \"old\"; Print(ReadClipboard(t, 0)); Print(StrLen(t));"),
              "0\n0\n0\n");
    EXPECT_TRUE(closed());
}

TEST_F(Clipboard, APictureOnlyClipboardOrAClipboardHeldOpenAnswersOne) {
    HDC screen = GetDC(nullptr);
    HBITMAP picture = CreateCompatibleBitmap(screen, 4, 4);
    ReleaseDC(nullptr, screen);
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    SetClipboardData(CF_BITMAP, picture);
    CloseClipboard();
    EXPECT_EQ(run("char t[10]; t = \"keep\"; Print(ReadClipboard(t, 0)); Print(t);"), "1\nkeep\n");
    EXPECT_TRUE(closed());
    // Held open by another window: writing fails, reading text that is
    // there fails too, and nothing is left open by the library.
    EXPECT_EQ(run("Print(WriteClipboard(\"x\", 0));"), "0\n");
    struct Holder {
        HANDLE opened = CreateEventW(nullptr, TRUE, FALSE, nullptr), release = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        static DWORD WINAPI hold(void *p) {
            auto *h = static_cast<Holder *>(p);
            BOOL ok = OpenClipboard(nullptr);
            SetEvent(h->opened);
            WaitForSingleObject(h->release, INFINITE);
            if (ok) CloseClipboard();
            return ok ? 0 : 1;
        }
    } holder;
    HANDLE thread = CreateThread(nullptr, 0, Holder::hold, &holder, 0, nullptr);
    WaitForSingleObject(holder.opened, INFINITE);
    std::string held = run("char t[10]; t = \"keep\"; Print(WriteClipboard(\"y\", 0)); Print(ReadClipboard(t, 0)); Print(t);");
    SetEvent(holder.release);
    WaitForSingleObject(thread, INFINITE);
    DWORD code = 1;
    GetExitCodeThread(thread, &code);
    EXPECT_EQ(code, 0u);
    CloseHandle(thread);
    EXPECT_EQ(held, "1\n1\nkeep\n");
    EXPECT_EQ(run("char t[10]; Print(ReadClipboard(t, 0)); Print(t);"), "0\nx\n");
}
