// SMTP connections on Windows: Winsock.
#include <winsock2.h>
#include <ws2tcpip.h>

#include "helperlib/mail_socket.h"

namespace mx {

struct MailSocket {
    SOCKET fd;
};

namespace {

constexpr DWORD kWaitMilliseconds = 30000;

bool started() {
    static bool ok = [] {
        WSADATA data;
        return WSAStartup(MAKEWORD(2, 2), &data) == 0;
    }();
    return ok;
}

}  // namespace

MailSocket *mailConnect(const std::string &host, int32_t port) {
    if (!started()) return nullptr;
    addrinfo hints{}, *found = nullptr;
    hints.ai_socktype = SOCK_STREAM;
    if (getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0) return nullptr;
    SOCKET fd = INVALID_SOCKET;
    for (addrinfo *a = found; a && fd == INVALID_SOCKET; a = a->ai_next) {
        fd = socket(a->ai_family, a->ai_socktype, a->ai_protocol);
        if (fd == INVALID_SOCKET) continue;
        DWORD wait = kWaitMilliseconds;
        setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char *>(&wait), sizeof wait);
        setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, reinterpret_cast<const char *>(&wait), sizeof wait);
        if (connect(fd, a->ai_addr, int(a->ai_addrlen)) != 0) closesocket(fd), fd = INVALID_SOCKET;
    }
    freeaddrinfo(found);
    return fd == INVALID_SOCKET ? nullptr : new MailSocket{fd};
}

bool mailWrite(MailSocket *s, const std::string &bytes) {
    size_t done = 0;
    while (done < bytes.size()) {
        int n = send(s->fd, bytes.data() + done, int(bytes.size() - done), 0);
        if (n <= 0) return false;
        done += size_t(n);
    }
    return true;
}

int32_t mailRecv(MailSocket *s, char *buf, int32_t size) { return recv(s->fd, buf, size, 0); }

void mailClose(MailSocket *s) {
    if (!s) return;
    closesocket(s->fd);
    delete s;
}

}  // namespace mx
