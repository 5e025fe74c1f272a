// Helper library: directory scans written to a list file.
#include <string>
#include <vector>

#include "base/utf8.h"
#include "helperlib/kelvane_files.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace mx {

namespace {

using Patterns = std::vector<std::u16string>;

// Patterns separated by ';', blanks around them dropped; empty ones skipped.
Patterns splitPatterns(const char *ansi) {
    Patterns out;
    std::u16string all = mxp_FromAnsi(ansi), one;
    for (size_t i = 0; i <= all.size(); ++i) {
        if (i < all.size() && all[i] != u';') {
            one += all[i];
            continue;
        }
        size_t b = one.find_first_not_of(u' '), e = one.find_last_not_of(u' ');
        if (b != std::u16string::npos) out.push_back(one.substr(b, e - b + 1));
        one.clear();
    }
    return out;
}

// '*' matches any run of characters, '?' any one character.
bool matches(const char16_t *name, const char16_t *pattern) {
    const char16_t *star = nullptr, *resume = nullptr;
    while (*name) {
        if (*pattern == u'*') {
            star = pattern++;
            resume = name;
        } else if (*pattern && (*pattern == u'?' || mxp_NameFold(*pattern) == mxp_NameFold(*name))) {
            ++pattern, ++name;
        } else if (star) {
            pattern = star + 1;
            name = ++resume;
        } else {
            return false;
        }
    }
    while (*pattern == u'*') ++pattern;
    return *pattern == 0;
}

bool matchesAny(const std::u16string &name, const Patterns &patterns) {
    for (const std::u16string &p : patterns)
        if (matches(name.c_str(), p.c_str())) return true;
    return false;
}

std::u16string join(const std::u16string &dir, const std::u16string &name) {
    char16_t last = dir.empty() ? 0 : dir.back();
    bool ends = last == u'/' || last == mxp_PathSeparator() || last == u':';
    return ends ? dir + name : dir + mxp_PathSeparator() + name;
}

struct Scan {
    Patterns include, exclude;
    bool descend = false;
    std::vector<std::u16string> names;

    // The matching files of dir and, when asked, of its subdirectories.
    bool collect(const std::u16string &dir) {
        std::vector<MxpDirEntry> entries;
        if (!mxp_ListDirectory(dir.c_str(), entries)) return false;
        for (const MxpDirEntry &e : entries)
            if (!e.directory && (include.empty() || matchesAny(e.name, include)) &&
                !matchesAny(e.name, exclude))
                names.push_back(join(dir, e.name));
        for (const MxpDirEntry &e : entries)
            if (e.directory && descend) collect(join(dir, e.name));
        return true;
    }
};

bool writeList(const std::u16string &listFile, const std::vector<std::u16string> &names) {
    MxpFile *f = mxp_FileOpen(listFile.c_str(), u"wb", Share::kDenyReadWrite, nullptr);
    if (!f) return false;
    const char *lineEnd = mxp_PathSeparator() == u'\\' ? "\r\n" : "\n";
    bool ok = true;
    for (const std::u16string &n : names) {
        std::string line = toUtf8(n.c_str(), int64_t(n.size())) + lineEnd;
        ok = ok && mxp_FileWriteBytes(f, line.data(), line.size()) == 0;
    }
    ok = mxp_FileFlush(f) == 0 && ok;
    mxp_FileClose(f);
    return ok;
}

}  // namespace

int32_t Kelvane_ScanDirectory(KelvaneScanRecord *scan) {
    if (!scan) return 0;
    KelvaneScanFields &r = scan->fields;
    r.count = 0;
    Scan s;
    s.include = splitPatterns(r.include);
    s.exclude = splitPatterns(r.exclude);
    s.descend = (r.flags & 1) != 0;
    std::u16string start = r.startDirUtf8 ? fromUtf8(r.startDir ? r.startDir : "") : mxp_FromAnsi(r.startDir);
    if (!s.collect(mxp_FullPath(start.c_str()))) return 0;
    if (!writeList(fromUtf8(r.listFile ? r.listFile : ""), s.names)) return 0;
    r.count = int32_t(s.names.size());
    return 1;
}

}  // namespace mx
