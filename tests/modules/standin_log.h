/* Stand-in run-time modules for the tests: every call is appended as one
   UTF-8 line to the file named by the environment variable MX_STANDIN_LOG,
   which the test reads back. Shared by the Windows DLLs and the Linux
   shared objects built from the same sources. */
#ifndef STANDIN_LOG_H
#define STANDIN_LOG_H

#include <stdarg.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#ifdef _WIN32
#include <windows.h>
#define STANDIN_EXPORT __declspec(dllexport)
#define STANDIN_CALL WINAPI
#else
#define STANDIN_EXPORT __attribute__((visibility("default")))
#define STANDIN_CALL
#endif

typedef uint16_t u16char;

/* Appends text as UTF-8 to out (of capacity cap, kept terminated). */
static void standin_utf8(char *out, size_t cap, const u16char *text) {
    size_t n = strlen(out);
    if (!text) {
        snprintf(out + n, cap - n, "(null)");
        return;
    }
    for (; *text && n + 4 < cap; ++text) {
        uint32_t c = *text;
        if (c >= 0xD800 && c < 0xDC00 && text[1] >= 0xDC00 && text[1] < 0xE000) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[1] - 0xDC00);
            ++text;
        }
        if (c < 0x80) {
            out[n++] = (char)c;
        } else if (c < 0x800) {
            out[n++] = (char)(0xC0 | (c >> 6));
            out[n++] = (char)(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out[n++] = (char)(0xE0 | (c >> 12));
            out[n++] = (char)(0x80 | ((c >> 6) & 0x3F));
            out[n++] = (char)(0x80 | (c & 0x3F));
        } else {
            out[n++] = (char)(0xF0 | (c >> 18));
            out[n++] = (char)(0x80 | ((c >> 12) & 0x3F));
            out[n++] = (char)(0x80 | ((c >> 6) & 0x3F));
            out[n++] = (char)(0x80 | (c & 0x3F));
        }
    }
    out[n] = 0;
}

static void standin_write(const char *line) {
    char path[1024];
    FILE *f;
#ifdef _WIN32
    if (!GetEnvironmentVariableA("MX_STANDIN_LOG", path, sizeof path)) return;
#else
    const char *p = getenv("MX_STANDIN_LOG");
    if (!p) return;
    snprintf(path, sizeof path, "%s", p);
#endif
    f = fopen(path, "ab");
    if (!f) return;
    fputs(line, f);
    fputc('\n', f);
    fclose(f);
}

/* Logs one line: format takes %d (int32), %p (pointer-sized, written as
   hex), %s (UTF-16 text) and %a (8-bit text), each preceded by its text. */
static void standin_log(const char *format, ...) {
    static char line[16384];
    va_list args;
    const char *f;
    size_t n;
    line[0] = 0;
    va_start(args, format);
    for (f = format; *f; ++f) {
        n = strlen(line);
        if (n + 32 >= sizeof line) break;
        if (*f != '%') {
            line[n] = *f;
            line[n + 1] = 0;
            continue;
        }
        ++f;
        if (*f == 'd') snprintf(line + n, sizeof line - n, "%d", (int)va_arg(args, int32_t));
        else if (*f == 'p') snprintf(line + n, sizeof line - n, "%llx", (unsigned long long)va_arg(args, intptr_t));
        else if (*f == 's') standin_utf8(line, sizeof line, va_arg(args, const u16char *));
        else if (*f == 'a') snprintf(line + n, sizeof line - n, "%s", va_arg(args, const char *));
    }
    va_end(args);
    standin_write(line);
}

/* "load" when the module is mapped, "unload" when it is released. */
#ifdef _WIN32
BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    (void)instance;
    (void)reserved;
    if (reason == DLL_PROCESS_ATTACH) standin_log("load");
    if (reason == DLL_PROCESS_DETACH) standin_log("unload");
    return TRUE;
}
#else
__attribute__((constructor)) static void standin_loaded(void) { standin_log("load"); }
__attribute__((destructor)) static void standin_unloaded(void) { standin_log("unload"); }
#endif

#endif
