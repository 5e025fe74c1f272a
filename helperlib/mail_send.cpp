// Sending a mail over SMTP: settings, attachments, the SMTP dialogue.
#include <cstdlib>
#include <ctime>

#include "base/utf8.h"
#include "helperlib/kelvane_mail.h"
#include "helperlib/kelvane_registry.h"
#include "helperlib/mail_message.h"
#include "helperlib/mail_socket.h"
#include "platform/files.h"

namespace mx {

namespace {

struct Server {
    std::string host;
    int32_t port = 25;
};

// MORVIX_SMTP ("host" or "host:port") first, then the user's registry.
Server mailServer() {
    Server s;
    if (const char *env = std::getenv("MORVIX_SMTP"); env && *env) {
        std::string v = env;
        size_t colon = v.rfind(':');
        s.host = v.substr(0, colon);
        if (colon != std::string::npos) s.port = std::atoi(v.c_str() + colon + 1);
        return s;
    }
    const char16_t *key = u"Software\\Kelvane Software\\Mail";
    char16_t host[256];
    Kelvane_ReadStringFromRegistryW(RegRoot::kCurrentUser, key, 0, 0, u"Server", u"", host, 256);
    s.host = toUtf8(host);
    s.port = Kelvane_ReadLongFromRegistryW(RegRoot::kCurrentUser, key, 0, 0, u"Port", 25);
    return s;
}

// The address inside "Name <address>", or the whole text.
std::string envelopeAddress(const std::string &a) {
    size_t open = a.find('<'), close = a.rfind('>');
    return open != std::string::npos && close != std::string::npos && close > open
               ? a.substr(open + 1, close - open - 1)
               : a;
}

// An address that would break the dialogue or the headers.
bool unsafe(const std::string &a) { return a.find_first_of("\r\n") != std::string::npos; }

bool readFile(const std::u16string &path, std::string *bytes) {
    OpenError why;
    MxpFile *f = mxp_FileOpen(path.c_str(), u"rb", Share::kDenyNone, &why);
    if (!f) return false;
    char buf[8192];
    int64_t n;
    while ((n = mxp_FileReadBytes(f, buf, sizeof buf)) > 0) bytes->append(buf, size_t(n));
    mxp_FileClose(f);
    return n == 0;
}

std::string fileName(const std::u16string &path) {
    size_t cut = path.find_last_of(u"\\/");
    std::u16string name = cut == std::u16string::npos ? path : path.substr(cut + 1);
    return toUtf8(name.c_str(), int64_t(name.size()));
}

std::string rfcDate(std::time_t now) {
    char buf[64];
    std::strftime(buf, sizeof buf, "%a, %d %b %Y %H:%M:%S +0000", std::gmtime(&now));
    return buf;
}

// Lines that begin with a dot get a second one; the data ends with ".".
std::string dotStuffed(const std::string &text) {
    std::string out;
    bool lineStart = true;
    for (char c : text) {
        if (lineStart && c == '.') out += '.';
        out += c;
        lineStart = c == '\n';
    }
    return out + ".\r\n";
}

// The server side of the dialogue: replies are read line by line, and bytes
// received beyond one reply wait for the next.
struct Smtp {
    MailSocket *s;
    std::string pending;
};

// The code of the server's next reply (its last line decides), 0 when the
// connection failed.
int replyCode(Smtp &c) {
    MailSocket *s = c.s;
    std::string &pending = c.pending, line;
    char buf[1024];
    for (;;) {
        size_t end;
        while ((end = pending.find('\n')) == std::string::npos) {
            if (pending.size() > 65536) return 0;  // no line ends: no mail server
            int32_t n = mailRecv(s, buf, sizeof buf);
            if (n <= 0) return 0;
            pending.append(buf, size_t(n));
        }
        line = pending.substr(0, end);
        pending.erase(0, end + 1);
        if (line.size() < 3) return 0;
        if (line.size() > 3 && line[3] == '-') continue;  // more lines follow
        return std::atoi(line.substr(0, 3).c_str());
    }
}

bool step(Smtp &c, const std::string &command, int expect) {
    if (!mailWrite(c.s, command + "\r\n")) return false;
    int code = replyCode(c);
    return code == expect || (expect == 250 && code == 251);
}

int32_t converse(Smtp &s, const MailMessage &m, const std::vector<std::string> &recipients,
                 const std::string &data) {
    if (replyCode(s) != 220) return kMailRefused;
    if (!step(s, "EHLO localhost", 250) && !step(s, "HELO localhost", 250)) return kMailRefused;
    if (!step(s, "MAIL FROM:<" + envelopeAddress(m.from) + ">", 250)) return kMailRefused;
    for (const std::string &r : recipients)
        if (!step(s, "RCPT TO:<" + envelopeAddress(r) + ">", 250)) return kMailRefused;
    if (!step(s, "DATA", 354)) return kMailRefused;
    if (!mailWrite(s.s, dotStuffed(data)) || replyCode(s) != 250) return kMailRefused;
    step(s, "QUIT", 221);
    return kMailSent;
}

}  // namespace

int32_t Kelvane_SendMailW(const char16_t *sender, const char16_t *receivers, const char16_t *ccs,
                          const char16_t *bccs, const char16_t *subject, const char16_t *text,
                          const char16_t *files, int32_t) {
    MailMessage m;
    std::vector<std::string> from = mailAddresses(sender);
    m.to = mailAddresses(receivers);
    m.cc = mailAddresses(ccs);
    std::vector<std::string> bcc = mailAddresses(bccs);
    std::vector<std::string> recipients = m.to;
    recipients.insert(recipients.end(), m.cc.begin(), m.cc.end());
    recipients.insert(recipients.end(), bcc.begin(), bcc.end());
    if (from.size() != 1 || recipients.empty()) return kMailBadAddress;
    m.from = from[0];
    for (const std::string &a : recipients)
        if (unsafe(a)) return kMailBadAddress;
    if (unsafe(m.from)) return kMailBadAddress;
    m.subject = toUtf8(subject);
    m.body = toUtf8(text);
    for (const std::u16string &path : mailFiles(files)) {
        MailAttachment a{fileName(path), {}};
        if (!readFile(path, &a.bytes)) return kMailNoFile;
        m.attachments.push_back(std::move(a));
    }
    Server server = mailServer();
    if (server.host.empty()) return kMailNoServer;
    std::time_t now = std::time(nullptr);
    std::string data = mailCompose(m, rfcDate(now), "=_morvix_" + std::to_string(now) + "_part");
    MailSocket *s = mailConnect(server.host, server.port);
    if (!s) return kMailNoConnection;
    Smtp smtp{s, {}};
    int32_t result = converse(smtp, m, recipients, data);
    mailClose(s);
    return result;
}

}  // namespace mx
