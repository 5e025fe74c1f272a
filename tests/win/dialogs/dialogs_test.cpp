// The library's dialogs under Wine, driven like a user drives them: the
// answer hook finds each dialog, types, selects and presses; before that the
// test reads the dialog's windows back (position, size, control rectangles,
// texts, styles). What the dialogs answer to a macro is the business of the
// dialog cases, which run on both hosts; here are the windows themselves.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "answered_run.h"
#include "win_harness.h"

using mx::DialogKind;

namespace {

std::wstring text(HWND w) {
    wchar_t s[4096] = L"";
    GetWindowTextW(w, s, 4096);
    return s;
}

// Runs the statements after a few declarations with the answer script.
std::string run(const std::string &answers, const std::wstring &statements, DialogLook look = nullptr,
                HWND window = answeredHost()) {
    return runAnswered(answers, utf8(L"int n; char s[300]; char a[300]; char b[300];\n" + statements), look, window);
}

// Shown as far as the window itself goes (a dialog is shown only once its
// first messages are handled, so its observer may run before that).
bool visible(HWND w) { return w && (GetWindowLongW(w, GWL_STYLE) & WS_VISIBLE); }

RECT windowRect(HWND w) {
    RECT r;
    GetWindowRect(w, &r);
    return r;
}

// A control's rectangle in its dialog's client coordinates.
RECT inClient(HWND dialog, int id) {
    RECT r = windowRect(GetDlgItem(dialog, id));
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT *>(&r), 2);
    return r;
}

// Dialog units of the dialog as pixels.
RECT units(HWND dialog, int l, int t, int r, int b) {
    RECT rc{l, t, r, b};
    MapDialogRect(dialog, &rc);
    return rc;
}

std::string str(const RECT &r) {
    return std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) + "," +
           std::to_string(r.bottom);
}

// Where a window's top left corner is.
std::string at(const RECT &r) { return std::to_string(r.left) + "," + std::to_string(r.top); }

// The dialog's visible list box among the four of the template.
int shownList(HWND w) {
    int shown = 0;
    for (int id = 1002; id <= 1005; ++id)
        if (visible(GetDlgItem(w, id))) shown = shown ? -1 : id;
    return shown;
}

// A file in a scratch folder, named as a macro's text constant names it.
std::wstring writeList(const std::wstring &name, const std::string &bytes) {
    static std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\" + name, bytes);
    std::string path = macroPath(dir + L"\\" + name);
    return std::wstring(path.begin(), path.end());
}

}  // namespace

TEST(WinDialogs, MessageBoxesShowTheButtonSetsAndIcons) {
    struct Case {
        const wchar_t *call;
        const char *answer, *buttons, *out;  // buttons: OK, Cancel, Yes, No, icon as 0/1
    } cases[] = {
        {L"MessageBox(\"T\", \"x\", QUEST, YES + NO)", "no\n", "00111", "T: x\n8\n"},
        {L"MessageBox(\"T\", \"x\", EXCL, YES + NO + ABORT)", "yes\n", "01111", "T: x\n4\n"},
        {L"MessageBox(\"T\", \"x\", STOP, OK + ABORT)", "cancel\n", "11001", "T: x\n2\n"},
        {L"MessageBox(\"T\", \"x\", 6, 6)", "", "10000", "T: x\n1\n"},
        {L"MessageBox(\"T\", \"x\", 0, OK)", "", "10000", "T: x\n1\n"},
        {L"MessageDialog(\"x\", INFO, OK + ABORT)", "ok\n", "11001", ": x\n1\n"},
        {L"SysModalMessageBox(\"T\", \"x\", INFO, 12)", "yes\n", "00111", "T: x\n4\n"},
        {L"Alert(\"x\")", "", "10001", ": x\n1\n"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(utf8(c.call));
        std::string seen;
        std::string out = run(c.answer, std::wstring(L"Print(") + c.call + L");", [&](HWND w, DialogKind) {
            for (int id : {IDOK, IDCANCEL, IDYES, IDNO}) seen += visible(GetDlgItem(w, id)) ? "1" : "0";
            HWND icon = GetDlgItem(w, 0x0440);
            seen += visible(icon) && SendMessageW(icon, STM_GETICON, 0, 0) ? "1" : "0";
        });
        EXPECT_EQ(seen, c.buttons);
        EXPECT_EQ(out, std::string(c.out) + "result: 0\n");
    }
}

TEST(WinDialogs, MessageBoxBelongsToTheFocusedTopLevelWindowAndGivesTheFocusBack) {
    HWND host = answeredHost();
    HWND edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 5, 5, 100, 20, host, nullptr, nullptr, nullptr);
    SetForegroundWindow(host);
    SetFocus(edit);
    ASSERT_EQ(GetFocus(), edit);
    HWND owner = nullptr;
    EXPECT_EQ(run("ok\n", L"Print(MessageBox(\"T\", \"x\", 0, OK + ABORT));",
                  [&](HWND w, DialogKind) { owner = GetWindow(w, GW_OWNER); }),
              "T: x\n1\nresult: 0\n");
    EXPECT_EQ(owner, host);
    EXPECT_EQ(GetFocus(), edit);
    DestroyWindow(edit);
}

TEST(WinDialogs, InputDialogTemplateTextsFocusAndCentre) {
    HWND host = answeredHost();
    HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, host, nullptr, nullptr, nullptr);
    bool seen = false;
    std::string out = run("text 12x\n", L"n = 42; Print(IntDialog(\"Zahl\", \"Eine Zahl:\", n)); Print(n);",
                          [&](HWND w, DialogKind kind) {
                              seen = true;
                              EXPECT_EQ(kind, DialogKind::kInput);
                              EXPECT_EQ(GetWindow(w, GW_OWNER), host) << "owned by the host's top-level window";
                              EXPECT_EQ(text(w), L"Zahl");
                              EXPECT_EQ(text(GetDlgItem(w, 301)), L"Eine Zahl:");
                              HWND edit = GetDlgItem(w, 302);
                              EXPECT_EQ(text(edit), L"42");
                              DWORD from = 9, to = 9;
                              SendMessageW(edit, EM_GETSEL, WPARAM(&from), LPARAM(&to));
                              EXPECT_EQ(from * 100 + to, 2u) << "the whole value is selected";
                              EXPECT_EQ(GetFocus(), edit);
                              EXPECT_EQ(text(GetDlgItem(w, IDOK)) + text(GetDlgItem(w, IDCANCEL)), L"&Ok&Abbruch");
                              // the template's size, in dialog units of its font
                              RECT client;
                              GetClientRect(w, &client);
                              EXPECT_EQ(str(client), str(units(w, 0, 0, 296, 95)));
                              EXPECT_EQ(str(inClient(w, 302)), str(units(w, 24, 39, 283, 51)));
                              RECT r = windowRect(w);
                              int width = r.right - r.left, height = r.bottom - r.top;
                              EXPECT_EQ(r.left, (GetSystemMetrics(SM_CXSCREEN) - width - 2 * GetSystemMetrics(SM_CXFRAME)) / 2);
                              EXPECT_EQ(r.top, (GetSystemMetrics(SM_CYSCREEN) - height - 2 * GetSystemMetrics(SM_CYFRAME) -
                                                GetSystemMetrics(SM_CYCAPTION)) / 2);
                          },
                          child);
    EXPECT_TRUE(seen);
    EXPECT_EQ(out, "1\n12\nresult: 0\n");
    DestroyWindow(child);
}

TEST(WinDialogs, InputDialogPositionSizeNestedRunsAndLongTexts) {
    std::vector<RECT> rects;
    auto keep = [&](HWND w, DialogKind) { rects.push_back(windowRect(w)); };
    EXPECT_EQ(run("ok\nok\nok\n",
                  L"SetDialogPosition(100, -1); Print(TextDialog(\"T\", \"P\", s));"
                  L"EingabeDialogPosition(-5, 60); Print(TextDialog(\"T\", \"P\", s));"
                  L"InputDialogPosition(30, 40); SetDialogSize(400, 150); Print(TextDialog(\"T\", \"P\", s));",
                  keep),
              "1\n1\n1\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    EXPECT_EQ(at(rects[0]), "100,-1");
    EXPECT_EQ(at(rects[1]), "-5,60") << "a negative coordinate is used as it is";
    EXPECT_EQ(str(rects[2]), "30,40,430,190");
    // a nested macro starts with its caller's position; its own is lost
    std::wstring nested = writeList(L"nested.mac", "Macro \"Nested\"\nbegin\n  char t[5];\n  TextDialog(\"N\", \"P\", t);\n"
                                                   "  SetDialogPosition(5, 5);\n  TextDialog(\"N\", \"P\", t);\nend\n");
    rects.clear();
    EXPECT_EQ(run("ok\nok\nok\n",
                  L"SetDialogPosition(120, 80); Call(\"" + nested + L"\"); Print(TextDialog(\"T\", \"P\", s));", keep),
              "1\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    EXPECT_EQ(at(rects[0]) + " " + at(rects[1]) + " " + at(rects[2]), "120,80 5,5 120,80");
    // captions and prompts of 2000 characters reach the windows whole
    size_t lengths = 0;
    EXPECT_EQ(run("text 7\n",
                  L"char big[2001]; char title[2001]; int i; i = 0;"
                  L"while (i < 2000) begin big[i] = 'p'; title[i] = 'T'; i = i + 1; end "
                  L"n = 1; Print(IntDialog(title, big, n)); Print(n);",
                  [&](HWND w, DialogKind) { lengths = text(w).size() * 10000 + text(GetDlgItem(w, 301)).size(); }),
              "1\n7\nresult: 0\n");
    EXPECT_EQ(lengths, 20002000u);
}

TEST(WinDialogs, ListBoxDialogLayoutFromTheRealControls) {
    std::wstring list = writeList(L"fruit.lst", "Kiwi\tk\nApfel\ta\nBirne\tb\n");
    int shownId = 0, selected = -2, extent = -1, count = 0, itemHeight = 0;
    RECT window{}, client{}, listRect{}, ok{}, cancel{}, grown{}, grownClient{};
    std::string out = run(
        "ok\n", L"Print(ListBoxDialog(\"Obst\", \"" + list + L"\", 10, 20, 500, 300, 700, SORT, a, b)); Print(a);",
        [&](HWND w, DialogKind kind) {
            EXPECT_EQ(kind, DialogKind::kListBox);
            EXPECT_EQ(text(w), L"Obst");
            shownId = shownList(w);
            HWND box = GetDlgItem(w, 1002);
            selected = int(SendMessageW(box, LB_GETCURSEL, 0, 0));
            extent = int(SendMessageW(box, LB_GETHORIZONTALEXTENT, 0, 0));
            count = int(SendMessageW(box, LB_GETCOUNT, 0, 0));
            itemHeight = int(SendMessageW(box, LB_GETITEMHEIGHT, 0, 0));
            EXPECT_EQ(GetFocus(), box);
            window = windowRect(w);
            GetClientRect(w, &client);
            listRect = inClient(w, 1002);
            ok = inClient(w, IDOK);
            cancel = inClient(w, IDCANCEL);
            // a bigger dialog lays its controls out again
            MoveWindow(w, 10, 20, 600, 400, TRUE);
            grown = inClient(w, 1002);
            GetClientRect(w, &grownClient);
        });
    EXPECT_EQ(out, "1\nApfel\nresult: 0\n");
    EXPECT_EQ(shownId, 1002);
    EXPECT_EQ(selected, 0);
    EXPECT_EQ(extent, 700);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(str(window), "10,20,510,320");
    int W = client.right, H = client.bottom, bw = ok.right - ok.left, bh = ok.bottom - ok.top;
    // The list box shows whole entries: its height shrinks to whole entries
    // inside its border, so it may end a little above the bottom it was given.
    EXPECT_EQ(at(listRect), "10,10");
    EXPECT_EQ(listRect.right, W - 10);
    EXPECT_LE(listRect.bottom, H - 10 - bh - 10);
    EXPECT_GT(listRect.bottom, H - 10 - bh - 10 - 2 * itemHeight);
    EXPECT_EQ(str(ok), str({(W - 2 * bw - 5) / 2, H - 10 - bh, (W - 2 * bw - 5) / 2 + bw, H - 10}));
    EXPECT_EQ(str(cancel), str({ok.right + 5, ok.top, ok.right + 5 + bw, ok.bottom}));
    EXPECT_EQ(grown.right - listRect.right, 100);
    EXPECT_LE(grown.bottom, grownClient.bottom - 10 - bh - 10);
    EXPECT_GT(grown.bottom, grownClient.bottom - 10 - bh - 10 - 2 * itemHeight);
}

TEST(WinDialogs, ListBoxDialogFlagsChooseTheListAndPlaceTheDialog) {
    std::wstring list = writeList(L"fruit.lst", "Kiwi\tk\nApfel\ta\nBirne\tb\nDattel\td\n");
    const std::pair<std::wstring, int> cases[] = {
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, 0, a, b)", 1003},
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, SORT, a, b)", 1002},
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, MULTI, a, b)", 1005},
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, SORT + MULTI, a, b)", 1004},
        {L"ListDialogMultiSelect(\"T\", F, -1, -1, 0, 0, 0, MULTI, a, b)", 1002},
        {L"ListenDialogAnsi(\"T\", F, -1, -1, 0, 0, 0, 0, a, b)", 1003},
    };
    for (auto [call, listId] : cases) {
        SCOPED_TRACE(utf8(call));
        int shown = 0;
        call.replace(call.find(L"F,"), 1, L"\"" + list + L"\"");
        run("cancel\n", L"Print(" + call + L");", [&](HWND w, DialogKind) { shown = shownList(w); });
        EXPECT_EQ(shown, listId);
    }
    // a negative x centres in both directions; a missing size keeps the template's
    std::vector<RECT> rects;
    EXPECT_EQ(run("cancel\ncancel\ncancel\n",
                  L"Print(ListBoxDialog(\"T\", \"" + list + L"\", -1, 50, 0, 0, 0, 0, a, b));"
                  L"Print(ListBoxDialog(\"T\", \"" + list + L"\", 40, 50, 300, 0, 0, 0, a, b));"
                  L"Print(ListBoxDialog(\"T\", \"" + list + L"\", 40, -50, 300, 200, 0, 0, a, b));",
                  [&](HWND w, DialogKind) { rects.push_back(windowRect(w)); }),
              "0\n0\n0\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    int width = rects[0].right - rects[0].left, height = rects[0].bottom - rects[0].top;
    int sw = GetSystemMetrics(SM_CXSCREEN), sh = GetSystemMetrics(SM_CYSCREEN);
    EXPECT_NE(width, 300);
    EXPECT_EQ(at(rects[0]), at({(sw - width) / 2, (sh - height) / 2, 0, 0}));
    EXPECT_EQ(str(rects[1]), str({40, 50, 40 + width, 50 + height}));
    EXPECT_EQ(str(rects[2]), str({(sw - 300) / 2, (sh - 200) / 2, (sw - 300) / 2 + 300, (sh - 200) / 2 + 200}));
}

TEST(WinDialogs, ListViewDialogColumnsRowsAndStyles) {
    std::wstring list = writeList(L"table.lst", "a\t1\tx\tbeyond\nb\t2\n");
    const DWORD styles[] = {0, LVS_EX_GRIDLINES, LVS_EX_FULLROWSELECT, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT};
    for (int flags = 0; flags < 4; ++flags) {
        DWORD style = 0xFFFF;
        run("ok\n", L"Print(ListViewDialog(\"T\", \"N\", \"" + list + L"\", " + std::to_wstring(flags) + L"));",
            [&](HWND w, DialogKind) { style = DWORD(SendMessageW(GetDlgItem(w, 1001), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0)); });
        EXPECT_EQ(style & (LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT), styles[flags]) << flags;
    }
    std::string seen;
    std::string out = run("ok\n",
                          L"Print(ListViewDialog(\"Tabelle\", \"Name:120\\tWert:60\\tMehr:40\\tLeer\", \"" + list + L"\", 3));",
                          [&](HWND w, DialogKind kind) {
                              EXPECT_EQ(kind, DialogKind::kListView);
                              HWND v = GetDlgItem(w, 1001);
                              HWND header = reinterpret_cast<HWND>(SendMessageW(v, LVM_GETHEADER, 0, 0));
                              wchar_t buf[32] = {};
                              LVITEMW item{};
                              item.iSubItem = 2;
                              item.pszText = buf;
                              item.cchTextMax = 32;
                              SendMessageW(v, LVM_GETITEMTEXTW, 0, LPARAM(&item));
                              // columns (more than the file has cells), rows, two widths, a cell
                              seen = utf8(text(w)) + " " + std::to_string(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) +
                                     " " + std::to_string(SendMessageW(v, LVM_GETITEMCOUNT, 0, 0)) + " " +
                                     std::to_string(SendMessageW(v, LVM_GETCOLUMNWIDTH, 0, 0)) + " " +
                                     std::to_string(SendMessageW(v, LVM_GETCOLUMNWIDTH, 2, 0)) + " " + utf8(buf);
                              RECT view = inClient(w, 1001), size = units(w, 7, 7, 449, 183);
                              EXPECT_EQ(str(view), str({size.left, size.top, size.left + size.right, size.top + size.bottom}));
                          });
    EXPECT_EQ(out, "1\nresult: 0\n");
    EXPECT_EQ(seen, "Tabelle 4 2 120 40 x");
}

TEST(WinDialogs, FileAndFolderChoosers) {
    std::wstring dir = winScratchDir() + L"\\", target = dir + L"chosen.txt";
    winWriteFile(target, "x");
    std::vector<DialogKind> kinds;
    std::string out = run("file " + utf8(target) + "\nfile " + utf8(dir) + "new.txt\ndir C:\\windows\ncancel\n",
                          L"Print(FilenameDialog(s, READ, \"Laden\", \"Texte|*.txt|Alle|*.*\")); Print(s);"
                          L"Print(DateinameDialog(s, WRITE, \"Sichern\", \"\")); Print(s);"
                          L"Print(DirectoryDialog(a, \"Ordner\", 1)); Print(a);"
                          L"Print(DirectoryDialog(a, \"Ordner\", 0)); Print(a);",
                          [&](HWND, DialogKind kind) { kinds.push_back(kind); });
    EXPECT_EQ(out, "1\n" + utf8(target) + "\n1\n" + utf8(dir) + "new.txt\n1\nC:\\windows\n2\nC:\\windows\nresult: 0\n");
    EXPECT_EQ(kinds, (std::vector<DialogKind>{DialogKind::kFile, DialogKind::kFile, DialogKind::kDirectory,
                                              DialogKind::kDirectory}));
}

TEST(WinDialogs, HugeAndNegativePlacesAndSizesStillGiveAnAnswer) {
    std::wstring list = writeList(L"few.lst", "eins\n");
    std::vector<RECT> rects;
    EXPECT_EQ(run("text 5\nselect 1\nok\n",
                  L"SetDialogPosition(2147483647, -2147483647); SetDialogSize(2147483647, -5);"
                  L"n = 1; Print(IntDialog(\"T\", \"P\", n)); Print(n);"
                  L"Print(ListBoxDialog(\"T\", \"" + list + L"\", -2147483647, 2147483647, 100000, 100000, 2147483647, 0, a, b));"
                  L"Print(a); Print(ListBoxDialog(\"T\", \"" + list + L"\", 5, 5, -300, 200, -1, MULTI, a, b));",
                  [&](HWND w, DialogKind) { rects.push_back(windowRect(w)); }),
              "1\n5\n1\neins\n-3\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    // as far to the right as the platform lets a window go (it keeps window
    // coordinates within 16 bits)
    EXPECT_GE(rects[0].left, 32767);
    EXPECT_EQ(rects[2].left, 5) << "a negative width keeps the template's size at the given place";
}
