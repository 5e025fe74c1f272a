// The records the dialog procedures receive as their creation parameter and
// keep in the dialog's user data word for the dialog's lifetime. Each is
// owned by the function that runs the dialog and lives on its stack.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// The input dialog (template 300).
struct InputDialogRecord {
    const char16_t *title;
    const char16_t *prompt;
    int32_t left, top;       // screen pixels; both negative: centred
    char16_t *buffer;        // the initial value; receives the typed text
    int32_t capacity;        // of buffer, in characters
    // Beyond the six fields above: the size SetDialogSize set (pixels);
    // either 0 or negative keeps the template's size.
    int32_t width, height;
};

// List box flags.
enum : int32_t { kListSorted = 1, kListMulti = 2, kListFromListDialog = 4 };

// The list box dialog (template 10006).
struct ListBoxRecord {
    const char16_t *title;
    const char16_t *file;
    int32_t x, y;            // screen pixels; either negative: centred
    int32_t height, width;   // pixels; either 0 or negative: the template's size
    int32_t scrollWidth;     // horizontal extent of the list; 0 or negative: none
    int32_t flags;
    char16_t *first;         // receives the display texts
    int32_t firstCapacity;
    char16_t *second;        // receives the hidden values
    int32_t secondCapacity;
    int32_t result;
    WindowHandle dialog;
    WindowHandle list;
};

// Results of the list box dialog besides an entry's position.
enum : int32_t { kListCancelled = 0, kListNoMemory = -2, kListNothingSelected = -3 };

// List view flags.
enum : int32_t { kListViewGrid = 1, kListViewFullRow = 2 };

// The list view dialog (template 103); the texts are heap copies made for
// the dialog's lifetime (absent when memory was short).
struct ListViewRecord {
    WindowHandle dialog;
    char16_t *title;
    char16_t *header;
    char16_t *file;
    int32_t flags;
};

}  // namespace mx
