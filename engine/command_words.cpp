#include "engine/command_words.h"

namespace mx {

namespace {
// Reads one word starting at p into buf; returns the position after it and
// after the run of blanks that ends it.
const char16_t *readWord(const char16_t *p, char16_t *buf, int32_t capacity) {
    bool quoted = false;
    int32_t n = 0;
    for (; *p; ++p) {
        if (*p == u'"') {
            quoted = !quoted;
            continue;
        }
        if (*p == u' ' && !quoted) break;
        if (n < capacity - 1) buf[n++] = *p;
    }
    buf[n] = 0;
    while (*p == u' ') ++p;
    return p;
}
}  // namespace

bool commandWord(const char16_t *command, int32_t n, char16_t *buf, int32_t capacity) {
    if (n < 0 || !buf || capacity < 1) return false;
    if (!command) command = u"";
    const char16_t *p = command;
    for (int32_t i = 0;; ++i) {
        p = readWord(p, buf, capacity);
        if (i == n) return true;
        if (!*p) return false;
    }
}

}  // namespace mx
