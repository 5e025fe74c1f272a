// SendMail under Wine over Winsock, end to end against the test's own SMTP
// server on a local port.
#include <gtest/gtest.h>

#include "../../mail/smtp_sink.h"
#include "test_desktop.h"
#include "win_harness.h"

TEST(WineMail, TheMailArrivesWithBccOnlyInTheEnvelopeAndTheAttachmentIntact) {
    SmtpSink sink;
    std::wstring server = L"MORVIX_SMTP=127.0.0.1:" + std::to_wstring(sink.port());
    _wputenv(server.c_str());
    std::wstring dir = winScratchDir();
    std::string bytes("\x00\x01\x02\xFF\r\n.", 7);
    winWriteFile(dir + L"\\data.bin", bytes);
    std::string out = runIn(testDesktop().frame,
                            "Print(SendMail(\"me@example.org\", \"to@example.org\", \"cc@example.org\", \"bcc@example.org\","
                            " \"\xE6\x97\xA5\xE6\x9C\xAC \xC3\xA4\", \"Hallo\", \"" + macroPath(dir + L"\\data.bin") + "\", 0));"
                            "Print(SendMail(\"me@example.org\", \"to@example.org\", \"\", \"\", \"s\", \"t\", \"C:\\\\missing.bin\", 0));");
    _wputenv(L"MORVIX_SMTP=");
    EXPECT_EQ(out, "0\n-3\n");
    std::vector<SinkMail> mails = sink.mails();
    ASSERT_EQ(mails.size(), 1u);
    EXPECT_EQ(mails[0].rcpts, (std::vector<std::string>{"to@example.org", "cc@example.org", "bcc@example.org"}));
    EXPECT_EQ(mails[0].data.find("bcc@"), std::string::npos);
    EXPECT_EQ(sinkDecodeWords(sinkHeader(mails[0].data, "Subject")), "\xE6\x97\xA5\xE6\x9C\xAC \xC3\xA4");
    size_t part = mails[0].data.find("filename=\"data.bin\"");
    ASSERT_NE(part, std::string::npos);
    size_t start = mails[0].data.find("\r\n\r\n", part) + 4;
    EXPECT_EQ(sinkBase64Decode(mails[0].data.substr(start, mails[0].data.find("\r\n--", start) - start)), bytes);
}
