/* A small report engine for morvix32w.dll: an example to read when writing
   one's own PRTENG32W.DLL (see docs/modules.md for the entry points).

   Here a "report" is only a title: the engine shows or prints the text of
   the data source file (UTF-8 or ANSI), one line after the other.
   - Rep_Preview_File shows the text in a window of its own, owned by the
     macro's host, and returns when the user closes it.
   - Rep_Print_File prints it on the default printer.
   - Rep_Open_Expanded ... Rep_Close print on the device context the library
     hands over (property 9), honouring the copies and the document name,
     or write the text to the declared output file instead. */
#include <windows.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define ENGINE_EXPORT __declspec(dllexport)

typedef struct Report {
    wchar_t title[260];
    HDC dc;             /* property 9, owned by the caller */
    LONG copies;        /* property 12 */
    LONG fromPage;      /* property 10 */
    LONG toPage;        /* property 11 */
    wchar_t output[MAX_PATH];
    wchar_t docName[260];
} Report;

static HINSTANCE engineModule;

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    (void)reserved;
    if (reason == DLL_PROCESS_ATTACH) engineModule = instance;
    return TRUE;
}

/* The data source's text as UTF-16 with CR LF line ends (free() it); NULL
   when the file cannot be read. */
static wchar_t *load_source(const wchar_t *path) {
    FILE *f = _wfopen(path, L"rb");
    char *bytes;
    long size;
    wchar_t *text;
    int n, i, j;
    UINT codePage = CP_UTF8;
    if (!f) return NULL;
    fseek(f, 0, SEEK_END);
    size = ftell(f);
    fseek(f, 0, SEEK_SET);
    bytes = (char *)malloc((size_t)size + 1);
    if (!bytes || fread(bytes, 1, (size_t)size, f) != (size_t)size) {
        free(bytes);
        fclose(f);
        return NULL;
    }
    fclose(f);
    if (!MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes, (int)size, NULL, 0) && size > 0)
        codePage = CP_ACP;
    n = MultiByteToWideChar(codePage, 0, bytes, (int)size, NULL, 0);
    text = (wchar_t *)malloc(((size_t)n * 2 + 1) * sizeof(wchar_t));
    if (text) {
        wchar_t *raw = text + n + 1;  /* converted into the upper half, then spread */
        MultiByteToWideChar(codePage, 0, bytes, (int)size, raw, n);
        for (i = 0, j = 0; i < n; ++i) {
            if (raw[i] == L'\n' && (i == 0 || raw[i - 1] != L'\r')) text[j++] = L'\r';
            text[j++] = raw[i];
        }
        text[j] = 0;
    }
    free(bytes);
    return text;
}

/* ---- preview ------------------------------------------------------------ */

static LRESULT CALLBACK preview_proc(HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SIZE) {
        MoveWindow(GetDlgItem(w, 1), 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
        return 0;
    }
    if (message == WM_CLOSE) {
        DestroyWindow(w);
        return 0;
    }
    return DefWindowProcW(w, message, wParam, lParam);
}

ENGINE_EXPORT LONG WINAPI Rep_Preview_File(HWND owner, const wchar_t *report, const wchar_t *source,
                                           const wchar_t *profile, LONG flags) {
    WNDCLASSW cls = {0};
    HWND window, edit;
    MSG msg;
    wchar_t *text = load_source(source);
    (void)profile;
    (void)flags;
    if (!text) return 0;
    cls.lpfnWndProc = preview_proc;
    cls.hInstance = engineModule;
    cls.hCursor = LoadCursor(NULL, IDC_ARROW);
    cls.hbrBackground = (HBRUSH)(COLOR_WINDOW + 1);
    cls.lpszClassName = L"ReportEnginePreview";
    RegisterClassW(&cls);
    window = CreateWindowExW(0, cls.lpszClassName, report, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                             560, 400, owner, NULL, engineModule, NULL);
    if (!window) {
        free(text);
        return 0;
    }
    edit = CreateWindowExW(0, L"EDIT", text, WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY,
                           0, 0, 0, 0, window, (HMENU)1, engineModule, NULL);
    SendMessageW(edit, WM_SETFONT, (WPARAM)GetStockObject(ANSI_FIXED_FONT), TRUE);
    free(text);
    ShowWindow(window, SW_SHOWNORMAL);
    {
        RECT r;
        GetClientRect(window, &r);
        MoveWindow(edit, 0, 0, r.right, r.bottom, TRUE);
    }
    /* Modal for the host: its window takes no input until the preview closes. */
    if (owner) EnableWindow(owner, FALSE);
    while (IsWindow(window) && GetMessageW(&msg, NULL, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    if (owner) EnableWindow(owner, TRUE);
    UnregisterClassW(cls.lpszClassName, engineModule);
    return 1;
}

/* ---- printing ----------------------------------------------------------- */

/* Renders text on dc, page by page, copies times; 1 on success. */
static LONG render(HDC dc, const wchar_t *title, const wchar_t *text, LONG copies) {
    DOCINFOW doc = {sizeof doc};
    TEXTMETRICW tm;
    int lineHeight, pageHeight, margin, y, copy;
    doc.lpszDocName = title;
    if (!dc || StartDocW(dc, &doc) <= 0) return 0;
    GetTextMetricsW(dc, &tm);
    lineHeight = tm.tmHeight + tm.tmExternalLeading;
    pageHeight = GetDeviceCaps(dc, VERTRES);
    margin = GetDeviceCaps(dc, LOGPIXELSY) / 2;
    for (copy = 0; copy < (copies > 0 ? copies : 1); ++copy) {
        const wchar_t *line = text;
        StartPage(dc);
        y = margin;
        while (*line) {
            const wchar_t *end = wcschr(line, L'\r');
            int n = end ? (int)(end - line) : (int)wcslen(line);
            if (y + lineHeight > pageHeight - margin) {
                EndPage(dc);
                StartPage(dc);
                y = margin;
            }
            TextOutW(dc, margin, y, line, n);
            y += lineHeight;
            line += n;
            if (*line == L'\r') ++line;
            if (*line == L'\n') ++line;
        }
        EndPage(dc);
    }
    EndDoc(dc);
    return 1;
}

/* Writes text to path as UTF-8; 1 on success. */
static LONG write_output(const wchar_t *path, const wchar_t *text) {
    int n = WideCharToMultiByte(CP_UTF8, 0, text, -1, NULL, 0, NULL, NULL);
    char *bytes = (char *)malloc((size_t)n);
    FILE *f;
    LONG ok = 0;
    if (!bytes) return 0;
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, n, NULL, NULL);
    f = _wfopen(path, L"wb");
    if (f) {
        ok = fwrite(bytes, 1, (size_t)n - 1, f) == (size_t)n - 1;
        fclose(f);
    }
    free(bytes);
    return ok;
}

ENGINE_EXPORT LONG WINAPI Rep_Print_File(HWND owner, const wchar_t *report, const wchar_t *source,
                                         LONG a, LONG b, LONG c, LONG d, LONG e, LONG flags) {
    wchar_t printer[512];
    DWORD size = 512;
    HDC dc;
    LONG ok = 0;
    wchar_t *text = load_source(source);
    (void)owner, (void)a, (void)b, (void)c, (void)d, (void)e, (void)flags;
    if (!text) return 0;
    if (GetDefaultPrinterW(printer, &size) && (dc = CreateDCW(NULL, printer, NULL, NULL)) != NULL) {
        ok = render(dc, report, text, 1);
        DeleteDC(dc);
    }
    free(text);
    return ok;
}

ENGINE_EXPORT Report *WINAPI Rep_Open_Expanded(HWND owner, const wchar_t *report, LONG a, LONG b,
                                               LONG flags) {
    Report *r = (Report *)calloc(1, sizeof(Report));
    (void)owner, (void)a, (void)b, (void)flags;
    if (!r) return NULL;
    lstrcpynW(r->title, report ? report : L"", 260);
    r->copies = 1;
    return r;
}

ENGINE_EXPORT LONG WINAPI Rep_SetProperty(Report *r, LONG property, LONG_PTR value, LONG reserved) {
    (void)reserved;
    switch (property) {
    case 9: r->dc = (HDC)value; return 1;
    case 10: r->fromPage = (LONG)value; return 1;
    case 11: r->toPage = (LONG)value; return 1;
    case 12: r->copies = (LONG)value; return 1;
    case 13: return 1;  /* the device context already carries the device mode */
    default: return 0;
    }
}

ENGINE_EXPORT LONG WINAPI Rep_DeclarePrinterOutput(Report *r, const wchar_t *text, LONG kind) {
    if (kind == 0) lstrcpynW(r->output, text, MAX_PATH);
    else if (kind == 1) lstrcpynW(r->docName, text, 260);
    else return 0;
    return 1;
}

ENGINE_EXPORT LONG WINAPI Rep_Print_Report(Report *r, const wchar_t *source) {
    LONG ok;
    wchar_t *text = load_source(source);
    if (!text) return 0;
    if (r->output[0])
        ok = write_output(r->output, text);
    else
        ok = render(r->dc, r->docName[0] ? r->docName : r->title, text, r->copies);
    free(text);
    return ok;
}

ENGINE_EXPORT LONG WINAPI Rep_Close(Report *r) {
    free(r);
    return 1;
}
