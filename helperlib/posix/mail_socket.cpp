// SMTP connections natively: BSD sockets.
#include "helperlib/mail_socket.h"

#include <netdb.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace mx {

struct MailSocket {
    int fd;
};

namespace {
constexpr int kWaitSeconds = 30;
}

MailSocket *mailConnect(const std::string &host, int32_t port) {
    addrinfo hints{}, *found = nullptr;
    hints.ai_socktype = SOCK_STREAM;
    if (getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0) return nullptr;
    int fd = -1;
    for (addrinfo *a = found; a && fd < 0; a = a->ai_next) {
        fd = socket(a->ai_family, a->ai_socktype, a->ai_protocol);
        if (fd < 0) continue;
        timeval tv{kWaitSeconds, 0};
        setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
        setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv);
        if (connect(fd, a->ai_addr, a->ai_addrlen) != 0) close(fd), fd = -1;
    }
    freeaddrinfo(found);
    return fd < 0 ? nullptr : new MailSocket{fd};
}

bool mailWrite(MailSocket *s, const std::string &bytes) {
    size_t done = 0;
    while (done < bytes.size()) {
        ssize_t n = send(s->fd, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
        if (n <= 0) return false;
        done += size_t(n);
    }
    return true;
}

int32_t mailRecv(MailSocket *s, char *buf, int32_t size) { return int32_t(recv(s->fd, buf, size_t(size), 0)); }

void mailClose(MailSocket *s) {
    if (!s) return;
    close(s->fd);
    delete s;
}

}  // namespace mx
