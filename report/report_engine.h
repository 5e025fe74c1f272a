// The report engine binding: RunPreview, RunReport and RunReportExtended.
// Each call locates the engine module, loads it, looks up the entry points
// it needs, calls the engine and unloads the module again. Failures to load
// or find an entry point are shown (messages 2000, 2001) and answer 2; the
// engine's own results are not examined. No run error is ever set.
#pragma once
#include <cstdint>

namespace mx {

// The file name of the engine module: "PRTENG32W.DLL" when the current
// user's "Software\Kelvane Software\Report\Install" value "AppPath" is
// missing or blank, else that value (read into 512 units), a backslash and
// the module name. Returns the path.
const char16_t *reportModulePath(char16_t *path, int32_t capacity);

// Previews report from source. 1 when the engine was called, else 2.
int32_t reportRunPreview(const char16_t *report, const char16_t *source, int32_t flags);

// Prints report from source with the engine's defaults. 1 or 2.
int32_t reportRunReport(const char16_t *report, const char16_t *source, int32_t flags);

// Prints report from source on printer (blank: the default printer) with a
// page range, copies, an output file and a document name (blank: none
// declared). 1 when the report was printed, 2 when the module or an entry
// point is missing, there is no such printer, or the engine opens no report.
int32_t reportRunReportExtended(const char16_t *report, const char16_t *source,
                                const char16_t *printer, const char16_t *outputFile,
                                const char16_t *docName, int32_t fromPage, int32_t toPage,
                                int32_t copies, int32_t flags);

}  // namespace mx
