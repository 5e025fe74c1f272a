// The form dialog under Wine with the stand-in form module: the calls the
// module receives in order, the round trip of the form's values through
// the destination file, the dialog's size, placement, owner and layout as
// read from the real dialog, and the messages for a missing module or entry
// point.
#include <gtest/gtest.h>

#include "standin_harness.h"
#include "unattended.h"
#include "win_harness.h"

namespace {

using Lines = std::vector<std::string>;

// What the test saw of the form dialog while it was open, and what it did.
struct Seen {
    bool shown = false, zoomed = false, checked = false;
    std::wstring title, name;  // name: the stand-in's "Name" field as loaded
    HWND owner = nullptr;
    RECT window{}, client{}, frame{}, ok{}, cancel{}, status{};
};

Seen seen;
std::wstring typeName;  // typed into "Name" before closing
int press = IDOK;
HHOOK hook;

RECT childRect(HWND dialog, int id) {
    RECT r{};
    GetWindowRect(GetDlgItem(dialog, id), &r);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT *>(&r), 2);
    return r;
}

void CALLBACK inspect(HWND dialog, UINT, UINT_PTR id, DWORD) {
    KillTimer(dialog, id);
    seen.shown = true;
    wchar_t text[256];
    GetWindowTextW(dialog, text, 256);
    seen.title = text;
    seen.owner = GetWindow(dialog, GW_OWNER);
    GetWindowRect(dialog, &seen.window);
    GetClientRect(dialog, &seen.client);
    seen.frame = childRect(dialog, 1032);
    seen.ok = childRect(dialog, IDOK);
    seen.cancel = childRect(dialog, IDCANCEL);
    seen.status = childRect(dialog, 1014);
    HWND frame = GetDlgItem(dialog, 1032);
    GetDlgItemTextW(frame, 100, text, 256);
    seen.name = text;
    seen.checked = IsDlgButtonChecked(frame, 101) == BST_CHECKED;
    SetDlgItemTextW(frame, 100, typeName.c_str());
    CheckDlgButton(frame, 101, BST_CHECKED);
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(press, BN_CLICKED), 0);
}

// Takes the form dialog (the window holding frame 1032 and field 1014) away
// from the box watcher and inspects it once it runs. Whether it is maximised
// is read from the request to maximise it: without a window manager Wine may
// take a window's maximised state back a moment later.
LRESULT CALLBACK watchForm(int code, WPARAM wParam, LPARAM lParam) {
    HWND w = reinterpret_cast<HWND>(wParam);
    bool form = GetDlgItem(w, 1032) && GetDlgItem(w, 1014);
    if (code == HCBT_MINMAX && form && LOWORD(lParam) == SW_MAXIMIZE) seen.zoomed = true;
    if (code == HCBT_ACTIVATE && form) {
        SetTimer(w, 1, 1, inspect);
        return 0;
    }
    return CallNextHookEx(hook, code, wParam, lParam);
}

std::string rect(const RECT &r) {
    return std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) + "," +
           std::to_string(r.bottom);
}

class FormDialog : public ::testing::Test {
protected:
    void SetUp() override {
        unattendedStart(nullptr);  // the box watcher first, so this hook runs before it
        hook = SetWindowsHookExW(WH_CBT, watchForm, nullptr, GetCurrentThreadId());
        standinLogStart();
        useForm(L"full");
        seen = Seen{};
        typeName = L"Neu";
        press = IDOK;
    }
    void TearDown() override {
        SetDllDirectoryW(nullptr);
        releaseOwner();
        UnhookWindowsHookEx(hook);
    }
    static void useForm(const std::wstring &variant) { SetDllDirectoryW(standinDir(L"form", variant).c_str()); }

    // FormDialog(name, DEST, title, height, width, mode, 0) with DEST the
    // scratch directory's kunde.txt unless given.
    std::string form(int height = 0, int width = 0, int mode = 0, const std::string &name = "kunde",
                     const std::string &dest = "") {
        seen = Seen{};
        return runIn(nullptr, "Print(FormDialog(\"" + name + "\", \"" + (dest.empty() ? macroPath(file) : dest) +
                                  "\", \"Kundendaten\", " + std::to_string(height) + ", " + std::to_string(width) +
                                  ", " + std::to_string(mode) + ", 0));");
    }
    std::wstring file = winScratchDir() + L"\\kunde.txt";
};

const std::string kOpen = "Form_Open parent-id=1032 name=kunde a=99 profile=formdia.ini";
const Lines kPrepare = {"load", kOpen, "Form_MakeUntitled form=1", "Form_SetWorkModeExt form=1 mode=1 bits=1400"};
const Lines kShow = {"Form_PerformBeginMacro form=1", "Form_SetHwndNotify form=1 dialog-holds-frame=1",
                     "Form_SetChangeFlag form=1 changed=0"};

// The lines of the groups given, in order.
Lines join(std::initializer_list<Lines> groups) {
    Lines all;
    for (const Lines &g : groups) all.insert(all.end(), g.begin(), g.end());
    return all;
}

TEST_F(FormDialog, ValuesRoundTripThroughTheDestinationFile) {
    winWriteFile(file, "[Formatted]\nName: Alt\nChecked: Nein\n");
    HWND owner = activeOwner();
    EXPECT_EQ(form(), "1\n");
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.title, L"Kundendaten");
    EXPECT_EQ(seen.owner, owner);
    EXPECT_EQ(seen.name, L"Alt");
    EXPECT_FALSE(seen.checked);
    EXPECT_EQ(winReadFile(file), "[Formatted]\nName: Neu\nChecked: Ja\n[Neutral]\nName=Neu\nChecked=1\n");
    std::string f = utf8(file), bits = " bits=610e0 a=";
    EXPECT_EQ(standinCalls(),
              join({kPrepare, {"Form_LoadFromProfileExtended form=1 file=" + f + " representation=Formatted" + bits + "0"}, kShow,
                    {"Form_SaveToProfileExtended form=1 file=" + f + " representation=Formatted" + bits + "2",
                     "Form_SaveToProfileExtended form=1 file=" + f + " representation=Neutral" + bits + "1",
                     "Form_DataAccess form=1 what=321 file=" + f + " a=0", "unload"}}));
}

TEST_F(FormDialog, CancelAndBlankDestinationSaveNothing) {
    winWriteFile(file, "[Formatted]\nName: Alt\nChecked: Ja\n");
    press = IDCANCEL;
    EXPECT_EQ(form(), "2\n");
    EXPECT_EQ(seen.name, L"Alt");
    EXPECT_TRUE(seen.checked);
    EXPECT_EQ(winReadFile(file), "[Formatted]\nName: Alt\nChecked: Ja\n");
    Lines c = standinCalls();
    ASSERT_EQ(c.size(), 9u);
    EXPECT_EQ(Lines(c.begin() + 5, c.end() - 1), kShow);
    // Blank: nothing loaded, nothing saved, still OK.
    press = IDOK;
    EXPECT_EQ(form(0, 0, 0, "kunde", " \\t "), "1\n");
    EXPECT_EQ(standinCalls(), join({kPrepare, kShow, {"unload"}}));
}

TEST_F(FormDialog, SizePlacementAndLayout) {
    int screenW = GetSystemMetrics(SM_CXSCREEN), screenH = GetSystemMetrics(SM_CYSCREEN);
    // Mode 1: maximised.
    form(0, 0, 1);
    EXPECT_TRUE(seen.zoomed);
    // Given height and width: that size, centred.
    form(400, 600, 0);
    EXPECT_FALSE(seen.zoomed);
    int left = (screenW - 600) / 2, top = (screenH - 400) / 2;
    EXPECT_EQ(rect(seen.window), rect({left, top, left + 600, top + 400}));
    // One of them 0: the template's size (284 dialog units are more than 284 pixels), centred.
    form(0, 600, 2);
    int w = seen.window.right - seen.window.left, h = seen.window.bottom - seen.window.top;
    EXPECT_NE(w, 600);
    EXPECT_GT(h, 284);
    EXPECT_EQ(seen.window.left, (screenW - w) / 2);
    EXPECT_EQ(seen.window.top, (screenH - h) / 2);
    // The frame fills the dialog above the buttons; the status field fills
    // the row left of them.
    for (int mode : {0, 1}) {
        SCOPED_TRACE(mode);
        form(300, 500, mode);
        ASSERT_TRUE(seen.shown);
        const RECT &c = seen.client, &ok = seen.ok;
        int bw = seen.cancel.right - seen.cancel.left, bh = seen.cancel.bottom - seen.cancel.top;
        int top = c.bottom - 7 - bh;
        EXPECT_GT(bw, 0);
        EXPECT_EQ(rect(seen.cancel), rect({c.right - 10 - bw, top, c.right - 10, c.bottom - 7}));
        EXPECT_EQ(rect(ok), rect({c.right - 14 - 2 * bw, top, c.right - 14 - bw, c.bottom - 7}));
        EXPECT_EQ(rect(seen.status), rect({c.left + 10, top, ok.left - 4, c.bottom - 7}));
        EXPECT_EQ(rect(seen.frame), rect({c.left + 10, c.top + 10, c.right - 10, top - 10}));
    }
}

TEST_F(FormDialog, FailuresAnswer2) {
    // An empty form name loads nothing.
    EXPECT_EQ(form(0, 0, 0, ""), "2\n");
    EXPECT_TRUE(standinCalls().empty());
    // The module cannot open the form: no dialog is seen.
    useForm(L"open-fails");
    EXPECT_EQ(form(), "2\n");
    EXPECT_FALSE(seen.shown);
    EXPECT_EQ(standinCalls(), (Lines{"load", kOpen, "unload"}));
    SetDllDirectoryW(nullptr);
    EXPECT_EQ(form(), "Makrofehler: s DLL kann nicht geladen werden\n\nMSKDLG32.DLL\n\n2\n");
    for (const char *entry : {"Form_Open", "Form_MakeUntitled", "Form_SetWorkModeExt", "Form_PerformBeginMacro",
                              "Form_SetHwndNotify", "Form_SetChangeFlag", "Form_SaveToProfileExtended",
                              "Form_LoadFromProfileExtended", "Form_DataAccess"}) {
        std::string variant = std::string("no-") + entry;
        useForm(std::wstring(variant.begin(), variant.end()));
        EXPECT_EQ(form(), "Makrofehler: s Die Funktion " + std::string(entry) +
                              " wurde in der dynamischen Bibliothek MSKDLG32.DLL nicht gefunden.\n2\n");
        EXPECT_EQ(standinCalls(), (Lines{"load", "unload"})) << entry;
    }
}

}  // namespace
