#include "builtins/text/search.h"

#include "base/u16.h"
#include "base/u16_find.h"

namespace mx {

namespace {
// Index of the first occurrence of find in s, or -1 (linear in both).
int32_t firstIndex(TextIn s, TextIn find) {
    int32_t n = txtLen(s), m = txtLen(find);
    if (m > n) return -1;
    return U16Finder(find.s, m).find(s.s, n);
}
}  // namespace

int32_t txtStrLen(TextIn s) { return txtLen(s); }

int32_t txtStrCmp(TextIn a, TextIn b) {
    int32_t na = txtLen(a), nb = txtLen(b);
    for (int32_t i = 0; i < na && i < nb; ++i)
        if (a.s[i] != b.s[i]) return a.s[i] < b.s[i] ? -1 : 1;
    return na == nb ? 0 : (na < nb ? -1 : 1);
}

int32_t txtStrStr(TextIn s, TextIn find) { return firstIndex(s, find); }

int32_t txtFindString(TextIn s, TextIn find) { return firstIndex(s, find) + 1; }

int32_t txtStrDelim(char16_t *s, int32_t scap, char16_t *param, int32_t pcap, char16_t delim) {
    if (delim == 0 || !s || scap < 1) return delim == 0 ? -1 : 0;
    int32_t len = txtLen(s, scap);
    int32_t at = 0;
    while (at < len && s[at] != delim) ++at;
    if (at == len) {
        txtCopy(param, pcap, TextIn(s, scap));
        s[0] = 0;
        return 0;
    }
    // param first: when param is s itself it ends before the delimiter.
    txtCopy(param, pcap, TextIn(s, at));
    int32_t rest = len - at - 1;
    txtMove(s, s + at + 1, rest);
    s[rest] = 0;
    return 1;
}

int32_t txtGetSubString(TextIn list, int32_t index, char16_t *res, int32_t rcap) {
    if (!res || rcap < 1) return 0;
    res[0] = 0;  // first: the list may be this very variable
    int32_t len = txtLen(list);
    int32_t field = 0;
    for (int32_t i = 0; i < len && index >= 0;) {
        while (i < len && list.s[i] == u'\t') ++i;
        if (i == len) break;
        int32_t start = i;
        while (i < len && list.s[i] != u'\t') ++i;
        if (field++ == index) {
            txtCopy(res, rcap, TextIn(list.s + start, i - start));
            return 0;
        }
    }
    return 0;
}

int32_t txtIsDigitString(TextIn s) {
    int32_t n = txtLen(s);
    for (int32_t i = 0; i < n; ++i)
        if (s.s[i] < u'0' || s.s[i] > u'9') return 0;
    return 1;
}

int32_t txtIsStringWhite(TextIn s) { return u16IsWhiteText(s.s, txtLen(s)) ? 1 : 0; }

}  // namespace mx
