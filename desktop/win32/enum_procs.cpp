// The exported window enumeration procedures. Each answers FALSE (stop) at
// the first match, TRUE (go on) otherwise.
#include "desktop/enum_procs.h"

#include <windows.h>

#include "desktop/title_pattern.h"
#include "platform/win32/wide.h"

using namespace mx;

namespace {

// True when path's file name or path itself equals name, ignoring case.
bool sameModule(const wchar_t *path, const wchar_t *name) {
    if (!lstrcmpiW(path, name)) return true;
    const wchar_t *file = path;
    for (const wchar_t *p = path; *p; ++p)
        if (*p == L'\\' || *p == L'/') file = p + 1;
    return !lstrcmpiW(file, name);
}

}  // namespace

extern "C" BOOL CALLBACK GetWindowEnumProc(HWND window, LPARAM search) {
    auto *s = reinterpret_cast<WindowSearch *>(search);
    wchar_t title[256];
    int n = GetWindowTextW(window, title, 256);
    title[n > 0 ? n : 0] = 0;
    if (!dskTitleMatches(narrow(title), s->pattern)) return TRUE;
    s->found = window;
    return FALSE;
}

extern "C" BOOL CALLBACK GetHwndOfHinstEnumProc(HWND window, LPARAM search) {
    auto *s = reinterpret_cast<InstanceSearch *>(search);
    if (reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(window, GWLP_HINSTANCE)) != s->instance) return TRUE;
    s->found = window;
    return FALSE;
}

extern "C" BOOL CALLBACK GetHwndOfModuleEnumProc(HWND window, LPARAM search) {
    auto *s = reinterpret_cast<ModuleSearch *>(search);
    auto instance = reinterpret_cast<HMODULE>(GetWindowLongPtrW(window, GWLP_HINSTANCE));
    wchar_t path[MAX_PATH];
    DWORD n = instance ? GetModuleFileNameW(instance, path, MAX_PATH) : 0;
    if (n == 0 || n >= MAX_PATH || !s->module) return TRUE;
    if (!sameModule(path, wide(s->module))) return TRUE;
    s->found = window;
    return FALSE;
}
