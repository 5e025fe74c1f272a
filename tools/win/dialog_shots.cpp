// dialog_shots.exe DIR: shows every dialog of the library once, with sample
// contents, and saves each as a PNG in DIR (./mx screenshots writes
// docs/dialogs/). The answer hook closes each dialog after its picture.
#include <windows.h>
#include <gdiplus.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "answer_hook.h"
#include "morvix.h"

namespace {

std::wstring outDir;
std::wstring nextName;

int pngEncoder(CLSID *clsid) {
    UINT count = 0, size = 0;
    Gdiplus::GetImageEncodersSize(&count, &size);
    std::string buffer(size, '\0');
    auto *codecs = reinterpret_cast<Gdiplus::ImageCodecInfo *>(buffer.data());
    Gdiplus::GetImageEncoders(count, size, codecs);
    for (UINT i = 0; i < count; ++i)
        if (lstrcmpW(codecs[i].MimeType, L"image/png") == 0) return *clsid = codecs[i].Clsid, 1;
    return 0;
}

// Shows and paints the dialog, then copies it from the screen into a PNG.
void shoot(HWND w, mx::DialogKind kind) {
    if (nextName.empty()) return;
    // A multiple-selection list shows two chosen entries in its picture.
    HWND multi = GetDlgItem(w, 1005);
    if (kind == mx::DialogKind::kListBox && multi && (GetWindowLongW(multi, GWL_STYLE) & WS_VISIBLE)) {
        SendMessageW(multi, LB_SETSEL, TRUE, 1);
        SendMessageW(multi, LB_SETSEL, TRUE, 3);
    }
    ShowWindow(w, SW_SHOW);
    SetWindowPos(w, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    RedrawWindow(w, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
    MSG msg;
    for (int i = 0; i < 20; ++i) {
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        Sleep(10);
    }
    RECT r;
    GetWindowRect(w, &r);
    int width = r.right - r.left, height = r.bottom - r.top;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, r.left, r.top, SRCCOPY);
    SelectObject(memory, old);
    CLSID png;
    if (pngEncoder(&png)) {
        Gdiplus::Bitmap image(bitmap, nullptr);
        std::wstring file = outDir + L"\\" + nextName + L".png";
        if (image.Save(file.c_str(), &png, nullptr) != Gdiplus::Ok) fwprintf(stderr, L"cannot write %ls\n", file.c_str());
    }
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    nextName.clear();
}

LONG CALLBACK noHostFunctions(LONG, MX_VALUE **, LONG, LONG_PTR) { return 0; }

void show(const wchar_t *name, const std::string &answer, const std::wstring &statements) {
    static HMODULE dll = LoadLibraryW(L"morvix32w.dll");
    static auto run = reinterpret_cast<decltype(&Run_MemMacro)>(GetProcAddress(dll, "Run_MemMacro"));
    static const MX_FUNCTION_ROW table[] = {{nullptr, 0, nullptr, nullptr}};
    std::string error;
    answersParse(answer, error);
    nextName = name;
    std::wstring macro = L"int n; char s[260]; char a[300]; char b[300];\n" + statements;
    run(GetModuleHandleW(nullptr), nullptr, macro.c_str(), table, noHostFunctions, nullptr, 0, 49, 0);
}

}  // namespace

int wmain(int argc, wchar_t **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: dialog_shots DIR\n");
        return 64;
    }
    outDir = argv[1];
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    answerHookStart([](const std::string &) {}, shoot);

    wchar_t tmp[MAX_PATH];
    GetTempPathW(MAX_PATH, tmp);
    std::wstring list = std::wstring(tmp) + L"mx_shots.lst";
    std::ofstream(list.c_str(), std::ios::binary)
        << "Kiwi\t4711\nApfel\t1001\nBirne\t2002\nDattel\t3003\nCitrone\t5005\nFeige\t6006\n";
    std::wstring lit;
    for (wchar_t c : list) lit += c == L'\\' ? std::wstring(L"\\\\") : std::wstring(1, c);

    show(L"message_info_ok", "", L"MessageBox(\"Morvix\", \"Die Datei wurde gespeichert.\", INFO, OK);");
    show(L"message_question_yesno", "yes\n", L"MessageBox(\"Morvix\", \"Sollen die Daten übernommen werden?\", QUEST, YES + NO);");
    show(L"message_exclamation_okcancel", "ok\n", L"MessageBox(\"Morvix\", \"Der Vorgang dauert einige Minuten.\", EXCL, OK + ABORT);");
    show(L"message_stop_yesnocancel", "cancel\n", L"MessageBox(\"Morvix\", \"Änderungen vor dem Beenden speichern?\", STOP, YES + NO + ABORT);");
    show(L"message_none_ok", "", L"MessageDialog(\"Ein Hinweis ohne Ikone und ohne Titel.\", 0, OK);");
    show(L"input", "ok\n", L"n = 42; IntDialog(\"Anzahl\", \"Wie viele Exemplare sollen gedruckt werden?\", n);");
    show(L"listbox_single", "ok\n", L"ListBoxDialog(\"Obst\", \"" + lit + L"\", -1, -1, 0, 0, 0, SORT, a, b);");
    show(L"listbox_multi", "select 2 4\n", L"ListBoxDialog(\"Obst (mehrere)\", \"" + lit + L"\", -1, -1, 500, 300, 0, MULTI, a, b);");
    show(L"listview_grid", "ok\n", L"ListViewDialog(\"Tabelle\", \"Obst:160\\tNummer:80\", \"" + lit + L"\", LVD_GRID + LVD_FULL);");
    show(L"file_open", "cancel\n", L"FilenameDialog(s, READ, \"Datei laden\", \"Listen|*.lst|Alle Dateien|*.*\");");
    show(L"file_save", "cancel\n", L"FilenameDialog(s, WRITE, \"Datei sichern\", \"Texte|*.txt\");");
    show(L"directory", "cancel\n", L"s = \"C:\\\\windows\"; DirectoryDialog(s, \"Ordner wählen\", 1);");

    answerHookStop();
    DeleteFileW(list.c_str());
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
