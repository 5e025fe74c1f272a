// Building a mail: address lists, MIME encodings and the message text as it
// travels over SMTP (CR LF line ends, dot-stuffed lines are the sender's).
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace mx {

// The addresses of a list separated by ';' or ',', blanks around them
// removed, empty entries dropped; UTF-8.
std::vector<std::string> mailAddresses(const char16_t *list);

// The file paths of a list separated by ';', blanks around them removed.
std::vector<std::u16string> mailFiles(const char16_t *list);

// bytes in base64, in lines of 76 characters ended by CR LF.
std::string mailBase64(const std::string &bytes);

// A header value: the text itself when it is printable ASCII, otherwise
// UTF-8 base64 encoded words.
std::string mailHeaderText(const std::string &utf8);

// One attachment: its file name (UTF-8) and its bytes.
struct MailAttachment {
    std::string name;
    std::string bytes;
};

struct MailMessage {
    std::string from;
    std::vector<std::string> to, cc;  // Bcc recipients never appear in the text
    std::string subject;              // UTF-8
    std::string body;                 // UTF-8, line ends LF or CR LF
    std::vector<MailAttachment> attachments;
};

// The whole message with its headers, CR LF line ends, ending with CR LF.
// date is the Date header's value; boundary separates the parts.
std::string mailCompose(const MailMessage &m, const std::string &date, const std::string &boundary);

}  // namespace mx
