// Windows under Wine: finding them by title pattern, titles and sizes,
// showing and activating, messages, screen metrics, the MDI functions acting
// on the host's MDI client, and the exported enumeration procedures.
#include <gtest/gtest.h>

#include "test_desktop.h"
#include "win_harness.h"

namespace {

struct Windows : ::testing::Test {
    const TestDesktop &d = testDesktop();
    std::string run(const std::string &text) { return runIn(d.frame, text); }
    HWND activeDocument() const { return reinterpret_cast<HWND>(SendMessageW(d.mdiClient, WM_MDIGETACTIVE, 0, 0)); }
};

TEST_F(Windows, GetWindowFindsTopLevelWindowsAndDescendantsByPattern) {
    EXPECT_EQ(run("Print(GetWindow(\"Editor - ?*\", \"\")); Print(GetWindow(\"Editor\", \"\"));"
                  "Print(GetWindow(\"editor\", \"\")); Print(GibFenster(\"Editor\", \"Document\"));"
                  "Print(GetWindow(\"Editor\", \"Deep ?*\")); Print(GetWindow(\"Editor\", \"No such child\"));"
                  "Print(GetWindow(\"Disabled Window\", \"?*\")); Print(GetWindow(\"Morvix Test Frame\", \"Doc 2\"));"),
              num(d.editorA) + "\n" + num(d.editor) + "\n0\n" + num(d.editorChild) + "\n" + num(d.editorGrandchild) +
                  "\n0\n" + num(GetWindow(d.disabled, GW_CHILD)) + "\n" + num(d.docs[1]) + "\n");
    // "?*" alone matches the first window of the enumeration.
    HWND first = nullptr;
    EnumWindows([](HWND w, LPARAM p) { return *reinterpret_cast<HWND *>(p) = w, FALSE; }, LPARAM(&first));
    EXPECT_EQ(run("Print(GetWindow(\"?*\", \"\"));"), num(first) + "\n");
}

TEST_F(Windows, TitlesClientSizesAndScreenMetrics) {
    // Titles are compared as far as their first 255 characters; GetTitle
    // reports the whole title, cut only at the buffer's capacity.
    std::wstring title = L"Long " + std::wstring(295, L'T');
    HWND w = CreateWindowExW(0, L"MorvixTestTop", title.c_str(), WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr,
                             nullptr, nullptr, nullptr);
    EXPECT_EQ(run("char t[400]; char s[6]; Print(GetWindow(\"" + utf8(title) + "\", \"\"));"
                  "Print(GetWindow(\"" + utf8(title.substr(0, 255)) + "\", \"\")); Print(GetWindow(\"Long ?*\", \"\"));"
                  "Print(GetTitle(" + num(w) + ", t)); Print(StrLen(t)); Print(GetTitle(" + num(w) + ", s)); Print(s);"),
              "0\n" + num(w) + "\n" + num(w) + "\n300\n300\n5\nLong \n");
    DestroyWindow(w);
    RECT r;
    GetClientRect(d.frame, &r);
    EXPECT_EQ(run("char t[40]; int h; int w; t = \"old\"; Print(GibTitel(12345, t)); Print(StrLen(t));"
                  "Print(GetWindowClientSize(" + num(d.frame) + ", h, w)); Print(h); Print(w);"
                  "Print(GetScreenWidth()); Print(GetScreenHeight());"),
              "0\n0\n0\n" + std::to_string(r.bottom) + "\n" + std::to_string(r.right) + "\n" +
                  std::to_string(GetSystemMetrics(SM_CXSCREEN)) + "\n" + std::to_string(GetSystemMetrics(SM_CYSCREEN)) + "\n");
}

TEST_F(Windows, MaximizeMinimizeRestoreAndActivate) {
    run("WindowMaximize(" + num(d.editorA) + ");");
    EXPECT_TRUE(IsZoomed(d.editorA));
    run("FensterMinimiere(" + num(d.editorA) + ");");
    EXPECT_TRUE(IsIconic(d.editorA));
    run("WindowResize(" + num(d.editorA) + ");");
    EXPECT_FALSE(IsIconic(d.editorA));
    // Activating a grandchild restores its top-level window, focuses the
    // grandchild and answers the former focus.
    SetFocus(d.editorA);
    HWND before = GetFocus();
    ShowWindow(d.editor, SW_MINIMIZE);
    ASSERT_TRUE(IsIconic(d.editor));
    EXPECT_EQ(run("Print(WindowActivate(" + num(d.editorGrandchild) + ")); Print(WindowGetActive());"),
              num(before) + "\n" + num(d.editor) + "\n");
    EXPECT_FALSE(IsIconic(d.editor));
    EXPECT_EQ(GetFocus(), d.editorGrandchild);
    // A disabled window, or a handle that is no window: 0, nothing changes.
    EXPECT_EQ(run("Print(WindowActivate(" + num(d.disabled) + ")); Print(FensterAktiviere(12345));"
                  "Print(WindowMaximize(12345));"),
              "0\n0\n0\n");
    EXPECT_EQ(GetFocus(), d.editorGrandchild);
    EXPECT_EQ(GetActiveWindow(), d.editor);
}

TEST_F(Windows, SendWaitsForTheAnswerPostQueues) {
    HWND victim = CreateWindowExW(0, L"MorvixTestTop", L"Victim", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr,
                                  nullptr, nullptr, nullptr);
    // WM_GETTEXTLENGTH (14) sent: the window's answer; WM_CLOSE (16) posted.
    EXPECT_EQ(run("Print(SendMessage(" + num(d.editorA) + ", 14, 0, 0, 1));"
                  "Print(SendeNachricht(" + num(victim) + ", 16, 0, 0, 0) != 0); Print(SendMessage(12345, 16, 0, 0, 0));"),
              "14\n1\n0\n");
    EXPECT_TRUE(IsWindow(victim));  // only queued so far
    pumpMessages();
    EXPECT_FALSE(IsWindow(victim));
}

TEST_F(Windows, MdiFunctionsActOnTheHostsMdiClient) {
    EXPECT_EQ(run("Print(MdiGetActive());"), num(activeDocument()) + "\n");
    EXPECT_EQ(run("MdiActivate(" + num(d.docs[0]) + "); Print(MdiGibAktives());"), num(d.docs[0]) + "\n");
    std::string next = run("Print(MdiActivateNext()); Print(MdiGetActive());");
    EXPECT_TRUE(next == "0\n" + num(d.docs[1]) + "\n" || next == "0\n" + num(d.docs[2]) + "\n") << next;
    EXPECT_EQ(run("Print(MdiIsMaximized()); Print(MdiMaximize()); Print(MdiIsMaximized());"), "0\n0\n1\n");
    HWND now = activeDocument();
    EXPECT_TRUE(IsZoomed(now));
    EXPECT_EQ(run("Print(MdiResize()); Print(MdiIstMaximiert());"), "0\n0\n");
    EXPECT_FALSE(IsZoomed(now));
    // A child window handed to the run: its top-level ancestor, the frame, is the host window.
    EXPECT_EQ(runIn(d.docs[2], "Print(MdiGetActive());"), num(now) + "\n");
    // A host window without an MDI client makes every MDI function do nothing.
    EXPECT_EQ(runIn(d.editor, "Print(MdiGetActive()); Print(MdiMaximize()); Print(MdiIsMaximized());"
                              "Print(MdiActivate(" + num(d.docs[0]) + ")); Print(MdiActivateNext()); Print(MdiResize());"),
              "0\n0\n0\n0\n0\n0\n");
    EXPECT_EQ(runIn(nullptr, "Print(MdiGetActive()); Print(MdiMaximize());"), "0\n0\n");
    EXPECT_EQ(activeDocument(), now);
    EXPECT_FALSE(IsZoomed(now));
}

TEST_F(Windows, TheExportedEnumerationProceduresFindWindows) {
    auto proc = [](const char *name) { return reinterpret_cast<WNDENUMPROC>(GetProcAddress(dll().dll, name)); };
    struct { const wchar_t *pattern; HWND found; } title{L"Editor - ?*", nullptr};
    EnumWindows(proc("GetWindowEnumProc"), LPARAM(&title));
    EXPECT_EQ(title.found, d.editorA);
    struct { HINSTANCE instance; HWND found; } inst{GetModuleHandleW(nullptr), nullptr};
    EnumWindows(proc("GetHwndOfHinstEnumProc"), LPARAM(&inst));
    ASSERT_NE(inst.found, nullptr);
    EXPECT_EQ(GetWindowLongPtrW(inst.found, GWLP_HINSTANCE), LONG_PTR(GetModuleHandleW(nullptr)));
    struct { const wchar_t *module; HWND found; } mod{L"MORVIX_WINTESTS.EXE", nullptr}, none{L"nothing.exe", nullptr};
    EnumWindows(proc("GetHwndOfModuleEnumProc"), LPARAM(&mod));
    EnumWindows(proc("GetHwndOfModuleEnumProc"), LPARAM(&none));
    EXPECT_NE(mod.found, nullptr);
    EXPECT_EQ(none.found, nullptr);
}

}  // namespace
