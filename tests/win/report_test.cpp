// The report engine binding under Wine, against the stand-in engine DLLs:
// arguments and flags as the engine receives them, the owner window, the
// engine's location through the real registry and the loader's search
// order, the messages for a module or entry point that is missing, and the
// extended print on a real printer device context.
#include <gtest/gtest.h>
#include <windows.h>
#include <winspool.h>

#include "standin_harness.h"
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
    static WinRun run(const char16_t *body) { return winRunMemory(body); }
};

std::string cannotLoad(const std::wstring &path) {
    return "Makrofehler: s DLL kann nicht geladen werden\n\n" + utf8(path) + "\n\n";
}

std::string entryMissing(const std::string &entry, const std::wstring &path) {
    return "Makrofehler: s Die Funktion " + entry + " wurde in der dynamischen Bibliothek " + utf8(path) +
           " nicht gefunden.\n";
}

const char16_t *kExtended = u"Print(RunReportExtended(\"r\", \"d\", \"\", \"\", \"\", 1, 2, 1, 0));";

TEST_F(ReportEngine, PreviewAndPrintGetTheOwnerAndTheLowFlags) {
    useEngine(L"full");
    std::string owner = hex(activeOwner());
    WinRun r = run(u"Print(RunPreview(\"kunden.rep\", \"kunden.csv\", 0)); Print(RunReport(\"r\", \"d\", 8));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "1\n1\n");
    EXPECT_EQ(standinCalls(),
              (Lines{"load",
                     "Rep_Preview_File owner=" + owner +
                         " report=kunden.rep source=kunden.csv profile=Preview.ini flags=7",
                     "unload", "load",
                     "Rep_Print_File owner=" + owner + " report=r source=d args=0,1,9999,1,0 flags=15",
                     "unload"}));
}

TEST_F(ReportEngine, EachMissingEntryPointIsNamed) {
    struct Case {
        const char *missing;
        const char16_t *call;
    };
    const Case cases[] = {
        {"Rep_Preview_File", u"Print(RunPreview(\"r\", \"d\", 0));"},
        {"Rep_Print_File", u"Print(RunReport(\"r\", \"d\", 0));"},
        {"Rep_Open_Expanded", kExtended},
        {"Rep_Close", kExtended},
        {"Rep_SetProperty", kExtended},
        {"Rep_DeclarePrinterOutput", kExtended},
        {"Rep_Print_Report", kExtended},
    };
    for (const Case &c : cases) {
        std::wstring variant = L"no-" + std::wstring(c.missing, c.missing + strlen(c.missing));
        useEngine(variant);
        WinRun r = run(c.call);
        EXPECT_EQ(r.output, entryMissing(c.missing, standinDir(L"report", variant) + L"\\PRTENG32W.DLL") + "2\n");
        EXPECT_EQ(standinCalls(), (Lines{"load", "unload"})) << c.missing;
    }
}

TEST_F(ReportEngine, LocationThroughTheRegistry) {
    // No value, or a blank one: the bare name, found through the loader's
    // search order (here the DLL directory).
    SetDllDirectoryW(standinDir(L"report", L"full").c_str());
    EXPECT_EQ(run(u"Print(RunPreview(\"a\", \"b\", 0));").output, "1\n");
    EXPECT_EQ(standinCalls().size(), 3u);
    setAppPath(L"  ");
    EXPECT_EQ(run(u"Print(RunPreview(\"a\", \"b\", 0));").output, "1\n");
    EXPECT_EQ(standinCalls().size(), 3u);
    SetDllDirectoryW(nullptr);
    removeAppPath();
    EXPECT_EQ(run(u"Print(RunPreview(\"a\", \"b\", 0));").output, cannotLoad(L"PRTENG32W.DLL") + "2\n");

    // A trailing backslash stays: the path has two before the module name.
    setAppPath(standinDir(L"report", L"full") + L"\\");
    EXPECT_EQ(run(u"Print(RunPreview(\"a\", \"b\", 0));").output, "1\n");
    EXPECT_EQ(standinCalls().size(), 3u);
    setAppPath(L"C:\\nirgends\\");
    EXPECT_EQ(run(u"Print(RunReport(\"a\", \"b\", 0));").output,
              cannotLoad(L"C:\\nirgends\\\\PRTENG32W.DLL") + "2\n");

    // 600 characters: the first 511 are read.
    std::wstring location = L"C:\\" + std::wstring(597, L'x');
    setAppPath(location);
    EXPECT_EQ(run(u"Print(RunReport(\"a\", \"b\", 0));").output,
              cannotLoad(location.substr(0, 511) + L"\\PRTENG32W.DLL") + "2\n");
}

TEST_F(ReportEngine, FilesThatAreNoModuleForThisProcess) {
    std::wstring dir = winScratchDir();
    winWriteFile(dir + L"\\PRTENG32W.DLL", "MZ nothing but text");
    setAppPath(dir);
    EXPECT_EQ(run(u"Print(RunPreview(\"a\", \"b\", 0));").output, cannotLoad(dir + L"\\PRTENG32W.DLL") + "2\n");

    // A 32-bit DLL in a 64-bit process (the library's own 32-bit build).
    std::string source = MX_SOURCE_DIR;
    std::wstring x86 = std::wstring(source.begin(), source.end()) + L"\\build\\win32\\bin\\morvix32w.dll";
    if (GetFileAttributesW(x86.c_str()) == INVALID_FILE_ATTRIBUTES) GTEST_SKIP() << "no 32-bit build";
    ASSERT_TRUE(CopyFileW(x86.c_str(), (dir + L"\\PRTENG32W.DLL").c_str(), FALSE));
    EXPECT_EQ(run(u"Print(RunReport(\"a\", \"b\", 0));").output, cannotLoad(dir + L"\\PRTENG32W.DLL") + "2\n");
}

TEST_F(ReportEngine, ExtendedPrintOnTheDefaultPrinter) {
    wchar_t printer[512];
    DWORD size = 512;
    ASSERT_TRUE(GetDefaultPrinterW(printer, &size)) << "the test prefix has a default printer";
    useEngine(L"full");
    std::string owner = hex(activeOwner());
    WinRun r = run(u"Print(RunReportExtended(\"r.rep\", \"d.csv\", \"\", \"C:\\\\out.pdf\", \"Rechnung\", 2, 5, 3, 8));"
                   u" Print(RunReportExtended(\"r.rep\", \"d.csv\", \" \", \" \", \"\t\", 0, -1, 0, 0));");
    EXPECT_EQ(r.output, "1\n1\n");
    Lines c = standinCalls();
    ASSERT_EQ(c.size(), 22u);
    // The device context was alive while the engine held it, and is gone after.
    std::string dcLine = c[2];
    size_t at = dcLine.find(" dc=") + 4;
    void *dc = reinterpret_cast<void *>(std::stoull(dcLine.substr(at, dcLine.find(' ', at) - at), nullptr, 16));
    EXPECT_EQ(GetObjectType(static_cast<HGDIOBJ>(dc)), 0u);
    std::string name = utf8(printer);
    EXPECT_EQ(c, (Lines{"load", "Rep_Open_Expanded owner=" + owner + " report=r.rep args=0,0 flags=15",
                        "Rep_SetProperty report=1 property=9 dc=" + hex(dc) + " dc-alive=1 reserved=0",
                        "Rep_SetProperty report=1 property=13 devmode=" + name.substr(0, 31) + " reserved=0",
                        "Rep_SetProperty report=1 property=12 value=3 reserved=0",
                        "Rep_SetProperty report=1 property=10 value=2 reserved=0",
                        "Rep_SetProperty report=1 property=11 value=5 reserved=0",
                        "Rep_DeclarePrinterOutput report=1 text=C:\\out.pdf kind=0",
                        "Rep_DeclarePrinterOutput report=1 text=Rechnung kind=1",
                        "Rep_Print_Report report=1 source=d.csv", "Rep_Close report=1", "unload",
                        // Blank printer, output file and document name.
                        "load", "Rep_Open_Expanded owner=" + owner + " report=r.rep args=0,0 flags=7", c[14],
                        "Rep_SetProperty report=1 property=13 devmode=" + name.substr(0, 31) + " reserved=0",
                        "Rep_SetProperty report=1 property=12 value=0 reserved=0",
                        "Rep_SetProperty report=1 property=10 value=0 reserved=0",
                        "Rep_SetProperty report=1 property=11 value=-1 reserved=0",
                        "Rep_Print_Report report=1 source=d.csv", "Rep_Close report=1", "unload"}));
}

TEST_F(ReportEngine, ExtendedPrintThatCannotStartFreesEverything) {
    // No such printer: 2 before the engine is asked anything.
    useEngine(L"full");
    EXPECT_EQ(run(u"Print(RunReportExtended(\"r\", \"d\", \"Kein Drucker\", \"\", \"\", 1, 1, 1, 0));").output, "2\n");
    EXPECT_EQ(standinCalls(), (Lines{"load", "unload"}));

    // The engine opens no report: 2, nothing else is called.
    useEngine(L"open-null");
    run(kExtended);  // settles what the first print loads into the process
    standinCalls();
    DWORD handles = 0, after = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(run(kExtended).output, "2\n");
    GetProcessHandleCount(GetCurrentProcess(), &after);
    EXPECT_EQ(after, handles);
    Lines c = standinCalls();
    ASSERT_EQ(c.size(), 15u);
    EXPECT_EQ(c[0], "load");
    EXPECT_EQ(c[1].rfind("Rep_Open_Expanded ", 0), 0u);
    EXPECT_EQ(c[2], "unload");
}

}  // namespace
