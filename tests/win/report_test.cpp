// The report engine binding under Wine, against the stand-in engine DLLs:
// arguments and flags as the engine receives them, the owner window, the
// engine's location through the real registry and the loader's search
// order, the messages for a module or entry point that is missing, and the
// extended print on a real printer device context. Then the example engine
// of examples/report-engine: its preview window and its output file.
#include <gtest/gtest.h>
#include <windows.h>
#include <winspool.h>

#include "standin_harness.h"
#include "unattended.h"
#include "win_harness.h"

namespace {

using Lines = std::vector<std::string>;

class ReportEngine : public ::testing::Test {
protected:
    void SetUp() override {
        standinLogStart();
        removeAppPath();
        SetDllDirectoryW(nullptr);
    }
    void TearDown() override {
        removeAppPath();
        SetDllDirectoryW(nullptr);
        releaseOwner();
    }
    static void useEngine(const std::wstring &variant) { setAppPath(standinDir(L"report", variant)); }
    static std::string run(const std::string &body) { return runIn(nullptr, body); }
};

std::string cannotLoad(const std::wstring &path) {
    return "Makrofehler: s DLL kann nicht geladen werden\n\n" + utf8(path) + "\n\n2\n";
}

const char *kPreview = "Print(RunPreview(\"a\", \"b\", 0));";
const char *kExtended = "Print(RunReportExtended(\"r\", \"d\", \"\", \"\", \"\", 1, 2, 1, 0));";

TEST_F(ReportEngine, PreviewAndPrintGetTheOwnerAndTheLowFlags) {
    useEngine(L"full");
    std::string owner = hex(activeOwner());
    EXPECT_EQ(run("Print(RunPreview(\"kunden.rep\", \"kunden.csv\", 0)); Print(RunReport(\"r\", \"d\", 8));"), "1\n1\n");
    EXPECT_EQ(standinCalls(),
              (Lines{"load", "Rep_Preview_File owner=" + owner + " report=kunden.rep source=kunden.csv profile=Preview.ini flags=7",
                     "unload", "load", "Rep_Print_File owner=" + owner + " report=r source=d args=0,1,9999,1,0 flags=15",
                     "unload"}));
}

// The native tests name every missing entry point; here the platform's
// loader and GetProcAddress answer for a simple and an extended print.
TEST_F(ReportEngine, AMissingEntryPointIsNamed) {
    for (const auto &[missing, call] : {std::pair<std::string, const char *>{"Rep_Preview_File", kPreview},
                                        {"Rep_DeclarePrinterOutput", kExtended}}) {
        std::wstring variant = L"no-" + std::wstring(missing.begin(), missing.end());
        useEngine(variant);
        EXPECT_EQ(run(call), "Makrofehler: s Die Funktion " + missing + " wurde in der dynamischen Bibliothek " +
                                 utf8(standinDir(L"report", variant)) + "\\PRTENG32W.DLL nicht gefunden.\n2\n");
        EXPECT_EQ(standinCalls(), (Lines{"load", "unload"})) << missing;
    }
}

TEST_F(ReportEngine, LocationThroughTheRegistry) {
    // No value, or a blank one: the bare name, found through the loader's
    // search order (here the DLL directory).
    SetDllDirectoryW(standinDir(L"report", L"full").c_str());
    EXPECT_EQ(run(kPreview), "1\n");
    EXPECT_EQ(standinCalls().size(), 3u);
    setAppPath(L"  ");
    EXPECT_EQ(run(kPreview), "1\n");
    EXPECT_EQ(standinCalls().size(), 3u);
    SetDllDirectoryW(nullptr);
    removeAppPath();
    EXPECT_EQ(run(kPreview), cannotLoad(L"PRTENG32W.DLL"));
    // 600 characters: the first 511 are read from the registry.
    std::wstring location = L"C:\\" + std::wstring(597, L'x');
    setAppPath(location);
    EXPECT_EQ(run(kPreview), cannotLoad(location.substr(0, 511) + L"\\PRTENG32W.DLL"));
}

// A text file named like the engine, and a 32-bit DLL (the library's own
// 32-bit build, which ./mx test builds first) in this 64-bit process.
TEST_F(ReportEngine, FilesThatAreNoModuleForThisProcess) {
    std::wstring dir = winScratchDir(), engine = dir + L"\\PRTENG32W.DLL";
    winWriteFile(engine, "MZ nothing but text");
    setAppPath(dir);
    EXPECT_EQ(run(kPreview), cannotLoad(engine));
    std::string source = MX_SOURCE_DIR;
    std::wstring x86 = std::wstring(source.begin(), source.end()) + L"\\build\\win32\\bin\\morvix32w.dll";
    ASSERT_TRUE(CopyFileW(x86.c_str(), engine.c_str(), FALSE)) << "the 32-bit build is missing";
    EXPECT_EQ(run(kPreview), cannotLoad(engine));
}

TEST_F(ReportEngine, ExtendedPrintOnTheDefaultPrinter) {
    wchar_t printer[512];
    DWORD size = 512;
    ASSERT_TRUE(GetDefaultPrinterW(printer, &size)) << "the test prefix has a default printer";
    useEngine(L"full");
    std::string owner = hex(activeOwner());
    EXPECT_EQ(run("Print(RunReportExtended(\"r.rep\", \"d.csv\", \"\", \"C:\\\\out.pdf\", \"Rechnung\", 2, 5, 3, 8));"
                  "Print(RunReportExtended(\"r.rep\", \"d.csv\", \" \", \" \", \"\t\", 0, -1, 0, 0));"),
              "1\n1\n");
    Lines c = standinCalls();
    ASSERT_EQ(c.size(), 22u);
    // The device context was alive while the engine held it, and is gone after.
    size_t at = c[2].find(" dc=") + 4;
    void *dc = reinterpret_cast<void *>(std::stoull(c[2].substr(at, c[2].find(' ', at) - at), nullptr, 16));
    EXPECT_EQ(GetObjectType(static_cast<HGDIOBJ>(dc)), 0u);
    std::string devmode = "Rep_SetProperty report=1 property=13 devmode=" + utf8(printer).substr(0, 31) + " reserved=0";
    auto property = [](int p, int v) {
        return "Rep_SetProperty report=1 property=" + std::to_string(p) + " value=" + std::to_string(v) + " reserved=0";
    };
    EXPECT_EQ(c, (Lines{"load", "Rep_Open_Expanded owner=" + owner + " report=r.rep args=0,0 flags=15",
                        "Rep_SetProperty report=1 property=9 dc=" + hex(dc) + " dc-alive=1 reserved=0", devmode,
                        property(12, 3), property(10, 2), property(11, 5),
                        "Rep_DeclarePrinterOutput report=1 text=C:\\out.pdf kind=0",
                        "Rep_DeclarePrinterOutput report=1 text=Rechnung kind=1",
                        "Rep_Print_Report report=1 source=d.csv", "Rep_Close report=1", "unload",
                        // Blank printer, output file and document name.
                        "load", "Rep_Open_Expanded owner=" + owner + " report=r.rep args=0,0 flags=7", c[14], devmode,
                        property(12, 0), property(10, 0), property(11, -1), "Rep_Print_Report report=1 source=d.csv",
                        "Rep_Close report=1", "unload"}));
}

TEST_F(ReportEngine, ExtendedPrintThatCannotStartFreesEverything) {
    // No such printer: 2 before the engine is asked anything.
    useEngine(L"full");
    EXPECT_EQ(run("Print(RunReportExtended(\"r\", \"d\", \"Kein Drucker\", \"\", \"\", 1, 1, 1, 0));"), "2\n");
    EXPECT_EQ(standinCalls(), (Lines{"load", "unload"}));
    // The engine opens no report: 2, nothing else is called, nothing kept.
    useEngine(L"open-null");
    run(kExtended);  // settles what the first print loads into the process
    standinCalls();
    DWORD handles = 0, after = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(run(kExtended), "2\n");
    GetProcessHandleCount(GetCurrentProcess(), &after);
    EXPECT_EQ(after, handles);
    Lines c = standinCalls();
    ASSERT_EQ(c.size(), 15u);
    EXPECT_EQ(c[0], "load");
    EXPECT_EQ(c[1].rfind("Rep_Open_Expanded ", 0), 0u);
    EXPECT_EQ(c[2], "unload");
}

// The example engine's preview window, read once it is shown, then closed.
std::wstring previewText;
HWND previewOwner;
HHOOK previewHook;

void CALLBACK readPreview(HWND w, UINT, UINT_PTR id, DWORD) {
    KillTimer(w, id);
    wchar_t text[1024] = L"";
    GetDlgItemTextW(w, 1, text, 1024);
    previewText = text;
    previewOwner = GetWindow(w, GW_OWNER);
    PostMessageW(w, WM_CLOSE, 0, 0);
}

LRESULT CALLBACK watchPreview(int code, WPARAM wParam, LPARAM lParam) {
    wchar_t cls[64];
    HWND w = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && GetClassNameW(w, cls, 64) && lstrcmpW(cls, L"ReportEnginePreview") == 0)
        SetTimer(w, 1, 200, readPreview);
    return CallNextHookEx(previewHook, code, wParam, lParam);
}

TEST_F(ReportEngine, TheExampleEnginePreviewsAndPrintsTheDataSource) {
    unattendedStart(nullptr);
    previewHook = SetWindowsHookExW(WH_CBT, watchPreview, nullptr, GetCurrentThreadId());
    setAppPath(binDir() + L"\\examples\\report-engine");
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\kunden.csv", "Kunde;Ort\nM\xC3\xBCller;K\xC3\xB6ln\nSchmidt;Bonn\n");
    std::string csv = macroPath(dir + L"\\kunden.csv"), txt = macroPath(dir + L"\\kunden.txt");
    HWND owner = activeOwner();
    EXPECT_EQ(run("Print(RunPreview(\"Kundenliste\", \"" + csv + "\", 0));"
                  "Print(RunReportExtended(\"Kundenliste\", \"" + csv + "\", \"\", \"" + txt + "\", \"Kunden\", 1, 1, 1, 0));"),
              "1\n1\n");
    UnhookWindowsHookEx(previewHook);
    EXPECT_EQ(previewText, L"Kunde;Ort\r\nM\u00fcller;K\u00f6ln\r\nSchmidt;Bonn\r\n");
    EXPECT_EQ(previewOwner, owner);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(winReadFile(dir + L"\\kunden.txt"), "Kunde;Ort\r\nM\xC3\xBCller;K\xC3\xB6ln\r\nSchmidt;Bonn\r\n");
}

}  // namespace
