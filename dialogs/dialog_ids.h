// Numbers of the library's dialog templates and of their controls, shared by
// the resource script and the dialog procedures.
#pragma once

// Input dialog: a prompt and a one-line edit field.
#define IDD_INPUT 300
#define IDC_INPUT_PROMPT 301
#define IDC_INPUT_EDIT 302

// List box dialog: four list boxes, one of them shown by the flags.
#define IDD_LISTBOX 10006
#define IDC_LIST_SORTED 1002
#define IDC_LIST_PLAIN 1003
#define IDC_LIST_SORTED_MULTI 1004
#define IDC_LIST_MULTI 1005

// List view dialog: a report-view list.
#define IDD_LISTVIEW 103
#define IDC_LISTVIEW 1001

// The classic file-open layout (kept in the resources for file dialogs that
// want it; the library's own code does not open it).
#define IDD_FILEOPEN 200
