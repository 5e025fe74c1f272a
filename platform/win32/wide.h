// The Win32 boundary: the core's UTF-16 char16_t texts are the API's wchar_t
// texts (both are 16-bit UTF-16 on Windows), so crossing it is a cast.
#pragma once
#include <cwchar>

namespace mx {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "wide texts are UTF-16");

inline const wchar_t *wide(const char16_t *s) { return reinterpret_cast<const wchar_t *>(s); }
inline wchar_t *wide(char16_t *s) { return reinterpret_cast<wchar_t *>(s); }
inline const char16_t *narrow(const wchar_t *s) { return reinterpret_cast<const char16_t *>(s); }

// An absent text as the empty one, for the calls that need a text.
inline const wchar_t *wideOrEmpty(const char16_t *s) { return wide(s ? s : u""); }

}  // namespace mx
