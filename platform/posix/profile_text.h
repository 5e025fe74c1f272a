// The text of a profile file as lines, with the lookups and edits of the
// profile functions. Lines keep their form; only edited lines are rewritten.
//
// Grammar (per line, blanks are spaces and tabs):
//   section line = blank* "[" name "]" anything     (name up to the first "]", trimmed)
//   entry line   = blank* name "=" value             (both trimmed)
//   other line   = anything else (kept; a line without "=" has no value)
// Lines before the first section line form a section with the empty name,
// which is not listed. Names compare without case; the first of several
// equal sections is the one used. Listings leave out entries without "="
// and entries whose name starts with ";".
#pragma once
#include <string>
#include <vector>

namespace mx {

struct ProfileText {
    std::vector<std::u16string> lines;

    // Splits text at line feeds (a CR before them is dropped).
    static ProfileText parse(const std::u16string &text);
    // The lines joined with CR LF, each line ended.
    std::u16string serialize() const;

    // The value of the entry, trimmed and without one pair of surrounding
    // quotes; false when there is none.
    bool value(const std::u16string &section, const std::u16string &key, std::u16string *out) const;
    // The names of the sections, in order.
    std::vector<std::u16string> sectionNames() const;
    // The names of the entries of a section, in order.
    std::vector<std::u16string> entryNames(const std::u16string &section) const;

    // True when the line format holds these names and value so that they read
    // back unchanged: no line break anywhere; a section name without "]" and
    // without blanks at its ends; a key without "=", without blanks at its
    // ends and not starting with "[". Absent key or value: not checked.
    static bool canHold(const char16_t *section, const char16_t *key, const char16_t *value);

    // Sets the entry (replacing its line, or adding it after the section's
    // last line that is not blank, or adding the section at the end).
    void set(const std::u16string &section, const std::u16string &key, const std::u16string &value);
    // Removes the entry; false when there was none.
    bool removeEntry(const std::u16string &section, const std::u16string &key);
    // Removes the section line and its lines; false when there was none.
    bool removeSection(const std::u16string &section);
};

}  // namespace mx
