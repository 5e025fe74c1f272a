#include "report/report_engine.h"

#include <cstdlib>

#include "base/u16.h"
#include "engine/errors.h"
#include "helperlib/kelvane_modules.h"
#include "helperlib/kelvane_printer.h"
#include "helperlib/kelvane_registry.h"
#include "helperlib/kelvane_text.h"
#include "platform/platform.h"
#include "report/module_binding.h"
#include "report/report_entries.h"
#include "report/report_printer.h"

namespace mx {

namespace {

constexpr const char16_t *kModuleName = u"PRTENG32W.DLL";
constexpr int32_t kAppPathCapacity = 512;
// The location, a backslash, the module name and the terminator.
constexpr int32_t kPathCapacity = kAppPathCapacity + 1 + 13 + 1;
constexpr int32_t kPrinterCapacity = 500;
constexpr int32_t kAlwaysFlags = 7;
constexpr uint32_t kMsgNoMemory = 153;

// Engine property numbers and printer output kinds.
enum : int32_t { kPropDC = 9, kPropFromPage = 10, kPropToPage = 11, kPropCopies = 12, kPropDevmode = 13 };
enum : int32_t { kOutputFile = 0, kOutputDocName = 1 };

// The engine module bound for one call, unloaded when it goes out of scope.
struct Engine {
    char16_t path[kPathCapacity];
    ModuleHandle module = nullptr;

    Engine() { reportModulePath(path, kPathCapacity); }
    ~Engine() { Kelvane_FreeDynamicLibrary(module); }

    // Loads the module and looks up count entries; false after a shown failure.
    bool bind(const char16_t *const *names, void **entries, int32_t count) {
        module = bindLoadModule(path);
        if (!module) return false;
        if (bindEntryPoints(module, path, names, entries, count)) return true;
        module = nullptr;  // already unloaded
        return false;
    }
};

// The printer's device mode block and device context, freed with it.
struct Printer {
    char16_t name[kPrinterCapacity];
    void *devmode = nullptr;
    void *dc = nullptr;

    ~Printer() {
        reportDeletePrinterDC(dc);
        std::free(devmode);
    }

    // Prepares printer (blank: the default one). False when it has no
    // device mode or no device context can be made.
    bool prepare(const char16_t *printer) {
        if (u16IsWhiteText(printer))
            Kelvane_GetStandardPrinterW(name, kPrinterCapacity, 0, 0, 0, 0);
        else
            KelvaneCopyStringW(name, printer, kPrinterCapacity);
        int32_t size = Kelvane_GetPrinterDevmodeW(name, 0, 0, nullptr, 0);
        if (size < 1) return false;
        // Twice the size: some drivers write more than they announce.
        devmode = std::calloc(2, size_t(size));
        if (!devmode) {
            errShowSystemError(kMsgNoMemory);
            return false;
        }
        if (Kelvane_GetPrinterDevmodeW(name, 0, 0, devmode, 2 * size) < 1) return false;
        dc = reportCreatePrinterDC(name, devmode);
        return dc != nullptr;
    }
};

}  // namespace

const char16_t *reportModulePath(char16_t *path, int32_t capacity) {
    char16_t location[kAppPathCapacity];
    Kelvane_ReadStringFromHKCUW(u"Software\\Kelvane Software\\Report", u"Install", u"AppPath", u"",
                                location, kAppPathCapacity);
    if (u16IsWhiteText(location)) {
        u16Copy(path, capacity, kModuleName);
    } else {
        // Used as stored: a trailing backslash gives a doubled one.
        u16Copy(path, capacity, location);
        u16Append(path, capacity, u"\\");
        u16Append(path, capacity, kModuleName);
    }
    return path;
}

int32_t reportRunPreview(const char16_t *report, const char16_t *source, int32_t flags) {
    static const char16_t *const kNames[] = {u"Rep_Preview_File"};
    void *entries[1];
    Engine engine;
    if (!engine.bind(kNames, entries, 1)) return 2;
    auto preview = reinterpret_cast<report::PreviewFile>(entries[0]);
    preview(mxp_ActiveWindow(), report, source, u"Preview.ini", flags | kAlwaysFlags);
    return 1;
}

int32_t reportRunReport(const char16_t *report, const char16_t *source, int32_t flags) {
    static const char16_t *const kNames[] = {u"Rep_Print_File"};
    void *entries[1];
    WindowHandle owner = mxp_ActiveWindow();
    Engine engine;
    if (!engine.bind(kNames, entries, 1)) return 2;
    auto print = reinterpret_cast<report::PrintFile>(entries[0]);
    print(owner, report, source, 0, 1, 9999, 1, 0, flags | kAlwaysFlags);
    return 1;
}

int32_t reportRunReportExtended(const char16_t *report, const char16_t *source,
                                const char16_t *printer, const char16_t *outputFile,
                                const char16_t *docName, int32_t fromPage, int32_t toPage,
                                int32_t copies, int32_t flags) {
    static const char16_t *const kNames[] = {u"Rep_Open_Expanded", u"Rep_Close", u"Rep_SetProperty",
                                             u"Rep_DeclarePrinterOutput", u"Rep_Print_Report"};
    void *entries[5];
    WindowHandle owner = mxp_ActiveWindow();
    Engine engine;
    if (!engine.bind(kNames, entries, 5)) return 2;
    auto open = reinterpret_cast<report::OpenExpanded>(entries[0]);
    auto close = reinterpret_cast<report::Close>(entries[1]);
    auto setProperty = reinterpret_cast<report::SetProperty>(entries[2]);
    auto declare = reinterpret_cast<report::DeclarePrinterOutput>(entries[3]);
    auto print = reinterpret_cast<report::PrintReport>(entries[4]);

    Printer target;
    if (!target.prepare(printer)) return 2;
    void *handle = open(owner, report, 0, 0, flags | kAlwaysFlags);
    if (!handle) return 2;
    setProperty(handle, kPropDC, reinterpret_cast<intptr_t>(target.dc), 0);
    setProperty(handle, kPropDevmode, reinterpret_cast<intptr_t>(target.devmode), 0);
    setProperty(handle, kPropCopies, copies, 0);
    setProperty(handle, kPropFromPage, fromPage, 0);
    setProperty(handle, kPropToPage, toPage, 0);
    if (!u16IsWhiteText(outputFile)) declare(handle, outputFile, kOutputFile);
    if (!u16IsWhiteText(docName)) declare(handle, docName, kOutputDocName);
    print(handle, source);
    close(handle);
    return 1;
}

}  // namespace mx
