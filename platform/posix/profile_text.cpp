#include "platform/posix/profile_text.h"

#include "base/case_rules.h"

namespace mx {

namespace {

bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }

std::u16string trim(const std::u16string &s) {
    size_t b = 0, e = s.size();
    while (b < e && isBlank(s[b])) ++b;
    while (e > b && isBlank(s[e - 1])) --e;
    return s.substr(b, e - b);
}

// The name of a section line; false for other lines.
bool sectionName(const std::u16string &line, std::u16string *name) {
    std::u16string t = trim(line);
    if (t.empty() || t[0] != u'[') return false;
    size_t end = t.find(u']');
    *name = trim(t.substr(1, end == std::u16string::npos ? std::u16string::npos : end - 1));
    return true;
}

struct Entry {
    std::u16string name;
    std::u16string value;
    bool hasValue;
};

// An entry line; false for blank and section lines.
bool entryOf(const std::u16string &line, Entry *e) {
    std::u16string ignored;
    if (trim(line).empty() || sectionName(line, &ignored)) return false;
    size_t eq = line.find(u'=');
    e->hasValue = eq != std::u16string::npos;
    e->name = trim(line.substr(0, eq));
    e->value = e->hasValue ? trim(line.substr(eq + 1)) : std::u16string();
    return true;
}

std::u16string unquote(const std::u16string &v) {
    if (v.size() >= 2 && (v[0] == u'"' || v[0] == u'\'') && v.back() == v[0])
        return v.substr(1, v.size() - 2);
    return v;
}

// Lines [begin, end) of the first section with the name; begin is the line
// after the section line (0 for the unnamed section). False when missing.
bool findSection(const std::vector<std::u16string> &lines, const std::u16string &section,
                 size_t *begin, size_t *end) {
    bool inside = section.empty();
    *begin = 0;
    std::u16string name;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (!sectionName(lines[i], &name)) continue;
        if (inside) {
            *end = i;
            return true;
        }
        if (caseEqualNames(name, section)) inside = true, *begin = i + 1;
    }
    *end = lines.size();
    return inside;
}

// The line of an entry with a value in [begin, end), or end.
size_t findEntry(const std::vector<std::u16string> &lines, size_t begin, size_t end,
                 const std::u16string &key) {
    Entry e;
    for (size_t i = begin; i < end; ++i)
        if (entryOf(lines[i], &e) && e.hasValue && caseEqualNames(e.name, key)) return i;
    return end;
}

}  // namespace

namespace {
bool hasAny(const std::u16string &s, const char16_t *chars) { return s.find_first_of(chars) != s.npos; }
bool blankEnds(const std::u16string &s) { return !s.empty() && (isBlank(s.front()) || isBlank(s.back())); }
}  // namespace

bool ProfileText::canHold(const char16_t *section, const char16_t *key, const char16_t *value) {
    std::u16string s = section ? section : u"";
    if (hasAny(s, u"\r\n]") || blankEnds(s)) return false;
    if (key) {
        std::u16string k = key;
        if (hasAny(k, u"\r\n=") || blankEnds(k) || (!k.empty() && k[0] == u'[')) return false;
    }
    return !value || !hasAny(value, u"\r\n");
}

ProfileText ProfileText::parse(const std::u16string &text) {
    ProfileText p;
    size_t start = 0;
    while (start < text.size()) {
        size_t lf = text.find(u'\n', start);
        size_t stop = lf == std::u16string::npos ? text.size() : lf;
        std::u16string line = text.substr(start, stop - start);
        if (!line.empty() && line.back() == u'\r') line.pop_back();
        p.lines.push_back(line);
        start = stop + 1;
    }
    return p;
}

std::u16string ProfileText::serialize() const {
    std::u16string out;
    for (const std::u16string &line : lines) out += line + u"\r\n";
    return out;
}

bool ProfileText::value(const std::u16string &section, const std::u16string &key,
                        std::u16string *out) const {
    size_t begin, end;
    if (!findSection(lines, section, &begin, &end)) return false;
    size_t at = findEntry(lines, begin, end, key);
    Entry e;
    if (at == end || !entryOf(lines[at], &e)) return false;
    *out = unquote(e.value);
    return true;
}

std::vector<std::u16string> ProfileText::sectionNames() const {
    std::vector<std::u16string> names;
    std::u16string name;
    for (const std::u16string &line : lines)
        if (sectionName(line, &name)) names.push_back(name);
    return names;
}

std::vector<std::u16string> ProfileText::entryNames(const std::u16string &section) const {
    std::vector<std::u16string> names;
    size_t begin, end;
    if (!findSection(lines, section, &begin, &end)) return names;
    Entry e;
    for (size_t i = begin; i < end; ++i)
        if (entryOf(lines[i], &e) && e.hasValue && !(e.name.size() && e.name[0] == u';'))
            names.push_back(e.name);
    return names;
}

void ProfileText::set(const std::u16string &section, const std::u16string &key,
                      const std::u16string &value) {
    size_t begin, end;
    std::u16string stored =
        trim(value).empty() ? std::u16string() : value.substr(value.find_first_not_of(u" \t"));
    if (!findSection(lines, section, &begin, &end)) {
        lines.push_back(u"[" + section + u"]");
        lines.push_back(key + u"=" + stored);
        return;
    }
    size_t at = findEntry(lines, begin, end, key);
    Entry e;
    if (at != end && entryOf(lines[at], &e)) {
        lines[at] = e.name + u"=" + stored;
        return;
    }
    while (end > begin && trim(lines[end - 1]).empty()) --end;
    lines.insert(lines.begin() + std::ptrdiff_t(end), key + u"=" + stored);
}

bool ProfileText::removeEntry(const std::u16string &section, const std::u16string &key) {
    size_t begin, end;
    if (!findSection(lines, section, &begin, &end)) return false;
    size_t at = findEntry(lines, begin, end, key);
    if (at == end) return false;
    lines.erase(lines.begin() + std::ptrdiff_t(at));
    return true;
}

bool ProfileText::removeSection(const std::u16string &section) {
    size_t begin, end;
    if (!findSection(lines, section, &begin, &end)) return false;
    size_t first = begin > 0 ? begin - 1 : 0;
    lines.erase(lines.begin() + std::ptrdiff_t(first), lines.begin() + std::ptrdiff_t(end));
    return true;
}

}  // namespace mx
