// Helper library: mail and the standard browser.
//
// Mail goes out over SMTP to the server named by the environment variable
// MORVIX_SMTP ("host" or "host:port"), or else by the current user's
// registry values "Server" (text) and "Port" (32-bit, default 25) under
// "Software\Kelvane Software\Mail". The message is UTF-8 MIME: headers
// From, To, Cc (never Bcc), Subject (encoded words when not ASCII), Date,
// MIME-Version; the text as a base64 text/plain part; each attached file as
// a base64 part of its own.
#pragma once
#include <cstdint>

namespace mx {

// Results of Kelvane_SendMailW.
enum : int32_t {
    kMailSent = 0,
    kMailNoServer = -1,     // no server configured
    kMailBadAddress = -2,   // no sender, no recipient, or a line break in an address
    kMailNoFile = -3,       // an attachment cannot be read
    kMailNoConnection = -4, // the server cannot be reached
    kMailRefused = -5,      // the server refused a step of the dialogue
};

// Sends one mail. Address lists separate addresses with ';' or ','; files
// separates file paths with ';'. flags is reserved (every value sends over
// SMTP). Returns one of the results above.
int32_t Kelvane_SendMailW(const char16_t *sender, const char16_t *receivers, const char16_t *ccs,
                          const char16_t *bccs, const char16_t *subject, const char16_t *text,
                          const char16_t *files, int32_t flags);

// Opens url with the desktop's standard handler (the shell's "open" on
// Windows, xdg-open natively, without waiting). flags is reserved.
// Returns 0, -1 when the url is empty or no handler could be started.
int32_t Kelvane_RunStandardBrowserW(const char16_t *url, int32_t flags);

}  // namespace mx
