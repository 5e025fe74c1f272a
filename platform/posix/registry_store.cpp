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

// The folded path with the separator after it: the start of every subkey's
// folded path (the root's subkeys are all other keys).
std::u16string subkeyPrefix(const std::u16string &folded) { return folded.empty() ? folded : folded + u'\\'; }

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
            store.list({canonical(unescape(line.substr(1, line.size() - 2))), {}});
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
        out.append("[").append(escape(k.path)).append("]\n");
        for (const RegValue &v : k.values) {
            out.append(v.isDword ? "d " : "s ").append(escape(v.name)).append("=");
            out.append(v.isDword ? std::to_string(v.dword) : escape(v.text)).append("\n");
        }
    }
    return out;
}

void RegistryStore::list(RegKey key) {
    byPath_.emplace(caseFoldName(key.path), keys.size());
    keys.push_back(std::move(key));
}

void RegistryStore::reindex() {
    byPath_.clear();
    for (size_t i = 0; i < keys.size(); ++i) byPath_.emplace(caseFoldName(keys[i].path), i);
}

RegKey *RegistryStore::find(const std::u16string &path) {
    auto it = byPath_.find(caseFoldName(canonical(path)));
    return it == byPath_.end() ? nullptr : &keys[it->second];
}

RegKey &RegistryStore::create(const std::u16string &path) {
    std::u16string c = canonical(path);
    if (RegKey *k = find(c)) return *k;
    list({c, {}});
    return keys.back();
}

RegValue *RegistryStore::findValue(RegKey &key, const std::u16string &name) {
    for (RegValue &v : key.values)
        if (caseEqualNames(v.name, name)) return &v;
    return nullptr;
}

bool RegistryStore::hasSubkeys(const std::u16string &path) const {
    std::u16string prefix = subkeyPrefix(caseFoldName(canonical(path)));
    auto it = byPath_.upper_bound(prefix);
    if (prefix.empty()) return it != byPath_.end();
    return it != byPath_.end() && it->first.compare(0, prefix.size(), prefix) == 0;
}

bool RegistryStore::removeKey(const std::u16string &path) {
    std::u16string c = canonical(path);
    RegKey *k = c.empty() || hasSubkeys(c) ? nullptr : find(c);
    if (!k) return false;
    std::u16string folded = caseFoldName(c);
    // Equal paths listed twice (a file written by hand) go together.
    std::erase_if(keys, [&](const RegKey &key) { return caseFoldName(key.path) == folded; });
    reindex();
    size_t cut = c.rfind(u'\\');
    std::u16string parent = cut == std::u16string::npos ? u"" : c.substr(0, cut);
    if (!parent.empty() && !find(parent) && !hasSubkeys(parent)) list({parent, {}});
    return true;
}

}  // namespace mx
