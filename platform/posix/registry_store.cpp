#include "platform/posix/registry_store.h"

#include <cstdlib>

#include "base/utf8.h"
#include "base/case_rules.h"

namespace mx {

namespace {

constexpr char kHeader[] = "MORVIX-REGISTRY 1";

std::string escape(const std::u16string &s) {
    std::u16string out;
    static const char16_t kHex[] = u"0123456789ABCDEF";
    for (char16_t c : s) {
        if (c == u'%' || c == u'=' || c == u']' || c == u'\r' || c == u'\n')
            out += u'%', out += kHex[c >> 4], out += kHex[c & 15];
        else
            out += c;
    }
    return toUtf8(out.c_str(), int64_t(out.size()));
}

int hexValue(char16_t c) {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    return -1;
}

std::u16string unescape(const std::string &utf8) {
    std::u16string s = fromUtf8(utf8), out;
    for (size_t i = 0; i < s.size(); ++i) {
        int hi = i + 2 < s.size() + 0 && s[i] == u'%' ? hexValue(s[i + 1]) : -1;
        int lo = hi >= 0 ? hexValue(s[i + 2]) : -1;
        if (lo >= 0) out += char16_t(hi * 16 + lo), i += 2;
        else out += s[i];
    }
    return out;
}

// A value line "s name=text" or "d name=decimal"; false for anything else.
bool parseValue(const std::string &line, RegValue *v) {
    size_t eq = line.find('=');
    if (line.size() < 2 || line[1] != ' ' || (line[0] != 's' && line[0] != 'd') || eq == std::string::npos)
        return false;
    v->name = unescape(line.substr(2, eq - 2));
    v->isDword = line[0] == 'd';
    std::string data = line.substr(eq + 1);
    if (v->isDword) v->dword = uint32_t(std::strtoul(data.c_str(), nullptr, 10));
    else v->text = unescape(data);
    return true;
}

bool below(const std::u16string &child, const std::u16string &parent) {
    if (parent.empty()) return !child.empty();
    return child.size() > parent.size() && child[parent.size()] == u'\\' &&
           caseEqualNames(child.substr(0, parent.size()), parent);
}

}  // namespace

std::u16string RegistryStore::canonical(const std::u16string &path) {
    std::u16string out, name;
    for (size_t i = 0; i <= path.size(); ++i) {
        if (i < path.size() && path[i] != u'\\') {
            name += path[i];
            continue;
        }
        if (!name.empty()) out += (out.empty() ? u"" : u"\\") + name;
        name.clear();
    }
    return out;
}

bool RegistryStore::validPath(const std::u16string &path) {
    constexpr size_t kKeyNameLimit = 255;
    size_t run = 0;
    for (char16_t c : path) {
        run = c == u'\\' ? 0 : run + 1;
        if (run > kKeyNameLimit) return false;
    }
    return true;
}

RegistryStore RegistryStore::parse(const std::string &utf8) {
    RegistryStore store;
    size_t start = 0;
    RegKey *current = nullptr;
    while (start < utf8.size()) {
        size_t lf = utf8.find('\n', start);
        std::string line = utf8.substr(start, lf == std::string::npos ? std::string::npos : lf - start);
        start = lf == std::string::npos ? utf8.size() : lf + 1;
        RegValue v;
        if (line.size() >= 2 && line[0] == '[' && line.back() == ']') {
            store.keys.push_back({canonical(unescape(line.substr(1, line.size() - 2))), {}});
            current = &store.keys.back();
        } else if (current && parseValue(line, &v)) {
            current->values.push_back(v);
        }
    }
    return store;
}

std::string RegistryStore::serialize() const {
    std::string out = std::string(kHeader) + "\n";
    for (const RegKey &k : keys) {
        out += "[" + escape(k.path) + "]\n";
        for (const RegValue &v : k.values)
            out += v.isDword ? "d " + escape(v.name) + "=" + std::to_string(v.dword) + "\n"
                             : "s " + escape(v.name) + "=" + escape(v.text) + "\n";
    }
    return out;
}

RegKey *RegistryStore::find(const std::u16string &path) {
    std::u16string c = canonical(path);
    for (RegKey &k : keys)
        if (caseEqualNames(k.path, c)) return &k;
    return nullptr;
}

RegKey &RegistryStore::create(const std::u16string &path) {
    std::u16string c = canonical(path);
    if (RegKey *k = find(c)) return *k;
    size_t cut = c.rfind(u'\\');
    if (!c.empty()) create(cut == std::u16string::npos ? u"" : c.substr(0, cut));
    keys.push_back({c, {}});
    return keys.back();
}

RegValue *RegistryStore::findValue(RegKey &key, const std::u16string &name) {
    for (RegValue &v : key.values)
        if (caseEqualNames(v.name, name)) return &v;
    return nullptr;
}

bool RegistryStore::hasSubkeys(const std::u16string &path) const {
    std::u16string c = canonical(path);
    for (const RegKey &k : keys)
        if (below(k.path, c)) return true;
    return false;
}

bool RegistryStore::removeKey(const std::u16string &path) {
    std::u16string c = canonical(path);
    if (c.empty() || hasSubkeys(c)) return false;
    for (size_t i = 0; i < keys.size(); ++i)
        if (caseEqualNames(keys[i].path, c)) {
            keys.erase(keys.begin() + std::ptrdiff_t(i));
            return true;
        }
    return false;
}

}  // namespace mx
