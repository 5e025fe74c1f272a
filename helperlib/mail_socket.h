// A TCP connection for the SMTP dialogue, with a time limit on every wait so
// a silent server cannot hang the run.
#pragma once
#include <cstdint>
#include <string>

namespace mx {

struct MailSocket;

// Connects to host:port. Absent when the host is unknown or refuses.
MailSocket *mailConnect(const std::string &host, int32_t port);

// Sends all bytes. False when the connection failed.
bool mailWrite(MailSocket *s, const std::string &bytes);

// Receives up to size bytes into buf. Returns their number, 0 or less when
// the connection ended, failed or timed out.
int32_t mailRecv(MailSocket *s, char *buf, int32_t size);

// Closes the connection; absent is harmless.
void mailClose(MailSocket *s);

}  // namespace mx
