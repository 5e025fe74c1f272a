// Helper library: reading list files and list-view headers (the formats are
// described in kelvane_lists.h and docs/dialogs.md). No platform windows.
#include <new>

#include "base/byte_order_mark.h"
#include "base/utf8.h"
#include "helperlib/kelvane_lists.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/platform.h"

namespace mx {

namespace {

std::u16string decode(const std::string &bytes) {
    ByteOrderMark mark = bomDetect(bytes);
    if (mark == ByteOrderMark::kUtf16le) return fromUtf16le(bytes, bomLength(mark));
    if (mark == ByteOrderMark::kUtf8) return fromUtf8(bytes.substr(bomLength(mark)));
    if (utf8Valid(bytes)) return fromUtf8(bytes);
    std::u16string out(bytes.size(), u'\0');
    int32_t n = bytes.empty() ? 0
                              : mxp_CodePageToWide(kCodePageWindows1252, bytes.data(), int32_t(bytes.size()),
                                                   out.data(), int32_t(out.size()));
    out.resize(size_t(n));
    return out;
}

// Splits one line at its TABs, dropping other control characters.
ListEntry splitLine(const std::u16string &line) {
    ListEntry e;
    e.cells.emplace_back();
    for (char16_t c : line) {
        if (c == u'\t') e.cells.emplace_back();
        else if (c >= 32) e.cells.back() += c;
    }
    return e;
}

bool blank(const std::u16string &line) {
    for (char16_t c : line)
        if (c > 32) return false;
    return true;
}

}  // namespace

std::u16string ListEntry::hidden() const {
    if (cells.size() < 2) return cells.front();
    std::u16string out = cells[1];
    for (size_t i = 2; i < cells.size(); ++i) out += u'\t' + cells[i];
    return out;
}

std::vector<ListEntry> kelvaneParseList(const std::string &bytes) {
    std::vector<ListEntry> entries;
    std::u16string text = decode(bytes);
    std::u16string line;
    auto finish = [&] {
        if (!blank(line)) entries.push_back(splitLine(line));
        line.clear();
    };
    for (size_t i = 0; i < text.size(); ++i) {
        char16_t c = text[i];
        if (c == u'\r' || c == u'\n') {
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
            finish();
        } else if (line.size() < size_t(kListLineLimit)) {
            line += c;
        }
    }
    finish();
    return entries;
}

bool kelvaneReadListFile(const char16_t *file, WindowHandle owner, std::vector<ListEntry> &entries) {
    entries.clear();
    OpenError why;
    MxpFile *f = file && *file ? mxp_FileOpen(file, u"rb", Share::kDenyNone, &why) : nullptr;
    std::string bytes;
    bool ok = f != nullptr;
    if (f) {
        char buf[65536];
        int64_t n;
        try {
            while ((n = mxp_FileReadBytes(f, buf, sizeof buf)) > 0) bytes.append(buf, size_t(n));
            entries = kelvaneParseList(bytes);
        } catch (const std::bad_alloc &) {
            entries.clear();
            ok = false;
        }
        mxp_FileClose(f);
    }
    if (!ok) {
        std::u16string text = u"Die Datei '" + std::u16string(file ? file : u"") + u"' kann nicht gelesen werden.";
        mxp_MessageBox(owner, text.c_str(), u"Liste", kBoxOk | kBoxIconError);
    }
    return ok;
}

std::vector<ListColumn> kelvaneParseHeader(const char16_t *header) {
    std::vector<ListColumn> columns;
    if (!header || !*header) return columns;
    std::u16string field;
    auto finish = [&] {
        ListColumn c{field, 100};
        size_t colon = field.rfind(u':');
        if (colon != std::u16string::npos) {
            int32_t w = 0;
            bool digits = colon + 1 < field.size();
            for (size_t i = colon + 1; i < field.size() && digits; ++i) {
                if (field[i] < u'0' || field[i] > u'9') digits = false;
                else if (w < 100000) w = w * 10 + (field[i] - u'0');
            }
            if (digits) {
                c.title = field.substr(0, colon);
                c.width = w;
            }
        }
        columns.push_back(c);
        field.clear();
    };
    for (const char16_t *p = header; *p; ++p) {
        if (*p == u'\t') finish();
        else field += *p;
    }
    finish();
    return columns;
}

}  // namespace mx
