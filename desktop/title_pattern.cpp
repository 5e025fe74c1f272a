#include "desktop/title_pattern.h"

namespace mx {

bool dskTitleMatches(const char16_t *title, const char16_t *pattern) {
    if (!title) title = u"";
    if (!pattern) pattern = u"";
    // Walk both while they agree; the pattern's "?*" ends the comparison
    // with a match, the end of the pattern demands the end of the title.
    for (;; ++title, ++pattern) {
        if (pattern[0] == u'?' && pattern[1] == u'*') return true;
        if (*pattern != *title) return false;
        if (!*pattern) return true;
    }
}

}  // namespace mx
