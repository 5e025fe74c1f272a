// The run-time module binding against the stand-in modules built as shared
// objects (tests/modules): which entry points are called with which
// arguments, the messages for a module or an entry point that is missing,
// where the engine module is looked for, and that every module loaded is
// unloaded again. Natively there is no printer and no desktop.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "helperlib/kelvane_registry.h"
#include "macro_harness.h"

namespace {

const char16_t *kKey = u"Software\\Kelvane Software\\Report\\Install";

class ModuleBinding : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = scratchDir();
        log_ = dir_ + "/calls.log";
        setenv("MX_STANDIN_LOG", log_.c_str(), 1);
        unsetenv("MORVIX_MODULE_PATH");
        mx::mxp_RegDeleteValue(mx::RegRoot::kCurrentUser, kKey, u"AppPath");
    }
    void TearDown() override {
        unsetenv("MX_STANDIN_LOG");
        unsetenv("MORVIX_MODULE_PATH");
        mx::mxp_RegDeleteValue(mx::RegRoot::kCurrentUser, kKey, u"AppPath");
    }

    static std::string modules(const std::string &kind, const std::string &variant) {
        return std::string(MX_MODULES_DIR) + "/" + kind + "/" + variant;
    }
    static void setAppPath(const std::string &path) {
        mx::mxp_RegWriteString(mx::RegRoot::kCurrentUser, kKey, u"AppPath", u16(path).c_str());
    }
    // The engine variant's directory as "AppPath".
    static void useEngine(const std::string &variant) { setAppPath(modules("report", variant)); }

    // The lines the stand-ins logged since the last call; the log starts anew.
    std::vector<std::string> calls() {
        std::vector<std::string> lines;
        std::string text = readFile(log_), line;
        for (char c : text) {
            if (c == '\n') lines.push_back(line), line.clear();
            else line += c;
        }
        std::remove(log_.c_str());
        return lines;
    }

    std::string dir_, log_;
};

using Lines = std::vector<std::string>;

std::string cannotLoad(const std::string &path) {
    return "Makrofehler: s DLL kann nicht geladen werden\n\n" + path + "\n\n";
}

std::string entryMissing(const std::string &entry, const std::string &path) {
    return "Makrofehler: s Die Funktion " + entry + " wurde in der dynamischen Bibliothek " + path +
           " nicht gefunden.\n";
}

TEST_F(ModuleBinding, PreviewAndPrintPassTheirArgumentsWithTheLowFlagsSet) {
    useEngine("full");
    MacroRun r = runMemory(
        u"Print(RunPreview(\"kunden.rep\", \"kunden.csv\", 0)); Print(RunReport(\"r\", \"d\", 8));"
        u" Print(RunPreview(\"\", \"\", -8));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "1\n1\n1\n");
    EXPECT_EQ(calls(), (Lines{"load",
                              "Rep_Preview_File owner=0 report=kunden.rep source=kunden.csv "
                              "profile=Preview.ini flags=7",
                              "unload", "load",
                              "Rep_Print_File owner=0 report=r source=d args=0,1,9999,1,0 flags=15",
                              "unload", "load",
                              "Rep_Preview_File owner=0 report= source= profile=Preview.ini flags=-1",
                              "unload"}));
}

TEST_F(ModuleBinding, LongNamesReachTheEngineWhole) {
    useEngine("full");
    std::string name(2000, 'r'), source(2000, 'd');
    MacroRun r = runMemory(u16("char n[2001]; char s[2001]; FillStringLeft(n, 2000, 'r');"
                               " FillStringLeft(s, 2000, 'd'); Print(RunReport(n, s, 1));"));
    EXPECT_EQ(r.output, "1\n");
    Lines c = calls();
    ASSERT_EQ(c.size(), 3u);
    EXPECT_EQ(c[1], "Rep_Print_File owner=0 report=" + name + " source=" + source +
                        " args=0,1,9999,1,0 flags=7");
}

TEST_F(ModuleBinding, EachMissingEntryPointIsNamedAndTheModuleUnloaded) {
    struct Case {
        std::string missing;
        const char16_t *call;
    };
    const Case cases[] = {
        {"Rep_Preview_File", u"Print(RunPreview(\"r\", \"d\", 0));"},
        {"Rep_Print_File", u"Print(RunReport(\"r\", \"d\", 0));"},
        {"Rep_Open_Expanded", u"Print(RunReportExtended(\"r\", \"d\", \"\", \"\", \"\", 1, 2, 1, 0));"},
        {"Rep_Close", u"Print(RunReportExtended(\"r\", \"d\", \"\", \"\", \"\", 1, 2, 1, 0));"},
        {"Rep_SetProperty", u"Print(RunReportExtended(\"r\", \"d\", \"\", \"\", \"\", 1, 2, 1, 0));"},
        // Looked up even when no output file or document name is given.
        {"Rep_DeclarePrinterOutput", u"Print(RunReportExtended(\"r\", \"d\", \"\", \"\", \"\", 1, 2, 1, 0));"},
        {"Rep_Print_Report", u"Print(RunReportExtended(\"r\", \"d\", \"\", \"\", \"\", 1, 2, 1, 0));"},
    };
    for (const Case &c : cases) {
        useEngine("no-" + c.missing);
        std::string path = modules("report", "no-" + c.missing) + "\\PRTENG32W.DLL";
        MacroRun r = runMemory(c.call);
        EXPECT_EQ(r.result, 0);
        EXPECT_EQ(r.output, entryMissing(c.missing, path) + "2\n") << c.missing;
        EXPECT_EQ(calls(), (Lines{"load", "unload"})) << c.missing;
    }
}

TEST_F(ModuleBinding, EngineLocation) {
    // No "AppPath", or a blank one: the bare name, searched the platform's way.
    setenv("MORVIX_MODULE_PATH", (dir_ + "/empty:" + modules("report", "full")).c_str(), 1);
    EXPECT_EQ(runMemory(u"Print(RunPreview(\"a\", \"b\", 0));").output, "1\n");
    EXPECT_EQ(calls().size(), 3u);
    setAppPath(" \t ");
    EXPECT_EQ(runMemory(u"Print(RunPreview(\"a\", \"b\", 0));").output, "1\n");
    EXPECT_EQ(calls().size(), 3u);
    unsetenv("MORVIX_MODULE_PATH");
    EXPECT_EQ(runMemory(u"Print(RunPreview(\"a\", \"b\", 0));").output, cannotLoad("PRTENG32W.DLL") + "2\n");

    // A trailing backslash is kept, so the path gets a second one.
    setAppPath(modules("report", "full") + "\\");
    EXPECT_EQ(runMemory(u"Print(RunPreview(\"a\", \"b\", 0));").output, "1\n");
    EXPECT_EQ(calls().size(), 3u);
    setAppPath("/nowhere\\");
    EXPECT_EQ(runMemory(u"Print(RunReport(\"a\", \"b\", 0));").output,
              cannotLoad("/nowhere\\\\PRTENG32W.DLL") + "2\n");

    // 600 characters: the first 511 are read.
    std::string location = "/" + std::string(599, 'x');
    setAppPath(location);
    EXPECT_EQ(runMemory(u"Print(RunReport(\"a\", \"b\", 0));").output,
              cannotLoad(location.substr(0, 511) + "\\PRTENG32W.DLL") + "2\n");
}

TEST_F(ModuleBinding, AFileThatIsNoModuleIsNotLoaded) {
    writeFile(dir_ + "/prteng32w.so", "MZ this is not a shared object");
    setAppPath(dir_);
    EXPECT_EQ(runMemory(u"Print(RunPreview(\"a\", \"b\", 0));").output,
              cannotLoad(dir_ + "\\PRTENG32W.DLL") + "2\n");
    EXPECT_TRUE(calls().empty());
}

TEST_F(ModuleBinding, ExtendedPrintWithoutPrinterAnswers2) {
    useEngine("full");
    MacroRun r = runMemory(
        u"Print(RunReportExtended(\"r\", \"d\", \"\", \"out.pdf\", \"Doc\", 1, 2, 1, 0));"
        u" Print(RunReportExtended(\"r\", \"d\", \"Kein Drucker\", \"\", \"\", -1, -5, 0, 8));");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "2\n2\n");
    EXPECT_EQ(calls(), (Lines{"load", "unload", "load", "unload"}));
}

TEST_F(ModuleBinding, FormDialogWithoutDesktop) {
    // An empty form name: nothing is loaded.
    EXPECT_EQ(runMemory(u"Print(FormDialog(\"\", \"f.txt\", \"T\", 0, 0, 0, 0));").output, "2\n");
    EXPECT_TRUE(calls().empty());
    EXPECT_EQ(runMemory(u"Print(FormDialog(\"kunde\", \"f.txt\", \"T\", 0, 0, 0, 0));").output,
              cannotLoad("MSKDLG32.DLL") + "2\n");

    // Found by its bare name; the dialog cannot be shown, so the form is
    // never opened and the answer is "cancelled".
    setenv("MORVIX_MODULE_PATH", modules("form", "full").c_str(), 1);
    EXPECT_EQ(runMemory(u"Print(FormDialog(\" \", \"f.txt\", \"T\", 0, 0, 1, 0));").output, "2\n");
    EXPECT_EQ(calls(), (Lines{"load", "unload"}));

    const char *entries[] = {"Form_Open", "Form_MakeUntitled", "Form_SetWorkModeExt",
                             "Form_PerformBeginMacro", "Form_SetHwndNotify", "Form_SetChangeFlag",
                             "Form_SaveToProfileExtended", "Form_LoadFromProfileExtended",
                             "Form_DataAccess"};
    for (const char *entry : entries) {
        setenv("MORVIX_MODULE_PATH", modules("form", std::string("no-") + entry).c_str(), 1);
        EXPECT_EQ(runMemory(u"Print(FormDialog(\"kunde\", \"\", \"T\", 0, 0, 0, 0));").output,
                  entryMissing(entry, "MSKDLG32.DLL") + "2\n");
        EXPECT_EQ(calls(), (Lines{"load", "unload"})) << entry;
    }
}

}  // namespace
