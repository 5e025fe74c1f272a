// Profile files on Linux. Files are read as UTF-16LE or UTF-8 when they
// start with that byte-order mark, else as UTF-8 when they are valid UTF-8
// and as ISO-8859-1 otherwise; a rewrite keeps the form it found (new files
// are UTF-8 without a mark). Every change replaces the file atomically.
#include <cstring>

#include "base/u16.h"
#include "base/byte_order_mark.h"
#include "base/utf8.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/posix/profile_text.h"
#include "platform/profile.h"

namespace mx {

namespace {

enum class Form { kUtf8, kUtf8Bom, kUtf16, kLatin1 };

struct ProfileFile {
    ProfileText text;
    Form form = Form::kUtf8;
};

constexpr int32_t kPathCapacity = 4096;

// A name without a directory part lives in the Windows directory's stand-in.
std::u16string resolve(const char16_t *file, bool forWriting) {
    std::u16string name = file;
    if (name.find(u'/') != std::u16string::npos) return name;
    char16_t dir[kPathCapacity];
    mxp_WindowsDirectory(dir, kPathCapacity);
    if (forWriting) {
        std::u16string part;
        for (const char16_t *p = dir; *p; ++p) {
            part += *p;
            if (p[1] == u'/' || !p[1]) mxp_MakeDirectory(part.c_str());
        }
    }
    return std::u16string(dir) + u"/" + name;
}

std::u16string decode(const std::string &bytes, Form *form) {
    ByteOrderMark mark = bomDetect(bytes);
    if (mark == ByteOrderMark::kUtf16le) {
        *form = Form::kUtf16;
        return fromUtf16le(bytes, bomLength(mark));
    }
    if (mark == ByteOrderMark::kUtf8) {
        *form = Form::kUtf8Bom;
        return fromUtf8(bytes.substr(bomLength(mark)));
    }
    *form = utf8Valid(bytes) ? Form::kUtf8 : Form::kLatin1;
    return *form == Form::kUtf8 ? fromUtf8(bytes) : mxp_FromAnsi(bytes.c_str());
}

std::string encode(const std::u16string &text, Form form) {
    switch (form) {
        case Form::kUtf16: {
            std::string out(reinterpret_cast<const char *>(kUtf16leMark), sizeof kUtf16leMark);
            for (char16_t u : text) out += char(u & 0xFF), out += char(u >> 8);
            return out;
        }
        case Form::kUtf8Bom:
            return std::string(reinterpret_cast<const char *>(kUtf8Mark), sizeof kUtf8Mark) +
                   toUtf8(text.c_str(), int64_t(text.size()));
        case Form::kLatin1: return mxp_ToAnsi(text.c_str());
        default: return toUtf8(text.c_str(), int64_t(text.size()));
    }
}

// Reads the file; a missing file reads as empty. False when it exists but
// cannot be read (also while another stream denies reading it).
bool load(const std::u16string &path, ProfileFile *out) {
    OpenError why = OpenError::kNone;
    MxpFile *f = mxp_FileOpen(path.c_str(), u"rb", Share::kDenyWrite, &why);
    if (!f) return why == OpenError::kNotFound && mxp_PathKind(path.c_str()) == PathKind::kMissing;
    // Closed however the reading ends, also when the text outgrows memory.
    struct Closer {
        MxpFile *f;
        ~Closer() { mxp_FileClose(f); }
    } closer{f};
    std::string bytes;
    char chunk[4096];
    int64_t n;
    while ((n = mxp_FileReadBytes(f, chunk, sizeof chunk)) > 0) bytes.append(chunk, size_t(n));
    if (n < 0) return false;
    out->text = ProfileText::parse(decode(bytes, &out->form));
    return true;
}

bool store(const std::u16string &path, const ProfileFile &file) {
    std::string bytes = encode(file.text.serialize(), file.form);
    return mxp_FileReplace(path.c_str(), bytes.data(), bytes.size());
}

// The zero-separated list of names, cut as the profile functions cut it.
int32_t writeList(const std::vector<std::u16string> &names, char16_t *buf, int32_t capacity) {
    std::u16string list;
    for (const std::u16string &n : names) list += n + u'\0';
    list += u'\0';
    if (names.empty()) list += u'\0';
    if (capacity < 1) return 0;
    if (int32_t(list.size()) <= capacity) {
        std::memcpy(buf, list.data(), list.size() * sizeof(char16_t));
        return names.empty() ? 0 : int32_t(list.size()) - 1;
    }
    if (capacity < 2) return buf[0] = 0, 0;
    std::memcpy(buf, list.data(), size_t(capacity) * sizeof(char16_t));
    buf[capacity - 2] = buf[capacity - 1] = 0;
    return capacity - 2;
}

std::u16string trimEnd(const char16_t *s) {
    std::u16string t = s ? s : u"";
    while (!t.empty() && (t.back() == u' ' || t.back() == u'\t')) t.pop_back();
    return t;
}

}  // namespace

int32_t mxp_ProfileRead(const char16_t *file, const char16_t *section, const char16_t *key,
                        const char16_t *def, char16_t *buf, int32_t capacity) {
    if (!buf || capacity < 1) return 0;
    ProfileFile p;
    bool loaded = file && *file && load(resolve(file, false), &p);
    if (!section)
        return writeList(loaded ? p.text.sectionNames() : std::vector<std::u16string>{}, buf, capacity);
    if (!key)
        return writeList(loaded ? p.text.entryNames(section) : std::vector<std::u16string>{}, buf, capacity);
    std::u16string value;
    if (!loaded || !p.text.value(section, key, &value)) value = trimEnd(def);
    return u16Copy(buf, capacity, value.c_str());
}

int32_t mxp_ProfileWrite(const char16_t *file, const char16_t *section, const char16_t *key,
                         const char16_t *value) {
    if (!file || !*file || !section) return 0;
    // Refused rather than written in a form that reads back differently
    // (a line feed in a value would even add entries of its own).
    if (key && value && !ProfileText::canHold(section, key, value)) return 0;
    std::u16string path = resolve(file, value != nullptr && key != nullptr);
    ProfileFile p;
    if (!load(path, &p)) return 0;
    bool changed = true;
    if (!key) changed = p.text.removeSection(section);
    else if (!value) changed = p.text.removeEntry(section, key);
    else p.text.set(section, key, value);
    return !changed || store(path, p) ? 1 : 0;
}

}  // namespace mx
