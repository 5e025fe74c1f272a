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
    bool shown = false;
    std::wstring title;
    HWND owner = nullptr;
    bool zoomed = false;
    RECT window{}, client{}, frame{}, ok{}, cancel{}, status{};
    std::wstring name;  // the stand-in's "Name" field as loaded
    bool checked = false;
};

Seen seen;
std::wstring typeName;  // typed into "Name" before closing
int press = IDOK;
HHOOK hook;

RECT childRect(HWND dialog, int id) {
    RECT r{};
    HWND w = GetDlgItem(dialog, id);
    GetWindowRect(w, &r);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT *>(&r), 2);
    return r;
}

// Set while a test expects a maximised dialog: Wine may apply the maximised
// state a little after the dialog's activation, so the inspection waits for it
// (up to about a second; a dialog that never gets there is recorded as it is).
bool waitForZoom;
int zoomTries;

void CALLBACK inspect(HWND dialog, UINT, UINT_PTR id, DWORD) {
    KillTimer(dialog, id);
    if (waitForZoom && !IsZoomed(dialog) && ++zoomTries < 50) {
        SetTimer(dialog, id, 20, inspect);
        return;
    }
    zoomTries = 0;
    seen.shown = true;
    wchar_t text[256];
    GetWindowTextW(dialog, text, 256);
    seen.title = text;
    seen.owner = GetWindow(dialog, GW_OWNER);
    seen.zoomed = IsZoomed(dialog);
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

// Takes the form dialog (the window holding frame 1032 and field 1014) away from the box
// watcher and inspects it once it runs; other windows go on to the watcher.
LRESULT CALLBACK watchForm(int code, WPARAM wParam, LPARAM lParam) {
    HWND w = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && GetDlgItem(w, 1032) && GetDlgItem(w, 1014)) {
        SetTimer(w, 1, 1, inspect);
        return 0;
    }
    return CallNextHookEx(hook, code, wParam, lParam);
}

class FormDialog : public ::testing::Test {
protected:
    void SetUp() override {
        unattendedStart(nullptr);  // the box watcher first, so this hook runs before it
        if (!hook) hook = SetWindowsHookExW(WH_CBT, watchForm, nullptr, GetCurrentThreadId());
        standinLogStart();
        useForm(L"full");
        seen = Seen{};
        typeName = L"Neu";
        press = IDOK;
        dir_ = winScratchDir();
    }
    void TearDown() override {
        SetDllDirectoryW(nullptr);
        releaseOwner();
        UnhookWindowsHookEx(hook);
        hook = nullptr;
    }
    static void useForm(const std::wstring &variant) { SetDllDirectoryW(standinDir(L"form", variant).c_str()); }

    // FormDialog(form, DEST, title, height, width, mode, 0) with DEST a file
    // of the scratch directory (or the text given).
    WinRun form(const std::string &dest, int height = 0, int width = 0, int mode = 0,
                const std::string &name = "kunde") {
        std::string call = "Print(FormDialog(\"" + name + "\", \"" + dest + "\", \"Kundendaten\", " +
                           std::to_string(height) + ", " + std::to_string(width) + ", " +
                           std::to_string(mode) + ", 0));";
        return winRunMemory(std::u16string(call.begin(), call.end()));
    }
    std::string destFile() const {
        std::string d = utf8(dir_) + "\\kunde.txt";
        std::string escaped;
        for (char c : d) escaped += c == '\\' ? std::string("\\\\") : std::string(1, c);
        return escaped;
    }

    std::wstring dir_;
};

TEST_F(FormDialog, ValuesRoundTripThroughTheDestinationFile) {
    winWriteFile(dir_ + L"\\kunde.txt", "[Formatted]\nName: Alt\nChecked: Nein\n");
    HWND owner = activeOwner();
    WinRun r = form(destFile());
    EXPECT_EQ(r.output, "1\n");
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.title, L"Kundendaten");
    EXPECT_EQ(seen.owner, owner);
    EXPECT_EQ(seen.name, L"Alt");
    EXPECT_FALSE(seen.checked);
    EXPECT_EQ(winReadFile(dir_ + L"\\kunde.txt"),
              "[Formatted]\nName: Neu\nChecked: Ja\n[Neutral]\nName=Neu\nChecked=1\n");
    std::string file = utf8(dir_) + "\\kunde.txt";
    EXPECT_EQ(standinCalls(),
              (Lines{"load", "Form_Open parent-id=1032 name=kunde a=99 profile=formdia.ini",
                     "Form_MakeUntitled form=1", "Form_SetWorkModeExt form=1 mode=1 bits=1400",
                     "Form_LoadFromProfileExtended form=1 file=" + file + " representation=Formatted bits=610e0 a=0",
                     "Form_PerformBeginMacro form=1", "Form_SetHwndNotify form=1 dialog-holds-frame=1",
                     "Form_SetChangeFlag form=1 changed=0",
                     "Form_SaveToProfileExtended form=1 file=" + file + " representation=Formatted bits=610e0 a=2",
                     "Form_SaveToProfileExtended form=1 file=" + file + " representation=Neutral bits=610e0 a=1",
                     "Form_DataAccess form=1 what=321 file=" + file + " a=0", "unload"}));
}

TEST_F(FormDialog, CancelAndBlankDestinationSaveNothing) {
    winWriteFile(dir_ + L"\\kunde.txt", "[Formatted]\nName: Alt\nChecked: Ja\n");
    press = IDCANCEL;
    EXPECT_EQ(form(destFile()).output, "2\n");
    EXPECT_EQ(seen.name, L"Alt");
    EXPECT_TRUE(seen.checked);
    EXPECT_EQ(winReadFile(dir_ + L"\\kunde.txt"), "[Formatted]\nName: Alt\nChecked: Ja\n");
    Lines c = standinCalls();
    ASSERT_EQ(c.size(), 9u);
    EXPECT_EQ(c[7], "Form_SetChangeFlag form=1 changed=0");

    // Blank: nothing loaded, nothing saved, still OK.
    press = IDOK;
    EXPECT_EQ(form(" \\t ").output, "1\n");
    EXPECT_EQ(standinCalls(),
              (Lines{"load", "Form_Open parent-id=1032 name=kunde a=99 profile=formdia.ini",
                     "Form_MakeUntitled form=1", "Form_SetWorkModeExt form=1 mode=1 bits=1400",
                     "Form_PerformBeginMacro form=1", "Form_SetHwndNotify form=1 dialog-holds-frame=1",
                     "Form_SetChangeFlag form=1 changed=0", "unload"}));
}

TEST_F(FormDialog, SizeAndPlacement) {
    int screenW = GetSystemMetrics(SM_CXSCREEN), screenH = GetSystemMetrics(SM_CYSCREEN);
    // Mode 1: maximised.
    waitForZoom = true;
    form(destFile(), 0, 0, 1);
    waitForZoom = false;
    EXPECT_TRUE(seen.zoomed);
    // Given height and width: that size, centred.
    form(destFile(), 400, 600, 0);
    EXPECT_FALSE(seen.zoomed);
    EXPECT_EQ(seen.window.right - seen.window.left, 600);
    EXPECT_EQ(seen.window.bottom - seen.window.top, 400);
    EXPECT_EQ(seen.window.left, (screenW - 600) / 2);
    EXPECT_EQ(seen.window.top, (screenH - 400) / 2);
    // One of them 0: the template's size, centred.
    form(destFile(), 0, 600, 2);
    int w = seen.window.right - seen.window.left, h = seen.window.bottom - seen.window.top;
    EXPECT_NE(w, 600);
    EXPECT_GT(h, 284);  // 284 dialog units are more than 284 pixels
    EXPECT_EQ(seen.window.left, (screenW - w) / 2);
    EXPECT_EQ(seen.window.top, (screenH - h) / 2);
}

TEST_F(FormDialog, LayoutOfFrameButtonsAndStatusField) {
    for (int mode : {0, 1}) {
        form(destFile(), 300, 500, mode);
        ASSERT_TRUE(seen.shown);
        const RECT &c = seen.client, &ok = seen.ok, &cancel = seen.cancel, &st = seen.status, &f = seen.frame;
        int bw = cancel.right - cancel.left, bh = cancel.bottom - cancel.top;
        EXPECT_GT(bw, 0);
        EXPECT_EQ(cancel.right, c.right - 10) << mode;
        EXPECT_EQ(cancel.bottom, c.bottom - 7) << mode;
        EXPECT_EQ(ok.right, cancel.left - 4) << mode;
        EXPECT_EQ(ok.right - ok.left, bw);
        EXPECT_EQ(ok.top, cancel.top);
        EXPECT_EQ(ok.bottom - ok.top, bh);
        EXPECT_EQ(st.left, c.left + 10);
        EXPECT_EQ(st.right, ok.left - 4);
        EXPECT_EQ(st.top, cancel.top);
        EXPECT_EQ(st.bottom, cancel.bottom);
        EXPECT_EQ(f.left, c.left + 10);
        EXPECT_EQ(f.top, c.top + 10);
        EXPECT_EQ(f.right, c.right - 10);
        EXPECT_EQ(f.bottom, c.bottom - bh - 7 - 10) << mode;
    }
}

TEST_F(FormDialog, FailuresAnswer2) {
    // An empty form name loads nothing.
    EXPECT_EQ(form(destFile(), 0, 0, 0, "").output, "2\n");
    EXPECT_TRUE(standinCalls().empty());

    // The module cannot open the form: no dialog is seen.
    useForm(L"open-fails");
    EXPECT_EQ(form(destFile()).output, "2\n");
    EXPECT_FALSE(seen.shown);
    EXPECT_EQ(standinCalls(),
              (Lines{"load", "Form_Open parent-id=1032 name=kunde a=99 profile=formdia.ini", "unload"}));

    SetDllDirectoryW(nullptr);
    EXPECT_EQ(form(destFile()).output, "Makrofehler: s DLL kann nicht geladen werden\n\nMSKDLG32.DLL\n\n2\n");

    for (const char *entry : {"Form_Open", "Form_MakeUntitled", "Form_SetWorkModeExt", "Form_PerformBeginMacro",
                              "Form_SetHwndNotify", "Form_SetChangeFlag", "Form_SaveToProfileExtended",
                              "Form_LoadFromProfileExtended", "Form_DataAccess"}) {
        std::string variant = std::string("no-") + entry;
        useForm(std::wstring(variant.begin(), variant.end()));
        EXPECT_EQ(form(destFile()).output, "Makrofehler: s Die Funktion " + std::string(entry) +
                                               " wurde in der dynamischen Bibliothek MSKDLG32.DLL nicht gefunden.\n2\n");
        EXPECT_EQ(standinCalls(), (Lines{"load", "unload"})) << entry;
    }
}

}  // namespace
