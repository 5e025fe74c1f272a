// A small SMTP server for the mail tests: it listens on a free port of the
// loopback interface, speaks the SMTP dialogue (greeting, EHLO/HELO, MAIL,
// RCPT, DATA with dot-unstuffing, RSET, NOOP, QUIT) and keeps every mail it
// receives. Started and stopped by the test that needs it; builds with BSD
// sockets and with Winsock.
#pragma once
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

struct SinkMail {
    std::string from;                 // MAIL FROM address
    std::vector<std::string> rcpts;   // RCPT TO addresses, in order
    std::string data;                 // the message text, CR LF line ends
};

class SmtpSink {
public:
    // Starts listening; port() tells where. Recipients in refuse get 550.
    explicit SmtpSink(std::set<std::string> refuse = {});
    ~SmtpSink();  // stops listening and waits for the server thread
    int port() const { return port_; }
    // The mails received so far.
    std::vector<SinkMail> mails();

private:
    void serve();
    void session(long long client);
    std::set<std::string> refuse_;
    long long listener_ = -1;
    int port_ = 0;
    std::thread thread_;
    std::mutex lock_;
    std::vector<SinkMail> mails_;
};

// Decoding helpers for checking what arrived.
std::string sinkBase64Decode(const std::string &text);
// The value of header name in a message (continuation lines joined), "" if none.
std::string sinkHeader(const std::string &message, const std::string &name);
// A header value with its UTF-8 encoded words decoded.
std::string sinkDecodeWords(const std::string &value);
