// The C library's Unicode tables (the C.UTF-8 locale) for letter and case
// questions, without touching the process's global locale.
#pragma once
#include <locale.h>

namespace mx {

// The locale, made once; absent (locale_t(0)) when the C library has none.
inline locale_t unicodeLocale() {
    static locale_t loc = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t(0));
    return loc;
}

}  // namespace mx
