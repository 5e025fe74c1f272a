/* Stand-in form module: the entry points of the real one, each logging its
   call and arguments. On Windows the form is two real controls inside the
   parent it is opened in (an edit field "Name" and a check box "Checked");
   its values are loaded from and saved to the destination file:

     [Formatted]            written with representation "Formatted"
     Name: <text>
     Checked: Ja|Nein
     [Neutral]              appended with representation "Neutral"
     Name=<text>
     Checked=1|0

   Loading reads the "Name: " and "Checked: " lines. Variants are built with
   STANDIN_OMIT_<entry> (that entry point is missing) or STANDIN_OPEN_FAILS
   (Form_Open answers null). */
#include "standin_log.h"

#define FORM_NAME_ID 100
#define FORM_CHECK_ID 101

typedef struct Form {
    void *parent;
    char name[512]; /* UTF-8 */
    int checked;
} Form;

static Form the_form;

static int is_form(void *form) { return form == &the_form; }

#ifdef _WIN32
static void show_values(void) {
    HWND parent = (HWND)the_form.parent;
    SetDlgItemTextA(parent, FORM_NAME_ID, the_form.name);
    CheckDlgButton(parent, FORM_CHECK_ID, the_form.checked ? BST_CHECKED : BST_UNCHECKED);
}

static void read_values(void) {
    HWND parent = (HWND)the_form.parent;
    GetDlgItemTextA(parent, FORM_NAME_ID, the_form.name, sizeof the_form.name);
    the_form.checked = IsDlgButtonChecked(parent, FORM_CHECK_ID) == BST_CHECKED;
}

static void make_controls(void) {
    HWND parent = (HWND)the_form.parent;
    HINSTANCE self = (HINSTANCE)GetWindowLongPtrW(parent, GWLP_HINSTANCE);
    CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 10, 10, 200,
                    22, parent, (HMENU)(INT_PTR)FORM_NAME_ID, self, NULL);
    CreateWindowExW(0, L"BUTTON", L"Checked", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX, 10, 40, 200, 22,
                    parent, (HMENU)(INT_PTR)FORM_CHECK_ID, self, NULL);
}

static int parent_id(void *window) { return GetDlgCtrlID((HWND)window); }
static int holds_frame(void *window) {
    return window && GetDlgItem((HWND)window, 1032) == (HWND)the_form.parent;
}
#define FILE_MODE(m) L##m
static FILE *open_file(const u16char *path, const wchar_t *mode) {
    return _wfopen((const wchar_t *)path, mode);
}
#else
static void show_values(void) {}
static void read_values(void) {}
static void make_controls(void) {}
static int parent_id(void *window) { return window ? 1 : 0; }
static int holds_frame(void *window) { return window != NULL; }
#define FILE_MODE(m) m
static FILE *open_file(const u16char *path, const char *mode) {
    char name[4096] = "";
    standin_utf8(name, sizeof name, path);
    return fopen(name, mode);
}
#endif

static void load_values(const u16char *path) {
    char line[600];
    FILE *f = open_file(path, FILE_MODE("rb"));
    if (!f) return;
    while (fgets(line, sizeof line, f)) {
        line[strcspn(line, "\r\n")] = 0;
        if (strncmp(line, "Name: ", 6) == 0) snprintf(the_form.name, sizeof the_form.name, "%s", line + 6);
        if (strncmp(line, "Checked: ", 9) == 0) the_form.checked = strcmp(line + 9, "Ja") == 0;
    }
    fclose(f);
}

static void save_values(const u16char *path, const u16char *representation) {
    int neutral = representation && representation[0] == 'N';
    FILE *f = open_file(path, neutral ? FILE_MODE("ab") : FILE_MODE("wb"));
    if (!f) return;
    if (neutral)
        fprintf(f, "[Neutral]\nName=%s\nChecked=%d\n", the_form.name, the_form.checked);
    else
        fprintf(f, "[Formatted]\nName: %s\nChecked: %s\n", the_form.name, the_form.checked ? "Ja" : "Nein");
    fclose(f);
}

#ifndef STANDIN_OMIT_Form_Open
STANDIN_EXPORT void *STANDIN_CALL Form_Open(void *parent, const u16char *name, int32_t a,
                                            const u16char *profile) {
    standin_log("Form_Open parent-id=%d name=%s a=%d profile=%s", parent_id(parent), name, a, profile);
#ifdef STANDIN_OPEN_FAILS
    return NULL;
#else
    memset(&the_form, 0, sizeof the_form);
    the_form.parent = parent;
    make_controls();
    return &the_form;
#endif
}
#endif

#ifndef STANDIN_OMIT_Form_MakeUntitled
STANDIN_EXPORT int32_t STANDIN_CALL Form_MakeUntitled(void *form) {
    standin_log("Form_MakeUntitled form=%d", is_form(form));
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Form_SetWorkModeExt
STANDIN_EXPORT int32_t STANDIN_CALL Form_SetWorkModeExt(void *form, int32_t mode, int32_t bits) {
    standin_log("Form_SetWorkModeExt form=%d mode=%d bits=%p", is_form(form), mode, (intptr_t)bits);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Form_PerformBeginMacro
STANDIN_EXPORT int32_t STANDIN_CALL Form_PerformBeginMacro(void *form) {
    standin_log("Form_PerformBeginMacro form=%d", is_form(form));
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Form_SetHwndNotify
STANDIN_EXPORT int32_t STANDIN_CALL Form_SetHwndNotify(void *form, void *window) {
    standin_log("Form_SetHwndNotify form=%d dialog-holds-frame=%d", is_form(form), holds_frame(window));
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Form_SetChangeFlag
STANDIN_EXPORT int32_t STANDIN_CALL Form_SetChangeFlag(void *form, int32_t changed) {
    standin_log("Form_SetChangeFlag form=%d changed=%d", is_form(form), changed);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Form_LoadFromProfileExtended
STANDIN_EXPORT int32_t STANDIN_CALL Form_LoadFromProfileExtended(void *form, const u16char *file,
                                                                 const u16char *representation,
                                                                 int32_t bits, int32_t a) {
    standin_log("Form_LoadFromProfileExtended form=%d file=%s representation=%s bits=%p a=%d",
                is_form(form), file, representation, (intptr_t)bits, a);
    load_values(file);
    show_values();
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Form_SaveToProfileExtended
STANDIN_EXPORT int32_t STANDIN_CALL Form_SaveToProfileExtended(void *form, const u16char *file,
                                                               const u16char *representation,
                                                               int32_t bits, int32_t a) {
    standin_log("Form_SaveToProfileExtended form=%d file=%s representation=%s bits=%p a=%d",
                is_form(form), file, representation, (intptr_t)bits, a);
    read_values();
    save_values(file, representation);
    return 1;
}
#endif

#ifndef STANDIN_OMIT_Form_DataAccess
STANDIN_EXPORT int32_t STANDIN_CALL Form_DataAccess(void *form, int32_t what, const u16char *file,
                                                    int32_t a) {
    standin_log("Form_DataAccess form=%d what=%p file=%s a=%d", is_form(form), (intptr_t)what, file, a);
    return 1;
}
#endif
