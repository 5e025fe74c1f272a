#include "smtp_sink.h"

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
using Sock = SOCKET;
static void closeSock(Sock s) { closesocket(s); }
static void shutdownSock(Sock s) { shutdown(s, SD_BOTH); }
#else
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
using Sock = int;
static void closeSock(Sock s) { close(s); }
static void shutdownSock(Sock s) { shutdown(s, SHUT_RDWR); }
#endif

namespace {

bool sendText(Sock s, const std::string &text) {
    return send(s, text.data(), int(text.size()), 0) == int(text.size());
}

// One line without CR LF from the client; false when it hung up.
bool readLine(Sock s, std::string &pending, std::string *line) {
    for (;;) {
        size_t end = pending.find("\r\n");
        if (end != std::string::npos) {
            *line = pending.substr(0, end);
            pending.erase(0, end + 2);
            return true;
        }
        char buf[4096];
        int n = int(recv(s, buf, sizeof buf, 0));
        if (n <= 0) return false;
        pending.append(buf, size_t(n));
    }
}

std::string upper(std::string s) {
    for (char &c : s) c = char(toupper(static_cast<unsigned char>(c)));
    return s;
}

// The address between < and > of a MAIL or RCPT argument.
std::string angle(const std::string &arg) {
    size_t a = arg.find('<'), b = arg.rfind('>');
    return a == std::string::npos || b == std::string::npos || b < a ? arg : arg.substr(a + 1, b - a - 1);
}

}  // namespace

SmtpSink::SmtpSink(std::set<std::string> refuse) : refuse_(std::move(refuse)) {
#ifdef _WIN32
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
#endif
    Sock l = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    addr.sin_port = 0;  // any free port
    bind(l, reinterpret_cast<sockaddr *>(&addr), sizeof addr);
    listen(l, 4);
    socklen_t len = sizeof addr;
    getsockname(l, reinterpret_cast<sockaddr *>(&addr), &len);
    port_ = ntohs(addr.sin_port);
    listener_ = static_cast<long long>(l);
    thread_ = std::thread([this] { serve(); });
}

SmtpSink::~SmtpSink() {
    shutdownSock(static_cast<Sock>(listener_));
    closeSock(static_cast<Sock>(listener_));
    thread_.join();
}

std::vector<SinkMail> SmtpSink::mails() {
    std::lock_guard<std::mutex> g(lock_);
    return mails_;
}

void SmtpSink::serve() {
    for (;;) {
        Sock c = accept(static_cast<Sock>(listener_), nullptr, nullptr);
#ifdef _WIN32
        if (c == INVALID_SOCKET) return;
#else
        if (c < 0) return;
#endif
        session(static_cast<long long>(c));
        closeSock(c);
    }
}

void SmtpSink::session(long long client) {
    Sock s = static_cast<Sock>(client);
    std::string pending, line;
    SinkMail mail;
    sendText(s, "220 localhost test sink ready\r\n");
    while (readLine(s, pending, &line)) {
        std::string verb = upper(line.substr(0, 4));
        if (verb == "EHLO") {
            sendText(s, "250-localhost\r\n250-8BITMIME\r\n250 SIZE 10000000\r\n");
        } else if (verb == "HELO" || verb == "NOOP") {
            sendText(s, "250 ok\r\n");
        } else if (verb == "RSET") {
            mail = SinkMail{};
            sendText(s, "250 ok\r\n");
        } else if (verb == "MAIL") {
            mail.from = angle(line);
            sendText(s, "250 sender ok\r\n");
        } else if (verb == "RCPT") {
            std::string to = angle(line);
            if (refuse_.count(to)) {
                sendText(s, "550 no such user\r\n");
                continue;
            }
            mail.rcpts.push_back(to);
            sendText(s, "250 recipient ok\r\n");
        } else if (verb == "DATA") {
            if (mail.rcpts.empty()) {
                sendText(s, "503 no recipients\r\n");
                continue;
            }
            sendText(s, "354 end with <CRLF>.<CRLF>\r\n");
            while (readLine(s, pending, &line) && line != ".")
                mail.data += (line.size() > 1 && line[0] == '.' ? line.substr(1) : line) + "\r\n";
            {
                std::lock_guard<std::mutex> g(lock_);
                mails_.push_back(mail);
            }
            mail = SinkMail{};
            sendText(s, "250 queued\r\n");
        } else if (verb == "QUIT") {
            sendText(s, "221 bye\r\n");
            return;
        } else {
            sendText(s, "500 unknown command\r\n");
        }
    }
}

std::string sinkBase64Decode(const std::string &text) {
    std::string out;
    uint32_t acc = 0;
    int bits = 0;
    for (char c : text) {
        int v = c >= 'A' && c <= 'Z' ? c - 'A' : c >= 'a' && c <= 'z' ? c - 'a' + 26
              : c >= '0' && c <= '9' ? c - '0' + 52 : c == '+' ? 62 : c == '/' ? 63 : -1;
        if (v < 0) continue;
        acc = (acc << 6) | uint32_t(v);
        bits += 6;
        if (bits >= 8) {
            bits -= 8;
            out += char((acc >> bits) & 0xFF);
        }
    }
    return out;
}

std::string sinkHeader(const std::string &message, const std::string &name) {
    std::string head = message.substr(0, message.find("\r\n\r\n"));
    std::string key = "\r\n" + name + ": ";
    std::string text = "\r\n" + head;
    size_t at = text.find(key);
    if (at == std::string::npos) return "";
    size_t start = at + key.size(), end = start;
    for (;;) {
        end = text.find("\r\n", end);
        if (end == std::string::npos) end = text.size();
        if (end + 2 < text.size() && (text[end + 2] == ' ' || text[end + 2] == '\t')) {
            end += 2;
            continue;
        }
        break;
    }
    std::string value = text.substr(start, end - start);
    std::string out;
    for (size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\r' && i + 2 < value.size() + 1 && value[i + 1] == '\n') {
            ++i;
            continue;
        }
        out += value[i];
    }
    return out;
}

std::string sinkDecodeWords(const std::string &value) {
    std::string out;
    size_t i = 0;
    while (i < value.size()) {
        size_t a = value.find("=?UTF-8?B?", i);
        if (a == std::string::npos) return out + value.substr(i);
        std::string between = value.substr(i, a - i);
        if (between.find_first_not_of(" \t\r\n") != std::string::npos) out += between;
        size_t b = value.find("?=", a + 10);
        if (b == std::string::npos) return out + value.substr(a);
        out += sinkBase64Decode(value.substr(a + 10, b - a - 10));
        i = b + 2;
    }
    return out;
}
