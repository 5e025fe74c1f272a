// The library's dialogs under Wine, driven like a user drives them: the
// answer hook finds each dialog, types, selects and presses; before that the
// test reads the dialog's windows back (position, size, control rectangles,
// texts, styles). Runs through the exports of morvix32w.dll like any host.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "answer_hook.h"
#include "morvix.h"

using mx::DialogKind;
namespace fs = std::filesystem;

namespace {

std::string captured;
std::function<void(HWND, DialogKind)> inspect;

std::string utf8(const std::wstring &w) {
    int n = WideCharToMultiByte(CP_UTF8, 0, w.c_str(), int(w.size()), nullptr, 0, nullptr, nullptr);
    std::string s(size_t(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, w.c_str(), int(w.size()), s.data(), n, nullptr, nullptr);
    return s;
}

std::wstring text(HWND w) {
    int n = GetWindowTextLengthW(w);
    std::wstring s(size_t(n) + 1, L'\0');
    GetWindowTextW(w, s.data(), n + 1);
    s.resize(size_t(n));
    return s;
}

LONG CALLBACK print(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    if (number != 1 || count != 1) return 0;
    const MX_VALUE *v = args[0];
    if (v->type == MX_TYPE_LONG && !v->count) captured += std::to_string(*static_cast<LONG *>(v->data));
    else if (v->type == MX_TYPE_CHAR && v->count) captured += utf8(static_cast<const wchar_t *>(v->data));
    captured += "\n";
    return 0;
}

const MX_FUNCTION_ROW kTable[] = {{L"Print", 1, L"X", L"Value"}, {nullptr, 0, nullptr, nullptr}};

decltype(&Run_MemMacro) runMemMacro() {
    static HMODULE dll = LoadLibraryW(L"morvix32w.dll");
    return reinterpret_cast<decltype(&Run_MemMacro)>(GetProcAddress(dll, "Run_MemMacro"));
}

// The host's own window: owner of the input dialog.
HWND hostWindow() {
    static HWND w = [] {
        HWND h = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200,
                                 nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
        return h;
    }();
    return w;
}

// Runs the statements with the answer script; returns the Print lines, the
// boxes and the notes of the script, and after them "result: N".
std::string run(const std::string &answers, const std::wstring &statements,
                std::function<void(HWND, DialogKind)> look = nullptr, HWND window = nullptr) {
    std::string error;
    EXPECT_TRUE(answersParse(answers, error)) << error;
    captured.clear();
    inspect = std::move(look);
    answersSetReport([](const std::string &line) { captured += line; });
    answerHookStart([](const std::string &line) { captured += line; },
                    [](HWND w, DialogKind kind) {
                        if (inspect) inspect(w, kind);
                    });
    std::wstring macro = L"int n; char s[300]; char a[300]; char b[300];\n" + statements;
    LONG r = runMemMacro()(GetModuleHandleW(nullptr), window ? window : hostWindow(), macro.c_str(), kTable,
                           print, nullptr, 0, 1, 0);
    answerHookStop();
    answersSetReport(nullptr);
    inspect = nullptr;
    EXPECT_EQ(answersLeft(), 0u) << "every answer is used";
    return captured + "result: " + std::to_string(r) + "\n";
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

std::wstring scratch() {
    wchar_t tmp[MAX_PATH];
    GetTempPathW(MAX_PATH, tmp);
    fs::path dir = fs::path(tmp) / ("mxdlg" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(dir);
    return dir.wstring();
}

// A path inside a macro text constant: the backslash escapes there.
std::wstring lit(const std::wstring &path) {
    std::wstring out;
    for (wchar_t c : path) out += c == L'\\' ? std::wstring(L"\\\\") : std::wstring(1, c);
    return out;
}

std::wstring writeList(const std::wstring &name, const std::string &bytes) {
    std::wstring path = scratch() + L"\\" + name;
    std::ofstream(fs::path(path), std::ios::binary) << bytes;
    return path;
}

#define EXPECT_RECT(r, l, t, rr, b)         \
    do {                                    \
        EXPECT_EQ((r).left, (l));           \
        EXPECT_EQ((r).top, (t));            \
        EXPECT_EQ((r).right, (rr));         \
        EXPECT_EQ((r).bottom, (b));         \
    } while (0)

}  // namespace

TEST(WinDialogs, MessageBoxesShowTheButtonSetsIconsAndCaptions) {
    struct Case {
        const wchar_t *call;
        const char *answer;
        bool ok, cancel, yes, no, icon;
        const char *out;
    } cases[] = {
        {L"MessageBox(\"T\", \"x\", QUEST, YES + NO)", "no\n", false, false, true, true, true, "T: x\n8\n"},
        {L"MessageBox(\"T\", \"x\", EXCL, YES + NO + ABORT)", "yes\n", false, true, true, true, true, "T: x\n4\n"},
        {L"MessageBox(\"T\", \"x\", STOP, OK + ABORT)", "cancel\n", true, true, false, false, true, "T: x\n2\n"},
        {L"MessageBox(\"T\", \"x\", 6, 6)", "", true, false, false, false, false, "T: x\n1\n"},
        {L"MessageBox(\"T\", \"x\", 0, OK)", "", true, false, false, false, false, "T: x\n1\n"},
        {L"MessageDialog(\"x\", INFO, OK + ABORT)", "ok\n", true, true, false, false, true, ": x\n1\n"},
        {L"SysModalMessageBox(\"T\", \"x\", INFO, 12)", "yes\n", false, false, true, true, true, "T: x\n4\n"},
        {L"Alert(\"x\")", "", true, false, false, false, true, ": x\n1\n"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(utf8(c.call));
        bool seen = false;
        std::string out = run(c.answer, std::wstring(L"Print(") + c.call + L");", [&](HWND w, DialogKind) {
            seen = true;
            auto button = [&](int id) { return visible(GetDlgItem(w, id)); };
            EXPECT_EQ(button(IDOK), c.ok);
            EXPECT_EQ(button(IDCANCEL), c.cancel);
            EXPECT_EQ(button(IDYES), c.yes);
            EXPECT_EQ(button(IDNO), c.no);
            HWND icon = GetDlgItem(w, 0x0440);
            bool shown = visible(icon) && SendMessageW(icon, STM_GETICON, 0, 0);
            EXPECT_EQ(shown, c.icon);
        });
        EXPECT_TRUE(seen);
        EXPECT_EQ(out, std::string(c.out) + "result: 0\n");
    }
}

TEST(WinDialogs, MessageBoxGivesTheFocusBack) {
    HWND host = hostWindow();
    HWND edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 5, 5, 100, 20, host, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    SetForegroundWindow(host);
    SetFocus(edit);
    ASSERT_EQ(GetFocus(), edit);
    HWND owner = nullptr;
    EXPECT_EQ(run("ok\n", L"Print(MessageBox(\"T\", \"x\", 0, OK + ABORT));",
                  [&](HWND w, DialogKind) { owner = GetWindow(w, GW_OWNER); }),
              "T: x\n1\nresult: 0\n");
    EXPECT_EQ(owner, host) << "the box belongs to the focused window's top-level window";
    EXPECT_EQ(GetFocus(), edit);
    DestroyWindow(edit);
}

TEST(WinDialogs, InputDialogTemplateTextsFocusAndCentre) {
    HWND host = hostWindow();
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
                              EXPECT_EQ(from, 0u);
                              EXPECT_EQ(to, 2u) << "the whole value is selected";
                              EXPECT_EQ(GetFocus(), edit);
                              EXPECT_EQ(text(GetDlgItem(w, IDOK)), L"&Ok");
                              EXPECT_EQ(text(GetDlgItem(w, IDCANCEL)), L"&Abbruch");
                              // the template's size, in dialog units of its font
                              RECT client;
                              GetClientRect(w, &client);
                              RECT size = units(w, 0, 0, 296, 95);
                              EXPECT_EQ(client.right, size.right);
                              EXPECT_EQ(client.bottom, size.bottom);
                              EXPECT_RECT(inClient(w, 302), units(w, 24, 39, 283, 51).left,
                                          units(w, 24, 39, 283, 51).top, units(w, 24, 39, 283, 51).right,
                                          units(w, 24, 39, 283, 51).bottom);
                              RECT r = windowRect(w);
                              int width = r.right - r.left, height = r.bottom - r.top;
                              EXPECT_EQ(r.left, (GetSystemMetrics(SM_CXSCREEN) - width -
                                                 2 * GetSystemMetrics(SM_CXFRAME)) / 2);
                              EXPECT_EQ(r.top, (GetSystemMetrics(SM_CYSCREEN) - height -
                                                2 * GetSystemMetrics(SM_CYFRAME) -
                                                GetSystemMetrics(SM_CYCAPTION)) / 2);
                          },
                          child);
    EXPECT_TRUE(seen);
    EXPECT_EQ(out, "1\n12\nresult: 0\n");
    DestroyWindow(child);
}

TEST(WinDialogs, InputDialogPositionSizeAndNestedRuns) {
    std::vector<RECT> rects;
    auto keep = [&](HWND w, DialogKind) { rects.push_back(windowRect(w)); };
    EXPECT_EQ(run("ok\nok\nok\n",
                  L"SetDialogPosition(100, -1); Print(TextDialog(\"T\", \"P\", s));"
                  L"EingabeDialogPosition(-5, 60); Print(TextDialog(\"T\", \"P\", s));"
                  L"InputDialogPosition(30, 40); SetDialogSize(400, 150); Print(TextDialog(\"T\", \"P\", s));",
                  keep),
              "1\n1\n1\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    EXPECT_EQ(rects[0].left, 100);
    EXPECT_EQ(rects[0].top, -1);
    EXPECT_EQ(rects[1].left, -5) << "a negative coordinate is used as it is";
    EXPECT_EQ(rects[1].top, 60);
    EXPECT_RECT(rects[2], 30, 40, 430, 190);

    // a nested macro starts with its caller's position; its own is lost
    std::wstring nested = scratch() + L"\\nested.mac";
    std::ofstream(fs::path(nested), std::ios::binary)
        << "Macro \"Nested\"\nbegin\n  char t[5];\n  TextDialog(\"N\", \"P\", t);\n"
           "  SetDialogPosition(5, 5);\n  TextDialog(\"N\", \"P\", t);\nend\n";
    rects.clear();
    EXPECT_EQ(run("ok\nok\nok\n",
                  L"SetDialogPosition(120, 80); Call(\"" + lit(nested) + L"\"); Print(TextDialog(\"T\", \"P\", s));",
                  keep),
              "1\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    EXPECT_EQ(rects[0].left, 120);
    EXPECT_EQ(rects[0].top, 80);
    EXPECT_EQ(rects[1].left, 5);
    EXPECT_EQ(rects[2].left, 120);
    EXPECT_EQ(rects[2].top, 80);
}

TEST(WinDialogs, InputDialogCutsAtTheCapacityAndTakesLongTexts) {
    EXPECT_EQ(run("text Bartholomaeus\ntext abc\n",
                  L"char t[10]; t = \"Anna\"; Print(TextDialog(\"T\", \"P\", t)); Print(t);"
                  L"char one[1]; Print(TextDialog(\"T\", \"P\", one)); Print(StrLen(one));"),
              "1\nBartholom\n1\n0\nresult: 0\n");
    size_t captionLength = 0, promptLength = 0;
    EXPECT_EQ(run("text 7\n",
                  L"char big[2001]; char title[2001]; int i; i = 0;"
                  L"while (i < 2000) begin big[i] = 'p'; title[i] = 'T'; i = i + 1; end "
                  L"n = 1; Print(IntDialog(title, big, n)); Print(n);",
                  [&](HWND w, DialogKind) {
                      captionLength = text(w).size();
                      promptLength = text(GetDlgItem(w, 301)).size();
                  }),
              "1\n7\nresult: 0\n");
    EXPECT_EQ(captionLength, 2000u);
    EXPECT_EQ(promptLength, 2000u);
}

TEST(WinDialogs, ListBoxDialogLayoutFromTheRealControls) {
    std::wstring list = writeList(L"fruit.lst", "Kiwi\tk\nApfel\ta\nBirne\tb\n");
    int shownId = 0, selected = -2, extent = -1, count = 0, itemHeight = 0;
    RECT window{}, client{}, listRect{}, ok{}, cancel{}, grown{}, grownClient{};
    std::string out = run(
        "ok\n", L"Print(ListBoxDialog(\"Obst\", \"" + lit(list) + L"\", 10, 20, 500, 300, 700, SORT, a, b)); Print(a);",
        [&](HWND w, DialogKind kind) {
            EXPECT_EQ(kind, DialogKind::kListBox);
            EXPECT_EQ(text(w), L"Obst");
            for (int id = 1002; id <= 1005; ++id)
                if (visible(GetDlgItem(w, id))) shownId = shownId ? -1 : id;
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
    EXPECT_RECT(window, 10, 20, 510, 320);
    int W = client.right, H = client.bottom, bw = ok.right - ok.left, bh = ok.bottom - ok.top;
    // The list box shows whole entries: its height shrinks to whole entries
    // inside its border, so it may end a little above the bottom it was given.
    EXPECT_EQ(listRect.left, 10);
    EXPECT_EQ(listRect.top, 10);
    EXPECT_EQ(listRect.right, W - 10);
    EXPECT_LE(listRect.bottom, H - 10 - bh - 10);
    EXPECT_GT(listRect.bottom, H - 10 - bh - 10 - 2 * itemHeight);
    EXPECT_EQ(ok.left, (W - 2 * bw - 5) / 2);
    EXPECT_EQ(ok.top, H - 10 - bh);
    EXPECT_EQ(cancel.left, ok.right + 5);
    EXPECT_EQ(cancel.top, ok.top);
    EXPECT_EQ(cancel.right - cancel.left, bw);
    EXPECT_EQ(cancel.bottom - cancel.top, bh);
    EXPECT_EQ(grown.right - listRect.right, 100);
    EXPECT_LE(grown.bottom, grownClient.bottom - 10 - bh - 10);
    EXPECT_GT(grown.bottom, grownClient.bottom - 10 - bh - 10 - 2 * itemHeight);
}

TEST(WinDialogs, ListBoxDialogFlagsPlacementAndResults) {
    std::wstring list = writeList(L"fruit.lst", "Kiwi\tk\nApfel\ta\nBirne\tb\nDattel\td\n");
    struct Case {
        std::wstring call;
        int listId;
    } cases[] = {
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, 0, a, b)", 1003},
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, SORT, a, b)", 1002},
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, MULTI, a, b)", 1005},
        {L"ListBoxDialog(\"T\", F, -1, -1, 0, 0, 0, SORT + MULTI, a, b)", 1004},
        {L"ListDialogMultiSelect(\"T\", F, -1, -1, 0, 0, 0, MULTI, a, b)", 1002},
        {L"ListenDialogAnsi(\"T\", F, -1, -1, 0, 0, 0, 0, a, b)", 1003},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(utf8(c.call));
        int shown = 0;
        std::wstring call = c.call;
        call.replace(call.find(L"F,"), 1, L"\"" + lit(list) + L"\"");
        run("cancel\n", L"Print(" + call + L");", [&](HWND w, DialogKind) {
            for (int id = 1002; id <= 1005; ++id)
                if (visible(GetDlgItem(w, id))) shown = id;
        });
        EXPECT_EQ(shown, c.listId);
    }
    // a negative x centres in both directions; a missing size keeps the template's
    std::vector<RECT> rects;
    auto keep = [&](HWND w, DialogKind) { rects.push_back(windowRect(w)); };
    EXPECT_EQ(run("cancel\ncancel\ncancel\n",
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", -1, 50, 0, 0, 0, 0, a, b));"
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", 40, 50, 300, 0, 0, 0, a, b));"
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", 40, -50, 300, 200, 0, 0, a, b));",
                  keep),
              "0\n0\n0\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    int width = rects[0].right - rects[0].left, height = rects[0].bottom - rects[0].top;
    EXPECT_EQ(rects[0].left, (GetSystemMetrics(SM_CXSCREEN) - width) / 2);
    EXPECT_EQ(rects[0].top, (GetSystemMetrics(SM_CYSCREEN) - height) / 2);
    EXPECT_NE(width, 300);
    EXPECT_EQ(rects[1].right - rects[1].left, width);
    EXPECT_EQ(rects[1].bottom - rects[1].top, height);
    EXPECT_RECT(rects[1], 40, 50, 40 + width, 50 + height);
    EXPECT_EQ(rects[2].left, (GetSystemMetrics(SM_CXSCREEN) - 300) / 2);
    EXPECT_EQ(rects[2].top, (GetSystemMetrics(SM_CYSCREEN) - 200) / 2);

    // selections in list order, nothing selected, Abbruch keeping the results
    EXPECT_EQ(run("select 4 2\nok\ncancel\n",
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", -1, -1, 0, 0, 0, SORT + MULTI, a, b));"
                  L"Print(a); Print(b);"
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", -1, -1, 0, 0, 0, MULTI, a, b));"
                  L"Print(StrLen(a) + StrLen(b)); a = \"alt\";"
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", -1, -1, 0, 0, 0, 0, a, b)); Print(a);"),
              "2\nBirne\tKiwi\nb\tk\n-3\n0\n0\nalt\nresult: 0\n");
}

TEST(WinDialogs, ListBoxDialogWithBadListFiles) {
    std::wstring empty = writeList(L"empty.lst", "");
    std::wstring binary = writeList(L"binary.lst", std::string("\x00\x01\xFF\xFE\x00", 5));
    std::string out = run("ok\nok\nok\n",
                          L"Print(ListBoxDialog(\"T\", \"" + lit(scratch()) + L"\\\\nothing.lst\", -1, -1, 0, 0, 0, 0, a, b));"
                          L"Print(ListBoxDialog(\"T\", \"" + lit(empty) + L"\", -1, -1, 0, 0, 0, 0, a, b));"
                          L"Print(ListBoxDialog(\"T\", \"" + lit(binary) + L"\", -1, -1, 0, 0, 0, 0, a, b)); Print(a);");
    EXPECT_EQ(out, "Liste: Die Datei '" + utf8(scratch()) + "\\nothing.lst' kann nicht gelesen werden.\n-3\n-3\n"
                   // binary bytes are code page 1252 text without its control characters
                   "1\n\xC3\xBF\xC3\xBE\n"
                   "result: 0\n");
}

TEST(WinDialogs, ListViewDialogColumnsRowsAndStyles) {
    std::wstring list = writeList(L"table.lst", "a\t1\tx\tbeyond\nb\t2\n");
    struct Case {
        int flags;
        DWORD style;
    } cases[] = {{0, 0}, {1, LVS_EX_GRIDLINES}, {2, LVS_EX_FULLROWSELECT}, {3, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.flags);
        DWORD style = 0xFFFF;
        run("ok\n", L"Print(ListViewDialog(\"T\", \"N\", \"" + lit(list) + L"\", " + std::to_wstring(c.flags) + L"));",
            [&](HWND w, DialogKind) {
                style = DWORD(SendMessageW(GetDlgItem(w, 1001), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
            });
        EXPECT_EQ(style & (LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT), c.style);
    }
    int columns = 0, rows = 0, width0 = 0, width2 = 0;
    std::wstring cell, caption;
    RECT view{}, expected{};
    std::string out = run("ok\ncancel\n",
                          L"Print(ListViewDialog(\"Tabelle\", \"Name:120\\tWert:60\\tMehr:40\\tLeer\", \"" + lit(list) +
                              L"\", 3)); Print(ListViewDialog(\"T\", \"N\", \"" + lit(list) + L"\", 0));",
                          [&](HWND w, DialogKind kind) {
                              if (!caption.empty()) return;
                              EXPECT_EQ(kind, DialogKind::kListView);
                              caption = text(w);
                              HWND v = GetDlgItem(w, 1001);
                              HWND header = reinterpret_cast<HWND>(SendMessageW(v, LVM_GETHEADER, 0, 0));
                              columns = int(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
                              rows = int(SendMessageW(v, LVM_GETITEMCOUNT, 0, 0));
                              width0 = int(SendMessageW(v, LVM_GETCOLUMNWIDTH, 0, 0));
                              width2 = int(SendMessageW(v, LVM_GETCOLUMNWIDTH, 2, 0));
                              wchar_t buf[32] = {};
                              LVITEMW item{};
                              item.iSubItem = 2;
                              item.pszText = buf;
                              item.cchTextMax = 32;
                              SendMessageW(v, LVM_GETITEMTEXTW, 0, LPARAM(&item));
                              cell = buf;
                              view = inClient(w, 1001);
                              expected = units(w, 7, 7, 449, 183);  // position and size
                          });
    EXPECT_EQ(out, "1\n2\nresult: 0\n");
    EXPECT_EQ(caption, L"Tabelle");
    EXPECT_EQ(columns, 4) << "more columns than the file has cells";
    EXPECT_EQ(rows, 2);
    EXPECT_EQ(width0, 120);
    EXPECT_EQ(width2, 40);
    EXPECT_EQ(cell, L"x");
    EXPECT_RECT(view, expected.left, expected.top, expected.left + expected.right, expected.top + expected.bottom);
}

TEST(WinDialogs, FileAndFolderChoosers) {
    std::wstring dir = scratch();
    std::wstring target = dir + L"\\chosen.txt";
    std::ofstream(fs::path(target)) << "x";
    std::wstring captionOpen, captionSave, captionDir;
    std::vector<DialogKind> kinds;
    std::string out = run("file " + utf8(target) + "\nfile " + utf8(dir) + "\\new.txt\ndir C:\\windows\ncancel\n",
                          L"Print(FilenameDialog(s, READ, \"Laden\", \"Texte|*.txt|Alle|*.*\")); Print(s);"
                          L"Print(DateinameDialog(s, WRITE, \"Sichern\", \"\")); Print(s);"
                          L"Print(DirectoryDialog(a, \"Ordner\", 1)); Print(a);"
                          L"Print(DirectoryDialog(a, \"Ordner\", 0)); Print(a);",
                          [&](HWND w, DialogKind kind) { kinds.push_back(kind); });
    EXPECT_EQ(out, "1\n" + utf8(target) + "\n1\n" + utf8(dir) + "\\new.txt\n1\nC:\\windows\n2\nC:\\windows\nresult: 0\n");
    EXPECT_EQ(kinds, (std::vector<DialogKind>{DialogKind::kFile, DialogKind::kFile, DialogKind::kDirectory,
                                              DialogKind::kDirectory}));
}

TEST(WinDialogs, HugeAndNegativePlacesAndSizesStillGiveAnAnswer) {
    std::wstring list = writeList(L"few.lst", "eins\n");
    std::vector<RECT> rects;
    EXPECT_EQ(run("text 5\nselect 1\nok\n",
                  L"SetDialogPosition(2147483647, -2147483647); SetDialogSize(2147483647, -5);"
                  L"n = 1; Print(IntDialog(\"T\", \"P\", n)); Print(n);"
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", -2147483647, 2147483647, 100000, 100000, 2147483647, 0, a, b));"
                  L"Print(a);"
                  L"Print(ListBoxDialog(\"T\", \"" + lit(list) + L"\", 5, 5, -300, 200, -1, MULTI, a, b));",
                  [&](HWND w, DialogKind) { rects.push_back(windowRect(w)); }),
              "1\n5\n1\neins\n-3\nresult: 0\n");
    ASSERT_EQ(rects.size(), 3u);
    // as far to the right as the platform lets a window go (it keeps window
    // coordinates within 16 bits)
    EXPECT_GE(rects[0].left, 32767);
    EXPECT_EQ(rects[2].left, 5) << "a negative width keeps the template's size at the given place";
}
