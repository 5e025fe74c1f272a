#include <cstdlib>
#include <string>
#include <vector>

#include "base/u16.h"
#include "base/u16_find.h"
#include "helperlib/kelvane_strings.h"
#include "platform/casemap.h"
#include "platform/platform.h"
#include "base/heap.h"

namespace mx {

namespace {

// A terminated text of its own, with the escapes read unless literal. The
// unescaped text is never longer than the written one.
struct Pattern {
    char16_t *s = nullptr;
    int32_t len = 0;
    ~Pattern() { std::free(s); }

    bool make(const char16_t *text, bool literal) {
        int32_t n = u16Len(text);
        s = static_cast<char16_t *>(heapMalloc(sizeof(char16_t) * size_t(n + 1)));
        if (!s) return false;
        for (int32_t i = 0; i < n; ++i) {
            char16_t c = text[i];
            if (!literal && c == u'\\' && i + 1 < n) {
                char16_t e = text[i + 1];
                char16_t mapped = e == u't' ? u'\t' : e == u'n' ? u'\n' : e == u'r' ? u'\r' : e == u'\\' ? u'\\' : 0;
                if (mapped) c = mapped, ++i;
            }
            s[len++] = c;
        }
        s[len] = 0;
        return true;
    }
};

bool wordUnit(char16_t c) { return c == u'_' || mxp_IsAlphaNumeric(c); }

// Marks where find occurs in the text, in one linear pass; with
// kReplaceIgnoreCase both are compared in lower case.
void markMatches(const char16_t *text, int32_t len, const Pattern &find, int32_t mode,
                 std::vector<bool> &starts) {
    if (!(mode & kReplaceIgnoreCase)) {
        U16Finder(find.s, find.len).markAll(text, len, starts);
        return;
    }
    std::u16string a(text, size_t(len)), b(find.s, size_t(find.len));
    for (char16_t &c : a) c = mxp_CharLower(c);
    for (char16_t &c : b) c = mxp_CharLower(c);
    U16Finder(b.data(), find.len).markAll(a.data(), len, starts);
}

bool matchAt(const std::vector<bool> &starts, const char16_t *text, int32_t len, int32_t at,
             const Pattern &find, int32_t mode) {
    if (!starts[size_t(at)]) return false;
    if (!(mode & kReplaceWholeWords)) return true;
    bool before = at > 0 && wordUnit(text[at - 1]);
    bool after = at + find.len < len && wordUnit(text[at + find.len]);
    return !before && !after;
}

}  // namespace

int32_t Kelvane_ReplaceStringW(char16_t *text, int32_t capacity, const char16_t *find,
                               const char16_t *replace, int32_t mode) {
    if (!text || capacity < 1) return -1;
    Pattern f, r;
    if (!f.make(find, mode & kReplaceLiteral) || !r.make(replace, mode & kReplaceLiteral)) return -1;
    if (f.len == 0) return 0;
    int32_t len = 0;
    while (len < capacity && text[len]) ++len;
    // Before the output block: the marks may run out of memory (thrown).
    std::vector<bool> starts;
    markMatches(text, len, f, mode, starts);
    auto *out = static_cast<char16_t *>(heapMalloc(sizeof(char16_t) * size_t(capacity)));
    if (!out) return -1;
    int32_t n = 0, count = 0;
    bool cut = false;
    auto put = [&](char16_t c) {
        if (n < capacity - 1) out[n++] = c;
        else cut = true;
    };
    for (int32_t i = 0; i < len;) {
        if ((count == 0 || (mode & kReplaceAll)) && matchAt(starts, text, len, i, f, mode)) {
            for (int32_t k = 0; k < r.len; ++k) put(r.s[k]);
            i += f.len;
            ++count;
        } else {
            put(text[i++]);
        }
    }
    if (cut && !(mode & kReplaceCutToFit)) {
        std::free(out);
        return -1;
    }
    for (int32_t i = 0; i < n; ++i) text[i] = out[i];
    text[n] = 0;
    std::free(out);
    return count;
}

}  // namespace mx
