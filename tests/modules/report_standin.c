/* Stand-in report engine: the entry points of the real one, each logging
   its call and arguments. Variants are built with STANDIN_OMIT_<entry>
   (that entry point is missing) or STANDIN_OPEN_NULL (Rep_Open_Expanded
   opens nothing). */
#include "standin_log.h"

/* Details of a property value that only the real platform can tell: a
   device context that is alive, and the device name of a device mode. */
static int report_token;

static void log_property(int32_t report, int32_t property, intptr_t value, int32_t reserved) {
#ifdef _WIN32
    if (property == 9) {
        standin_log("Rep_SetProperty report=%d property=9 dc=%p dc-alive=%d reserved=%d", report, value,
                    (int32_t)(GetObjectType((HGDIOBJ)value) == OBJ_DC), reserved);
        return;
    }
    if (property == 13) {
        const DEVMODEW *mode = (const DEVMODEW *)value;
        standin_log("Rep_SetProperty report=%d property=13 devmode=%s reserved=%d", report,
                    (const u16char *)mode->dmDeviceName, reserved);
        return;
    }
#endif
    standin_log("Rep_SetProperty report=%d property=%d value=%d reserved=%d", report, property, (int32_t)value,
                reserved);
}

#ifndef STANDIN_OMIT_Rep_Preview_File
STANDIN_EXPORT int32_t STANDIN_CALL Rep_Preview_File(void *owner, const u16char *report,
                                                     const u16char *source, const u16char *profile,
                                                     int32_t flags) {
    standin_log("Rep_Preview_File owner=%p report=%s source=%s profile=%s flags=%d", (intptr_t)owner,
                report, source, profile, flags);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Rep_Print_File
STANDIN_EXPORT int32_t STANDIN_CALL Rep_Print_File(void *owner, const u16char *report,
                                                   const u16char *source, int32_t a, int32_t b,
                                                   int32_t c, int32_t d, int32_t e, int32_t flags) {
    standin_log("Rep_Print_File owner=%p report=%s source=%s args=%d,%d,%d,%d,%d flags=%d",
                (intptr_t)owner, report, source, a, b, c, d, e, flags);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Rep_Open_Expanded
STANDIN_EXPORT void *STANDIN_CALL Rep_Open_Expanded(void *owner, const u16char *report, int32_t a,
                                                    int32_t b, int32_t flags) {
    standin_log("Rep_Open_Expanded owner=%p report=%s args=%d,%d flags=%d", (intptr_t)owner, report, a,
                b, flags);
#ifdef STANDIN_OPEN_NULL
    return NULL;
#else
    return &report_token;
#endif
}
#endif

#ifndef STANDIN_OMIT_Rep_SetProperty
STANDIN_EXPORT int32_t STANDIN_CALL Rep_SetProperty(void *report, int32_t property, intptr_t value,
                                                    int32_t reserved) {
    log_property((int32_t)(report == &report_token), property, value, reserved);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Rep_DeclarePrinterOutput
STANDIN_EXPORT int32_t STANDIN_CALL Rep_DeclarePrinterOutput(void *report, const u16char *text,
                                                             int32_t kind) {
    standin_log("Rep_DeclarePrinterOutput report=%d text=%s kind=%d", (int32_t)(report == &report_token), text, kind);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Rep_Print_Report
STANDIN_EXPORT int32_t STANDIN_CALL Rep_Print_Report(void *report, const u16char *source) {
    standin_log("Rep_Print_Report report=%d source=%s", (int32_t)(report == &report_token), source);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Rep_Close
STANDIN_EXPORT int32_t STANDIN_CALL Rep_Close(void *report) {
    standin_log("Rep_Close report=%d", (int32_t)(report == &report_token));
    return 1;
}
#endif
