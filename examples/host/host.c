/*
 * host.c - a complete host of morvix32w.dll.
 *
 * It lends its macros two functions and a named constant, counts the
 * function calls to stop runaway macros, runs a macro file and two memory
 * macros, and prints what came back:
 *
 *   morvix_host [MACROFILE]      (default: greet.mac beside the executable)
 *
 * Build it with its CMakeLists.txt against an unpacked Morvix package.
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

#include "morvix.h"

/* Numbers the callback receives (the low 16 bits of a row's identifier). */
enum { FN_HOST_LOG = 1, FN_SQUARE = 2 };

/* The host table: sorted by ordinal UTF-16 comparison of the names, so
 * upper-case letters come first ("HOST_ANSWER" < "HostLog" < "Square"),
 * and ended by a row without a name. */
static const MX_FUNCTION_ROW kHostTable[] = {
    {L"HOST_ANSWER", 42, NULL, NULL},            /* a named constant */
    {L"HostLog", FN_HOST_LOG, L"C[]", L"Text"},  /* HostLog("text") */
    {L"Square", FN_SQUARE, L"L*L", L"Number, Result"},  /* Square(7, r) */
    {NULL, 0, NULL, NULL},
};

/* The callback counts calls here; the run stops when the limit is reached. */
static long gCalls;
static long gCallLimit;

/* Prints a UTF-16 text; characters outside ASCII become '?'. */
static void printText(const WCHAR *text) {
    for (; *text; ++text) putchar(*text < 128 ? (char)*text : '?');
}

/* Executes the host functions. value is the number the host passed to the
 * run; here it tells which run is calling. */
static LONG CALLBACK hostFunction(LONG number, MX_VALUE **args, LONG count, LONG_PTR value) {
    (void)count;
    switch (number) {
        case FN_HOST_LOG: {
            /* C[]: a text, the caller's own characters. */
            const WCHAR *text = (const WCHAR *)args[0]->data;
            printf("  [run %ld] ", (long)value);
            printText(text);
            putchar('\n');
            return (LONG)wcslen(text);
        }
        case FN_SQUARE: {
            /* L arrives as an owning long; *L is a reference into the
             * macro's variable, which the host writes. */
            LONG n = *(const LONG *)args[0]->data;
            *(LONG *)args[1]->data = n * n;
            return 0;
        }
        default: return 0;
    }
}

/* Asked after every function call: non-zero stops the run (result -2). */
static LONG CALLBACK abortCallback(void) {
    return ++gCalls >= gCallLimit;
}

static const char *resultName(LONG r) {
    switch (r) {
        case MX_RUN_OK: return "ok";
        case MX_RUN_ERROR: return "error (shown in a message box)";
        case MX_RUN_ABORTED: return "aborted by the host";
        default: return "?";
    }
}

/* The macro file: the one named on the command line, else greet.mac in the
 * executable's folder. */
static void macroPath(int argc, char **argv, WCHAR *path, DWORD capacity) {
    if (argc > 1) {
        MultiByteToWideChar(CP_ACP, 0, argv[1], -1, path, (int)capacity);
        return;
    }
    DWORD n = GetModuleFileNameW(NULL, path, capacity);
    while (n > 0 && path[n - 1] != L'\\' && path[n - 1] != L'/') --n;
    path[n] = 0;
    wcsncat(path, L"greet.mac", capacity - n - 1);
}

int main(int argc, char **argv) {
    WCHAR version[32];
    Morvix_GetVersion(version, 32);
    printf("morvix32w.dll ");
    printText(version);
    printf(" (header " MORVIX_VERSION_TEXT ")\n");

    /* 1. A macro file; its words after the path are macro parameters. */
    WCHAR command[MAX_PATH + 16];
    macroPath(argc, argv, command, MAX_PATH);
    wcscat(command, L" World");
    gCalls = 0, gCallLimit = 1000;
    LONG r = Run_Macro(GetModuleHandleW(NULL), NULL, command, kHostTable, hostFunction,
                       abortCallback, 1, 49);
    printf("file macro: %ld %s, %ld function calls\n", (long)r, resultName(r), gCalls);

    /* 2. A memory macro: the statements of a body, no header. */
    gCalls = 0;
    r = Run_MemMacroExt(GetModuleHandleW(NULL), NULL,
                        L"int r; char s[40];\n"
                        L"Square(HOST_ANSWER, r);\n"
                        L"IntToString(r, s, 0, 32);\n"
                        L"HostLog(s);\n",
                        L"Memory", kHostTable, hostFunction, abortCallback, 2, 1, 0);
    printf("memory macro: %ld %s, %ld function calls\n", (long)r, resultName(r), gCalls);

    /* 3. A macro that never ends on its own: the abort callback stops it. */
    gCalls = 0, gCallLimit = 25;
    r = Run_MemMacro(GetModuleHandleW(NULL), NULL, L"int r; while (1) Square(3, r);",
                     kHostTable, hostFunction, abortCallback, 3, 1, 0);
    printf("endless macro: %ld %s, %ld function calls\n", (long)r, resultName(r), gCalls);
    return r == MX_RUN_ABORTED ? 0 : 1;
}
