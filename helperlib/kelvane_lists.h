// Helper library: list files shown in list boxes and list views, and reading
// entries back out of a list box.
//
// A list file is text, one entry a line: the display text, a TAB, the hidden
// value (further TABs separate the cells of a list-view row). A line without
// a TAB has its display text as hidden value. Blank lines are skipped,
// characters below 32 other than TAB are dropped, a line keeps at most
// kListLineLimit units. Encodings: UTF-16LE or UTF-8 with a byte-order mark,
// UTF-8 without one, and otherwise code page 1252.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "base/handles.h"

namespace mx {

constexpr int32_t kListLineLimit = 4096;  // units kept of one line

// One line of a list file: its TAB-separated fields (at least one).
struct ListEntry {
    std::vector<std::u16string> cells;
    // The display text: the first cell.
    const std::u16string &display() const { return cells.front(); }
    // The hidden value: everything after the first TAB, or the display text.
    std::u16string hidden() const;
};

// Decodes the bytes of a list file into its entries (see above).
std::vector<ListEntry> kelvaneParseList(const std::string &bytes);

// Reads and parses a list file. A file that cannot be read shows the box
// "Liste: Die Datei 'NAME' kann nicht gelesen werden." owned by owner and
// returns false with entries empty.
bool kelvaneReadListFile(const char16_t *file, WindowHandle owner, std::vector<ListEntry> &entries);

// A list-view column from the header text: "Title:width" fields separated by
// TABs; a missing or bad width gives 100 pixels.
struct ListColumn {
    std::u16string title;
    int32_t width;
};
std::vector<ListColumn> kelvaneParseHeader(const char16_t *header);

// Fills a list box (display texts, each with a heap copy of its hidden
// value as item data, which the list's owner frees) or a list view (one
// row per entry, one cell per column) from the file. The flags are
// reserved. Returns the number of entries added, -1 when the file cannot be
// read (after its box), 0 natively.
int32_t Kelvane_ListView_LoadFromFileExtendedW(WindowHandle list, const char16_t *file, int32_t flags);

// Creates a list view's columns from the header text. Returns the number of
// columns, 0 natively or for an absent window.
int32_t Kelvane_ListView_CreateColumnsW(WindowHandle listView, int32_t reserved, const char16_t *header);

// Copies the display text of entry index (-1: the current selection) of a
// list box into buffer, cut to capacity. Returns its length, -1 (buffer
// empty) when there is no such entry.
int32_t Kelvane_GetBoxEntryW(WindowHandle listBox, int32_t index, char16_t *buffer, int32_t capacity);

// The hidden-value text of entry index (-1: the current selection), absent
// when there is none.
const char16_t *Kelvane_GetItemData(WindowHandle listBox, int32_t index);

}  // namespace mx
