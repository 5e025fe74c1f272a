#include "helperlib/mail_message.h"

#include "base/utf8.h"

namespace mx {

namespace {

bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }

std::vector<std::u16string> split(const char16_t *list, bool commaToo) {
    std::vector<std::u16string> out;
    std::u16string item;
    auto flush = [&] {
        size_t a = 0, b = item.size();
        while (a < b && isBlank(item[a])) ++a;
        while (b > a && isBlank(item[b - 1])) --b;
        if (b > a) out.push_back(item.substr(a, b - a));
        item.clear();
    };
    for (const char16_t *p = list ? list : u""; *p; ++p) {
        if (*p == u';' || (commaToo && *p == u','))
            flush();
        else
            item += *p;
    }
    flush();
    return out;
}

// The body with every line end as CR LF.
std::string crlf(const std::string &text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\n' || text[i] == '\r')
            out += "\r\n";
        else
            out += text[i];
    }
    return out;
}

}  // namespace

std::vector<std::string> mailAddresses(const char16_t *list) {
    std::vector<std::string> out;
    for (const std::u16string &a : split(list, true)) out.push_back(toUtf8(a.c_str(), int64_t(a.size())));
    return out;
}

std::vector<std::u16string> mailFiles(const char16_t *list) { return split(list, false); }

std::string mailBase64(const std::string &bytes) {
    static const char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    size_t lineLen = 0;
    for (size_t i = 0; i < bytes.size(); i += 3) {
        uint32_t n = uint32_t(static_cast<unsigned char>(bytes[i])) << 16;
        size_t have = bytes.size() - i;
        if (have > 1) n |= uint32_t(static_cast<unsigned char>(bytes[i + 1])) << 8;
        if (have > 2) n |= static_cast<unsigned char>(bytes[i + 2]);
        out += digits[(n >> 18) & 63];
        out += digits[(n >> 12) & 63];
        out += have > 1 ? digits[(n >> 6) & 63] : '=';
        out += have > 2 ? digits[n & 63] : '=';
        if ((lineLen += 4) >= 76) out += "\r\n", lineLen = 0;
    }
    if (lineLen) out += "\r\n";
    return out;
}

std::string mailHeaderText(const std::string &utf8) {
    bool plain = true;
    for (char c : utf8) plain = plain && c >= 32 && c < 127;
    if (plain) return utf8;
    // Encoded words of at most 45 bytes each (60 base64 characters), cut
    // only between UTF-8 sequences so every word decodes on its own.
    std::string out;
    size_t i = 0;
    while (i < utf8.size()) {
        size_t end = i + 45 < utf8.size() ? i + 45 : utf8.size();
        while (end < utf8.size() && end > i && (static_cast<unsigned char>(utf8[end]) & 0xC0) == 0x80) --end;
        std::string word = mailBase64(utf8.substr(i, end - i));
        word.erase(word.find_last_not_of("\r\n") + 1);
        if (!out.empty()) out += "\r\n ";
        out += "=?UTF-8?B?" + word + "?=";
        i = end;
    }
    return out;
}

namespace {

std::string addressHeader(const char *name, const std::vector<std::string> &list) {
    std::string out;
    for (const std::string &a : list) out += (out.empty() ? std::string(name) + ": " : std::string(",\r\n ")) + a;
    return out.empty() ? out : out + "\r\n";
}

const char *kTextPart =
    "Content-Type: text/plain; charset=UTF-8\r\n"
    "Content-Transfer-Encoding: base64\r\n";

}  // namespace

std::string mailCompose(const MailMessage &m, const std::string &date, const std::string &boundary) {
    std::string out = "From: " + m.from + "\r\n";
    out += addressHeader("To", m.to);
    out += addressHeader("Cc", m.cc);
    out += "Subject: " + mailHeaderText(m.subject) + "\r\n";
    out += "Date: " + date + "\r\n";
    out += "MIME-Version: 1.0\r\n";
    std::string text = mailBase64(crlf(m.body));
    if (m.attachments.empty()) return out + kTextPart + "\r\n" + text;
    out += "Content-Type: multipart/mixed; boundary=\"" + boundary + "\"\r\n\r\n";
    out += "--" + boundary + "\r\n" + kTextPart + "\r\n" + text;
    for (const MailAttachment &a : m.attachments) {
        std::string name = mailHeaderText(a.name);
        out += "--" + boundary + "\r\n";
        out += "Content-Type: application/octet-stream; name=\"" + name + "\"\r\n";
        out += "Content-Transfer-Encoding: base64\r\n";
        out += "Content-Disposition: attachment; filename=\"" + name + "\"\r\n\r\n";
        out += mailBase64(a.bytes);
    }
    return out + "--" + boundary + "--\r\n";
}

}  // namespace mx
