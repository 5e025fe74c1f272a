// The desktop functions natively: title patterns, the answers of a machine
// without a desktop, the environment, real processes, SendMail end to end
// against a real SMTP server on a local port (started and stopped by each
// test; servers that hang up or speak no SMTP are refused) and OpenBrowser
// with a handler of the test's own in front of PATH.
#include <gtest/gtest.h>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "../mail/smtp_sink.h"
#include "desktop/command_words.h"
#include "desktop/title_pattern.h"
#include "helperlib/kelvane_mail.h"
#include "helperlib/mail_message.h"
#include "macro_harness.h"

namespace fs = std::filesystem;
using namespace mx;

namespace {
MacroRun run(const std::string &text) { return runMemory(u16(text)); }
}  // namespace

TEST(DesktopTitles, ExactTitlesAndPrefixPatterns) {
    EXPECT_TRUE(dskTitleMatches(u"Editor - a.txt", u"Editor - ?*"));
    EXPECT_FALSE(dskTitleMatches(u"Editor", u"Editor - ?*"));
    EXPECT_TRUE(dskTitleMatches(u"Editor", u"Editor"));
    EXPECT_FALSE(dskTitleMatches(u"Editor - a.txt", u"Editor"));  // exact unless "?*"
    EXPECT_FALSE(dskTitleMatches(u"Editor", u"editor"));          // case counts
    EXPECT_FALSE(dskTitleMatches(u"Edit", u"Editor"));
    // "?*" alone matches every title, the empty one too; text after it is ignored.
    EXPECT_TRUE(dskTitleMatches(u"", u"?*"));
    EXPECT_TRUE(dskTitleMatches(u"Editor - a.txt", u"Editor?*never looked at"));
    // "?" or "*" alone are ordinary characters.
    EXPECT_FALSE(dskTitleMatches(u"Editor x", u"Editor ?"));
    EXPECT_TRUE(dskTitleMatches(u"Editor ?", u"Editor ?"));
    EXPECT_TRUE(dskTitleMatches(u"", u""));
    EXPECT_FALSE(dskTitleMatches(u"x", u""));
}

TEST(DesktopNative, WithoutADesktopTheClipboardCannotBeOpened) {
    MacroRun r = run("char t[20]; t = \"keep\"; Print(WriteClipboard(\"x\", 0)); Print(ReadClipboard(t, 0)); Print(t);");
    EXPECT_EQ(r.output, "1\n1\nkeep\n");
}

TEST(DesktopNative, EnvironmentVariablesAreReadWithinTheCapacity) {
    setenv("MX_DESKTOP_TEST", "Stra\xC3\x9F" "e 12", 1);
    unsetenv("MX_DESKTOP_UNSET");
    std::string long100(100, 'N');
    setenv(long100.substr(0, 99).c_str(), "cut name", 1);  // the name is cut to 99
    MacroRun r = run(
        "char v[40]; char small[4]; v = \"keep\";"
        "Print(GetEnvironment(\"MX_DESKTOP_TEST\", v)); Print(v);"
        "Print(GibEnvironment(\"MX_DESKTOP_UNSET\", v)); Print(v);"
        "Print(GetEnvironment(\"MX_DESKTOP_TEST\", small)); Print(small);"
        "Print(GetEnvironment(\"" + long100 + "\", v)); Print(v);");
    EXPECT_EQ(r.output, "0\nStra\xC3\x9F" "e 12\n-1\nStra\xC3\x9F" "e 12\n0\nStr\n0\ncut name\n");
}

TEST(DesktopNative, CommandLinesSplitIntoWordsWithQuotes) {
    EXPECT_EQ(dskCommandWords(u"  prog  a\t\"b c\" d\\\"e \"\" "),
              (std::vector<std::string>{"prog", "a", "b c", "d\"e", ""}));
    EXPECT_TRUE(dskCommandWords(u"").empty());
    EXPECT_TRUE(dskCommandWords(u" \t ").empty());
    EXPECT_EQ(dskCommandWords(u"x\"y z\"w"), (std::vector<std::string>{"xy zw"}));
}

TEST(DesktopNative, ExecuteProgramModalWaitsAndReportsTheExitCode) {
    MacroRun r = run(
        "int rc; char cmd[4100]; int i; rc = -7;"
        "Print(ExecuteProgramModal(\"sh -c \\\"exit 3\\\"\", 0, rc)); Print(rc); rc = -7;"
        "Print(ExecuteProgramModal(\"/no/such/program x\", 1, rc)); Print(rc);"
        "Print(ExecuteProgramModal(\"\", 1, rc)); Print(rc);"
        "Print(ExecuteProgramModal(\"sh -c \\\"kill -9 $$\\\"\", 1, rc)); Print(rc);"
        "cmd = \"true \"; i = 0;"
        "while (i < 400) begin StrCat(cmd, \"aaaaaaaaaa\"); i = i + 1; end "
        "Print(StrLen(cmd)); Print(ExecuteProgramModal(cmd, 1, rc)); Print(rc);");
    EXPECT_EQ(r.output, "0\n3\n2\n-7\n2\n-7\n0\n137\n4005\n0\n0\n");
}

TEST(DesktopNative, CreateProcessStartsWithoutWaitingAndLeavesNoChild) {
    std::string dir = scratchDir();
    std::string marker = dir + "/started";
    MacroRun r = run("Print(CreateProcess(\"sh -c \\\"sleep 1; echo $0 > " + marker +
                     "\\\" ran\", 1, 0)); Print(CreateProcess(\"/no/such/program\", 1, 0));"
                     "Print(CreateProcess(\"\", 1, 0)); Print(ExecuteProgram(\"/no/such/program\", 0));");
    EXPECT_EQ(r.output, "0\n-1\n-1\n0\n");
    EXPECT_FALSE(fs::exists(marker));  // not waited for
    for (int i = 0; i < 200 && readFile(marker).empty(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(readFile(marker), "ran\n");
    // The started program was handed on, so this process has no child left.
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    fs::remove_all(dir);
}

namespace {

struct Mail : ::testing::Test {
    std::string dir = scratchDir();
    void useServer(int port) { setenv("MORVIX_SMTP", ("127.0.0.1:" + std::to_string(port)).c_str(), 1); }
    void TearDown() override {
        unsetenv("MORVIX_SMTP");
        fs::remove_all(dir);
    }
};

// The decoded body of the MIME part whose headers contain marker.
std::string partBody(const std::string &message, const std::string &marker) {
    size_t at = message.find(marker);
    if (at == std::string::npos) return "<no part>";
    size_t start = message.find("\r\n\r\n", at) + 4;
    size_t end = message.find("\r\n--", start);
    return sinkBase64Decode(message.substr(start, end - start));
}

}  // namespace

TEST_F(Mail, AMailArrivesWithEveryRecipientHeadersSubjectTextAndAttachments) {
    SmtpSink sink;
    useServer(sink.port());
    std::string binary("\x00\x01\xFF\r\n.\xFE", 7);
    for (int i = 0; i < 300; ++i) binary += char(i);
    writeFile(dir + "/data.bin", binary);
    writeFile(dir + "/notes.txt", ".leading dot\n");
    MacroRun r = runMemory(u16(
        "Print(SendMail(\"Me <me@example.org>\", \"a@example.org; b@example.org\", \"c@example.org\","
        " \"hidden@example.org\", \"Gr\xC3\xBC\xC3\x9F" "e \xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82 "
        "\xE6\x97\xA5\xE6\x9C\xAC \xE2\x80\x94 a subject long enough to need two encoded words\","
        " \"Line 1\\n.Line 2\", \"" + dir + "/data.bin;" + dir + "/notes.txt\", 0));"));
    EXPECT_EQ(r.output, "0\n");
    std::vector<SinkMail> mails = sink.mails();
    ASSERT_EQ(mails.size(), 1u);
    const SinkMail &m = mails[0];
    EXPECT_EQ(m.from, "me@example.org");
    EXPECT_EQ(m.rcpts, (std::vector<std::string>{"a@example.org", "b@example.org", "c@example.org",
                                                 "hidden@example.org"}));
    EXPECT_EQ(sinkHeader(m.data, "From"), "Me <me@example.org>");
    EXPECT_EQ(sinkHeader(m.data, "To"), "a@example.org, b@example.org");
    EXPECT_EQ(sinkHeader(m.data, "Cc"), "c@example.org");
    EXPECT_EQ(m.data.find("hidden@"), std::string::npos);  // Bcc only in the envelope
    EXPECT_EQ(sinkDecodeWords(sinkHeader(m.data, "Subject")),
              "Gr\xC3\xBC\xC3\x9F" "e \xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82 \xE6\x97\xA5\xE6\x9C\xAC "
              "\xE2\x80\x94 a subject long enough to need two encoded words");
    EXPECT_NE(sinkHeader(m.data, "Subject").find("?= =?UTF-8?B?"), std::string::npos);
    EXPECT_EQ(sinkHeader(m.data, "MIME-Version"), "1.0");
    EXPECT_EQ(partBody(m.data, "text/plain"), "Line 1\r\n.Line 2");
    EXPECT_EQ(partBody(m.data, "filename=\"data.bin\""), binary);
    EXPECT_EQ(partBody(m.data, "filename=\"notes.txt\""), ".leading dot\n");
}

TEST_F(Mail, ProblemsAnswerTheirOwnResultAndSendNothing) {
    SmtpSink sink({"nobody@example.org"});
    useServer(sink.port());
    EXPECT_EQ(mx::Kelvane_SendMailW(u"me@x", u"", u" ; ", u"", u"s", u"t", u"", 0), mx::kMailBadAddress);
    EXPECT_EQ(mx::Kelvane_SendMailW(u"", u"a@x", u"", u"", u"s", u"t", u"", 0), mx::kMailBadAddress);
    EXPECT_EQ(mx::Kelvane_SendMailW(u"me@x", u"a@x\r\nRCPT TO:<evil@x>", u"", u"", u"s", u"t", u"", 0),
              mx::kMailBadAddress);
    EXPECT_EQ(mx::Kelvane_SendMailW(u"me@x", u"a@x", u"", u"", u"s", u"t", u"/no/such/file", 0), mx::kMailNoFile);
    EXPECT_EQ(mx::Kelvane_SendMailW(u"me@x", u"a@x", u"", u"nobody@example.org", u"s", u"t", u"", 0),
              mx::kMailRefused);
    EXPECT_TRUE(sink.mails().empty());
    unsetenv("MORVIX_SMTP");
    EXPECT_EQ(mx::Kelvane_SendMailW(u"me@x", u"a@x", u"", u"", u"s", u"t", u"", 0), mx::kMailNoServer);
    int closedPort;
    {
        SmtpSink gone;
        closedPort = gone.port();
    }
    useServer(closedPort);
    EXPECT_EQ(mx::Kelvane_SendMailW(u"me@x", u"a@x", u"", u"", u"s", u"t", u"", 0), mx::kMailNoConnection);
}

TEST(MailText, HeaderTextsStayPlainOnlyWhenPrintableAscii) {
    EXPECT_EQ(mx::mailHeaderText("Plain subject"), "Plain subject");
    EXPECT_EQ(mx::mailHeaderText("\xC3\xA4"), "=?UTF-8?B?w6Q=?=");
    EXPECT_EQ(mx::mailHeaderText("tab\there"), "=?UTF-8?B?dGFiCWhlcmU=?=");
    // A long text is cut between characters: every word decodes alone.
    std::string euros;
    for (int i = 0; i < 40; ++i) euros += "\xE2\x82\xAC";
    std::string encoded = mx::mailHeaderText(euros);
    size_t words = 0;
    for (size_t at = encoded.find("=?UTF-8?B?"); at != std::string::npos; at = encoded.find("=?UTF-8?B?", at + 1)) {
        size_t end = encoded.find("?=", at + 10);
        EXPECT_EQ(sinkBase64Decode(encoded.substr(at + 10, end - at - 10)).size() % 3, 0u);
        ++words;
    }
    EXPECT_EQ(words, 3u);  // 120 bytes in words of at most 45
    EXPECT_EQ(sinkDecodeWords(encoded), euros);
}

TEST_F(Mail, OpenBrowserHandsTheUrlToTheDesktopHandler) {
    std::string bin = dir + "/bin", out = dir + "/opened";
    fs::create_directories(bin);
    writeFile(bin + "/xdg-open", "#!/bin/sh\nprintf '%s' \"$1\" > " + out + ".tmp && mv " + out + ".tmp " + out + "\n");
    fs::permissions(bin + "/xdg-open", fs::perms::owner_all);
    std::string path = std::getenv("PATH");
    setenv("PATH", (bin + ":" + path).c_str(), 1);
    MacroRun r = runMemory(u16("Print(OpenBrowser(\"https://example.org/a?b=c d\", 7)); Print(OpenBrowser(\"\", 0));"));
    for (int i = 0; i < 200 && readFile(out).empty(); ++i) usleep(50000);
    setenv("PATH", path.c_str(), 1);
    EXPECT_EQ(r.output, "0\n-1\n");
    EXPECT_EQ(readFile(out), "https://example.org/a?b=c d");
    // Without any handler on PATH the call fails.
    setenv("PATH", bin.c_str(), 1);
    fs::remove(bin + "/xdg-open");
    EXPECT_EQ(mx::Kelvane_RunStandardBrowserW(u"https://example.org", 0), -1);
    setenv("PATH", path.c_str(), 1);
}

// A listener that answers every connection with a fixed text and hangs up.
struct RudeServer {
    int fd = socket(AF_INET, SOCK_STREAM, 0);
    int port = 0;
    std::thread thread;
    explicit RudeServer(std::string greeting) {
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        bind(fd, reinterpret_cast<sockaddr *>(&a), sizeof a);
        listen(fd, 4);
        socklen_t len = sizeof a;
        getsockname(fd, reinterpret_cast<sockaddr *>(&a), &len);
        port = ntohs(a.sin_port);
        thread = std::thread([this, greeting] {
            for (int c; (c = accept(fd, nullptr, nullptr)) >= 0; close(c))
                if (!greeting.empty()) send(c, greeting.data(), greeting.size(), MSG_NOSIGNAL);
        });
    }
    ~RudeServer() {
        shutdown(fd, SHUT_RDWR);
        close(fd);
        thread.join();
    }
};

TEST_F(Mail, AServerThatHangsUpRefusesOrIsNoMailServerGivesRefused) {
    for (const char *greeting : {"", "554 go away\r\n", "HTTP/1.0 400 Bad Request\r\n\r\n", "22"}) {
        RudeServer server(greeting);
        useServer(server.port);
        EXPECT_EQ(mx::Kelvane_SendMailW(u"me@x", u"a@x", u"", u"", u"s", u"t", u"", 0), mx::kMailRefused) << greeting;
    }
}
