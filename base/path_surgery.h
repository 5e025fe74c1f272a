// File name surgery: the cutting rules of StripExtension, StripPath and
// StripFilename (shared with the helper library's 8-bit forms) and the
// joining of AssembleFilename.
#pragma once
#include <cstdint>

namespace mx {

// The length of a terminated text.
template <class C>
int32_t psLength(const C *s) {
    int32_t n = 0;
    while (s[n]) ++n;
    return n;
}

// True for a backslash or a slash.
template <class C>
bool psIsSeparator(C c) {
    return c == C('\\') || c == C('/');
}

// Cuts the text at its last dot (which may lie in a directory name); a text
// without a dot stays. Returns the new length.
template <class C>
int32_t psStripExtension(C *s) {
    int32_t n = psLength(s);
    for (int32_t i = n - 1; i >= 0; --i)
        if (s[i] == C('.')) return s[i] = 0, i;
    return n;
}

// Keeps the part after the last backslash, slash or colon. Returns the new length.
template <class C>
int32_t psStripPath(C *s) {
    int32_t n = psLength(s), start = 0;
    for (int32_t i = 0; i < n; ++i)
        if (psIsSeparator(s[i]) || s[i] == C(':')) start = i + 1;
    for (int32_t i = start; i <= n; ++i) s[i - start] = s[i];
    return n - start;
}

// Erases from the end up to the last backslash or slash, which goes too
// unless it is the first character or follows a colon; a colon met first
// stays. A text without separator or colon becomes empty. Returns the new length.
template <class C>
int32_t psStripFilename(C *s) {
    int32_t n = psLength(s);
    while (n > 0 && s[n - 1] != C(':') && !psIsSeparator(s[n - 1])) --n;
    if (n > 1 && psIsSeparator(s[n - 1]) && s[n - 2] != C(':')) --n;
    s[n] = 0;
    return n;
}

// Dest = Path, Name and Ext joined (a backslash after a non-empty Path that
// does not end in a separator, one dot before Ext whose own leading dot is dropped), cut
// to capacity and terminated. Returns 0, or -1 (Dest untouched) when the
// parts leave less than 3 of the 256-character budget.
int32_t psAssembleFilename(char16_t *dest, int32_t capacity, const char16_t *path, const char16_t *name,
                           const char16_t *ext);

// Apply the three cutting rules to a text within its capacity: first the
// last unit of the capacity becomes a terminator. Return 0.
int32_t psStripExtensionIn(char16_t *text, int32_t capacity);
int32_t psStripPathIn(char16_t *text, int32_t capacity);
int32_t psStripFilenameIn(char16_t *text, int32_t capacity);

// True when Windows would take path for a device instead of a file: a path
// in the device namespace ("\\\\.\\...") or a last name that is CON, PRN, AUX,
// NUL, COM1 to COM9, LPT1 to LPT9, CONIN$ or CONOUT$ in any case, also with
// an extension or trailing dots and blanks ("con.txt", "NUL.", "Com1 .log").
// Absent is no device. No side effects.
bool psNamesDevice(const char16_t *path);

}  // namespace mx
