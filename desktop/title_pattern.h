// The window title pattern of GetWindow: an exact title, or a prefix
// followed by "?*" that every title beginning with the prefix matches
// (whatever follows "?*" is not looked at). Case-sensitive.
#pragma once

namespace mx {

// True when title matches pattern. Absent texts read as empty.
bool dskTitleMatches(const char16_t *title, const char16_t *pattern);

}  // namespace mx
