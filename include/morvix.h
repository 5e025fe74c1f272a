/*
 * morvix.h - the public interface of morvix32w.dll, the Morvix macro interpreter.
 *
 * A host runs a macro with Run_Macro (a macro file) or Run_MemMacroExt (a macro
 * text in memory). It may pass a table of its own functions and named
 * constants, strictly sorted by name (ordinal UTF-16 comparison), and a
 * callback that executes those functions. All texts are UTF-16.
 *
 * On 32-bit Windows every field and argument is 32 bits wide; on 64-bit
 * Windows pointers and the callback value are pointer-sized. The header also
 * compiles on Linux, where the native build provides the same functions.
 */
#ifndef MORVIX_H
#define MORVIX_H

#ifdef _WIN32
#include <windows.h>
#define MX_EXPORT WINAPI
#else
#include <stddef.h>
#include <stdint.h>
#ifndef __cplusplus
#include <uchar.h>
#endif
typedef char16_t WCHAR;
typedef int32_t LONG;
typedef uint32_t DWORD;
typedef intptr_t LONG_PTR;
typedef void *HWND;
typedef void *HINSTANCE;
#define WINAPI
#define CALLBACK
#define MX_EXPORT
#endif

/* The library's version: the DLL's version resource, Morvix_GetVersion and
 * the name of the download all take it from these four lines, the build
 * reads them from here. MORVIX_VERSION_TEXT is "MAJOR.MINOR.PATCH.BUILD". */
#define MORVIX_VERSION_MAJOR 1
#define MORVIX_VERSION_MINOR 2
#define MORVIX_VERSION_PATCH 0
#define MORVIX_VERSION_BUILD 3
#define MORVIX_STRINGIFY_(x) #x
#define MORVIX_STRINGIFY(x) MORVIX_STRINGIFY_(x)
#define MORVIX_VERSION_TEXT                                                       \
    MORVIX_STRINGIFY(MORVIX_VERSION_MAJOR) "." MORVIX_STRINGIFY(MORVIX_VERSION_MINOR) "." \
        MORVIX_STRINGIFY(MORVIX_VERSION_PATCH) "." MORVIX_STRINGIFY(MORVIX_VERSION_BUILD)

#ifdef __cplusplus
extern "C" {
#endif

/* A UTF-16 text constant for WCHAR: MX_TEXT("Print"). */
#ifdef _WIN32
#define MX_TEXT(s) L##s
#else
#define MX_TEXT(s) u##s
#endif

/* Kinds of a Value. */
#define MX_KIND_REFERENCE 1 /* data points into a variable's storage */
#define MX_KIND_OWNING 2    /* data belongs to the Value */

/* Element types of a Value. */
#define MX_TYPE_CHAR 1   /* one UTF-16 code unit per element */
#define MX_TYPE_LONG 2   /* signed 32-bit */
#define MX_TYPE_DOUBLE 3 /* IEEE 64-bit */

/* Results of the run functions. */
#define MX_RUN_OK 0       /* the macro ran to its end */
#define MX_RUN_ERROR (-1) /* failed; the error box has been shown */
#define MX_RUN_ABORTED (-2) /* the abort callback stopped the run; nothing shown */

/* Bit 16 of a row's identifier marks the German spelling of a function. */
#define MX_SPELLING_FLAG 0x10000UL

/*
 * The typed value of the language. A host function receives an array of
 * pointers to these. A text is a character vector whose last used element is
 * followed by a zero; count is 0 for a scalar and the element count of a vector.
 */
typedef struct MX_VALUE {
    LONG kind;             /* MX_KIND_REFERENCE or MX_KIND_OWNING */
    LONG type;             /* MX_TYPE_CHAR, MX_TYPE_LONG or MX_TYPE_DOUBLE */
    void *data;            /* first element */
    LONG count;            /* 0 scalar, n >= 1 vector of n elements */
    const WCHAR *varName;  /* references to variables: the variable's name */
    LONG varCount;         /* references: the variable's element count */
    LONG index;            /* references to one vector element: its index */
} MX_VALUE;

/*
 * One row of a function table. A row without signature is a named constant
 * whose value is the identifier; a row with a signature (possibly empty) is a
 * function whose number is the identifier's low 16 bits. A row with an absent
 * name ends the table.
 */
typedef struct MX_FUNCTION_ROW {
    const WCHAR *name;
    DWORD identifier;
    const WCHAR *signature;  /* e.g. L"C[]L*C[]"; NULL for a constant */
    const WCHAR *paramNames; /* comma-separated display names, for hosts */
} MX_FUNCTION_ROW;

/* Executes a host function: number is the row's identifier with bit 16 and
 * above cleared. Writes through by-reference arguments; returns the result. */
typedef LONG(CALLBACK *MX_HOST_CALLBACK)(LONG number, MX_VALUE **args, LONG count,
                                         LONG_PTR callbackValue);

/* Asked after every function call; a non-zero answer aborts the run. */
typedef LONG(CALLBACK *MX_ABORT_CALLBACK)(void);

/* Runs the macro file named by the first word of macroCommand; the further
 * blank-separated words are the macro's parameters. countryCode 49 makes the
 * comma the decimal separator. Returns MX_RUN_OK, MX_RUN_ERROR or MX_RUN_ABORTED. */
LONG MX_EXPORT Run_Macro(HINSTANCE hostInstance, HWND window, const WCHAR *macroCommand,
                         const MX_FUNCTION_ROW *hostTable, MX_HOST_CALLBACK hostCallback,
                         MX_ABORT_CALLBACK abortCallback, LONG_PTR callbackValue,
                         LONG countryCode);

/* Runs a macro held in memory (the statements of its body only); macroTitle
 * names it in error boxes and may be NULL. reserved is ignored. */
LONG MX_EXPORT Run_MemMacroExt(HINSTANCE hostInstance, HWND window, const WCHAR *macroText,
                               const WCHAR *macroTitle, const MX_FUNCTION_ROW *hostTable,
                               MX_HOST_CALLBACK hostCallback, MX_ABORT_CALLBACK abortCallback,
                               LONG_PTR callbackValue, LONG countryCode, LONG reserved);

/* Run_MemMacroExt without a title. */
LONG MX_EXPORT Run_MemMacro(HINSTANCE hostInstance, HWND window, const WCHAR *macroText,
                            const MX_FUNCTION_ROW *hostTable, MX_HOST_CALLBACK hostCallback,
                            MX_ABORT_CALLBACK abortCallback, LONG_PTR callbackValue,
                            LONG countryCode, LONG reserved);

/* Reads the name from a macro file's header into name (at most capacity - 1
 * characters). Returns 0, -1 when the text is no macro, -2 when the file
 * cannot be loaded. Shows nothing. */
LONG MX_EXPORT Get_MacroHeader(const WCHAR *macroCommand, WCHAR *name, LONG capacity);

/* The library's file version text; the same as Morvix_GetVersion. */
LONG MX_EXPORT Get_MacroLib_Version(WCHAR *buffer, LONG capacity);
LONG MX_EXPORT Morvix_GetVersion(WCHAR *buffer, LONG capacity);

/* The library's own module instance. */
HINSTANCE MX_EXPORT Morvix_GetInstance(void);

/* Copies the translation module name "MORVIXDLL" into buffer. */
LONG MX_EXPORT Morvix_GetTlxModuleName(WCHAR *buffer, LONG capacity);

/* The first row of the built-in function table; the table ends with an
 * all-zero row. */
const MX_FUNCTION_ROW *MX_EXPORT Get_MacroLib_InternalFunctionList(void);

/*
 * The host's button bar and command line. Macros reach them through one
 * window message that the library registers under MX_HOST_MESSAGE_NAME and
 * sends, synchronously, to the host's top-level window: wParam is one of the
 * operations below, lParam the address of a request record (or 0) that is
 * valid only during the call: copy what you keep. Answer MX_HOST_DONE when
 * the request was carried out; any other answer reads as a failure.
 */
#define MX_HOST_MESSAGE_NAME "KELVANE-MORVIX-MSG"
#define MX_HOST_DONE 4711

#define MX_HOST_APPEND_BUTTON 1      /* lParam: MX_BUTTON_REQUEST (mode 1) */
#define MX_HOST_DELETE_BUTTON 2      /* lParam: MX_BUTTON_REQUEST (command) */
#define MX_HOST_DELETE_ALL_BUTTONS 3 /* lParam: 0 */
#define MX_HOST_SET_BUTTON 4         /* lParam: MX_BUTTON_REQUEST (command, kind, text) */
#define MX_HOST_COUNT_PARAMS 6       /* lParam: 0; answer the count itself */
#define MX_HOST_GET_PARAM 7          /* lParam: MX_COMMANDLINE_REQUEST */

/* Property kinds of MX_HOST_SET_BUTTON. */
#define MX_BUTTON_BITMAP_FILE 1
#define MX_BUTTON_MACRO_FILE 2
#define MX_BUTTON_SIGNUM 3
#define MX_BUTTON_ACTION 4
#define MX_BUTTON_POPUP_TEXT 7

/* State flags of an appended button. */
#define MX_BUTTSTAT_NEWLINE 16  /* the button starts a new line of the bar */
#define MX_BUTTSTAT_NEWGROUP 32 /* the button starts a new group */

/* A button request; fields an operation does not use are zero. 32 bytes on
 * 32-bit Windows (eight 32-bit fields); on 64-bit the text pointer sits at
 * offset 24 and reserved at 32. */
typedef struct MX_BUTTON_REQUEST {
    LONG mode;          /* 1 for an append */
    LONG height;
    LONG width;
    LONG command;       /* the button's command number */
    LONG state;         /* MX_BUTTSTAT_* */
    LONG kind;          /* MX_BUTTON_* of MX_HOST_SET_BUTTON */
    const WCHAR *text;  /* the property's text, terminated */
    LONG reserved;
} MX_BUTTON_REQUEST;

/* A command-line parameter request: write parameter number into buffer, at
 * most capacity characters including the terminating zero. */
typedef struct MX_COMMANDLINE_REQUEST {
    LONG number;
    LONG capacity;
    WCHAR *buffer;
} MX_COMMANDLINE_REQUEST;

#ifdef __cplusplus
}
#endif

#endif /* MORVIX_H */
