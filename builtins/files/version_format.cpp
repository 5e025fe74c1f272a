#include "builtins/files/version_format.h"

#include <cstdio>
#include <string>

#include "base/u16.h"

namespace mx {

namespace {

constexpr int32_t kWidthLimit = 1024;

bool isFlag(char16_t c) { return c == u'-' || c == u'+' || c == u' ' || c == u'#' || c == u'0'; }
bool isLength(char16_t c) {
    return c == u'h' || c == u'l' || c == u'L' || c == u'q' || c == u'j' || c == u'z' || c == u't';
}
bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// Reads a decimal number (clamped) and appends it to directive.
void takeNumber(const char16_t *&p, std::string &directive) {
    int32_t n = 0;
    for (; isDigit(*p); ++p) n = n * 10 + (*p - u'0') > kWidthLimit ? kWidthLimit : n * 10 + (*p - u'0');
    directive += std::to_string(n);
}

// One directive after its "%": appends its text for value (absent: none)
// to out and moves p past it.
void formatDirective(const char16_t *&p, const uint16_t *value, std::u16string &out) {
    std::string directive = "%";
    while (isFlag(*p)) directive += char(*p++);
    while (*p == u'*') ++p;
    if (isDigit(*p)) takeNumber(p, directive);
    if (*p == u'.') {
        directive += '.';
        ++p;
        takeNumber(p, directive);
    }
    while (isLength(*p)) ++p;
    char16_t conv = *p ? *p++ : u'd';
    if (!value) return;
    bool known = conv < 128 && std::string("diuxXoc").find(char(conv)) != std::string::npos;
    directive += known ? char(conv) : 'd';
    char text[2 * kWidthLimit + 64];
    int n = std::snprintf(text, sizeof text, directive.c_str(), int(*value));
    for (int i = 0; i < n && i < int(sizeof text) - 1; ++i)
        out += char16_t(static_cast<unsigned char>(text[i]));
}

}  // namespace

int32_t vfFormat(char16_t *buf, int32_t capacity, const char16_t *pattern, const uint16_t numbers[4]) {
    std::u16string out;
    int32_t used = 0;
    for (const char16_t *p = pattern ? pattern : u""; *p;) {
        if (*p != u'%') {
            out += *p++;
        } else if (p[1] == u'%') {
            out += u'%';
            p += 2;
        } else {
            ++p;
            formatDirective(p, used < 4 ? &numbers[used] : nullptr, out);
            ++used;
        }
    }
    u16Copy(buf, capacity, out.c_str());
    return int32_t(out.size());
}

}  // namespace mx
