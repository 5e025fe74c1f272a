// The DDE client against real servers under Wine: the test server of
// tests/win/ddeserver (started and stopped by each test, with the behaviour
// its switches choose) and Wine's own shell answering "Progman". Every test
// ends by checking that no atom of its names is left in the global atom table.
#include <gtest/gtest.h>

#include <windows.h>
#include <shlobj.h>

#include <deque>

#include "win_harness.h"

namespace {

std::wstring serverExe() { return binDir() + L"\\ddeserver.exe"; }

// One running test server.
struct Server {
    PROCESS_INFORMATION process = {};
    std::wstring log;

    // Waits up to ms for the server to end by itself, then ends it.
    void stop(DWORD ms) {
        if (!process.hProcess) return;
        if (WaitForSingleObject(process.hProcess, ms) != WAIT_OBJECT_0) {
            TerminateProcess(process.hProcess, 1);
            WaitForSingleObject(process.hProcess, 5000);
        }
        CloseHandle(process.hProcess);
        CloseHandle(process.hThread);
        process = {};
    }

    // What it recorded, without its start line.
    std::string received() const {
        std::string text = winReadFile(log);
        size_t eol = text.find('\n');
        return eol == std::string::npos ? text : text.substr(eol + 1);
    }
};

const wchar_t *const kWatchedAtoms[] = {L"MxDdeTest", L"MxTopic", L"MxItem", L"MxOther", L"MxStartTopic"};

class DdeTest : public ::testing::Test {
protected:
    std::wstring dir = winScratchDir();
    std::deque<Server> servers;  // references stay valid as servers are added
    std::deque<bool> atomsBefore;

    void SetUp() override {
        for (const wchar_t *name : kWatchedAtoms) atomsBefore.push_back(GlobalFindAtomW(name) != 0);
    }

    void TearDown() override {
        for (Server &s : servers) s.stop(3000);
        for (size_t i = 0; i < atomsBefore.size(); ++i)
            if (!atomsBefore[i]) EXPECT_EQ(GlobalFindAtomW(kWatchedAtoms[i]), 0) << "atom left: " << i;
    }

    // Starts a server with the given switches and waits until its window exists.
    Server &start(const std::wstring &switches) {
        static int count = 0;
        Server s;
        s.log = dir + L"\\server" + std::to_wstring(servers.size()) + L".log";
        std::wstring event = L"MxDdeReady" + std::to_wstring(GetCurrentProcessId()) + L"_" + std::to_wstring(++count);
        HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, event.c_str());
        std::wstring line = L"\"" + serverExe() + L"\" --log \"" + s.log + L"\" --ready " + event + L" " + switches;
        STARTUPINFOW si = {};
        si.cb = sizeof si;
        EXPECT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &si, &s.process));
        EXPECT_EQ(WaitForSingleObject(ready, 20000), WAIT_OBJECT_0);
        CloseHandle(ready);
        servers.push_back(s);
        return servers.back();
    }

    // Runs statements inside a macro and returns its Print lines.
    std::string run(const std::string &body) { return runIn(nullptr, "int ch; char out[40]; " + body); }
};

const std::string kOpen = "ch = DDEInitiate(\"MxDdeTest\", \"MxTopic\", 0, 0, 0); Print(ch != 0); ";
const std::string kHello = "initiate MxDdeTest MxTopic\n";

// Conversations whose every answer and every server record is known: the
// server's switches, the statements, their Print lines, what the server
// recorded, and how long the server may take to end by itself. "SERVER"
// in the statements stands for the server's window.
TEST_F(DdeTest, ConversationsWithTheTestServer) {
    struct Case {
        const wchar_t *switches;
        std::string body, out, log;
        DWORD wait;
    } cases[] = {
        {L"",
         kOpen + "Print(DDEExecute(ch, \"[Open(\\\"a b\\\")]\", 5000)); Print(DDEPoke(ch, \"MxItem\", \"Hallo Welt\", 5000));"
                 "Print(DDERequest(ch, \"MxItem\", 1, out, 5000)); Print(out); Print(DDETerminate(ch));",
         "1\n0\n0\n0\nABCDEFG\n0\n",
         kHello + "execute 13 [Open(\"a b\")]\npoke MxItem flags=0x0000 format=1 Hallo Welt\n"
                  "request MxItem format=1\nterminate\n", 5000},
        // Addressed to one window; another topic or application: nobody answers.
        {L"",
         "ch = DDEInitiate(\"MxDdeTest\", \"MxTopic\", SERVER, 0, 0); Print(ch != 0); Print(DDETerminate(ch));"
         "Print(DDEInitiate(\"MxDdeTest\", \"MxOther\", 0, 0, 0)); Print(DDEInitiate(\"MxOther\", \"MxTopic\", SERVER, 0, 0));",
         "1\n0\n0\n0\n", kHello + "terminate\n", 5000},
        // Negative acknowledgements fail every transaction.
        {L"--refuse",
         kOpen + "out = \"old\"; Print(DDEExecute(ch, \"[Nothing()]\", 5000)); Print(DDEPoke(ch, \"MxItem\", \"x\", 5000));"
                 "Print(DDERequest(ch, \"MxItem\", 1, out, 5000)); Print(StrLen(out)); Print(DDETerminate(ch));",
         "1\n-1\n-1\n-1\n0\n0\n",
         kHello + "execute 11 [Nothing()]\npoke MxItem flags=0x0000 format=1 x\nrequest MxItem format=1\nterminate\n", 5000},
        // The server ends the conversation while a transaction waits: no
        // more posts, no waits, and the terminate answered only once.
        {L"--quit-on-transaction --stay",
         kOpen + "Print(DDEExecute(ch, \"x\", 1000)); Print(DDEExecute(ch, \"y\", 60000));"
                 "Print(DDERequest(ch, \"MxItem\", 1, out, 60000)); Print(DDETerminate(ch));",
         "1\n-1\n-1\n-1\n0\n", kHello + "execute 1 x\nquit\nterminate\n", 500},
        // Data with the release bit and an acknowledgement request; a
        // device-independent bitmap gives no text and is released.
        {L"--release --ack-request --dib",
         kOpen + "char five[5]; char one[1]; out = \"old\";"
                 "Print(DDERequest(ch, \"MxItem\", 1, five, 5000)); Print(five);"
                 "Print(DDERequest(ch, \"MxItem\", 13, one, 5000)); Print(StrLen(one));"
                 "Print(DDERequest(ch, \"MxItem\", 8, out, 5000)); Print(StrLen(out)); Print(DDETerminate(ch));",
         "1\n0\nABCD\n0\n0\n0\n0\n0\n",
         kHello + "request MxItem format=1\nack 0x8000 MxItem\nrequest MxItem format=13\nack 0x8000 MxItem\n"
                  "request MxItem format=8\ndib\nack 0x8000 MxItem\nterminate\n", 5000},
        // Oversized names (without an atom they must not mean "any") and commands.
        {L"",
         "char big[301]; char cmd[100001]; char one[1]; FillStringRight(big, 300, 'a'); FillStringRight(cmd, 100000, 'c');"
         "Print(DDEInitiate(big, \"MxTopic\", 0, 0, 0)); Print(DDEInitiate(\"MxDdeTest\", big, 0, 0, 0));" + kOpen +
         "Print(DDEExecute(ch, cmd, 10000)); Print(DDEPoke(ch, big, \"x\", 5000)); Print(DDERequest(ch, big, 1, out, 5000));"
         "Print(DDERequest(ch, \"MxItem\", 1, one, 5000)); Print(StrLen(one)); Print(DDETerminate(ch));",
         "0\n0\n1\n0\n-1\n-1\n0\n0\n0\n",
         kHello + "execute 100000 " + std::string(40, 'c') + "\nrequest MxItem format=1\nterminate\n", 5000},
        // A terminated channel is no conversation any more.
        {L"", kOpen + "Print(DDETerminate(ch)); Print(DDEExecute(ch, \"x\", 5000)); Print(DDETerminate(ch));",
         "1\n0\n-1\n0\n", kHello + "terminate\n", 5000},
    };
    for (Case &c : cases) {
        SCOPED_TRACE(c.body.substr(0, 80));
        Server &s = start(c.switches);
        std::string server = num(FindWindowW(L"MxDdeTestServer", nullptr));
        for (size_t at; (at = c.body.find("SERVER")) != std::string::npos;) c.body.replace(at, 6, server);
        EXPECT_EQ(run(c.body), c.out);
        s.stop(c.wait);
        EXPECT_EQ(s.received(), c.log);
    }
}

TEST_F(DdeTest, TimeOutsAndTheUnsignedWait) {
    Server &s = start(L"--late 300");
    // A negative wait is a very long one; a wait of 0 still posts but reads no answer.
    EXPECT_EQ(run(kOpen + "out = \"old\"; Print(DDEExecute(ch, \"first\", -1)); Print(DDEPoke(ch, \"MxItem\", \"late\", 100));"
                          "Print(DDEExecute(ch, \"zero\", 0)); Print(DDERequest(ch, \"MxItem\", 1, out, 0));"
                          "Print(StrLen(out)); Print(DDETerminate(ch));"),
              "1\n0\n-1\n-1\n-1\n0\n0\n");
    s.stop(8000);
    // The item atoms may be gone by the time the server reads them: the
    // library deleted them when it stopped waiting.
    std::string got = s.received();
    EXPECT_EQ(got.rfind(kHello + "execute 5 first\npoke ", 0), 0u) << got;
    EXPECT_NE(got.find("flags=0x0000 format=1 late\nexecute 4 zero\nrequest "), std::string::npos) << got;
}

TEST_F(DdeTest, TwoServersAnswerOneBroadcastAndOnlyTheFirstStays) {
    Server &a = start(L"");
    Server &b = start(L"");
    EXPECT_EQ(run(kOpen + "Print(DDEExecute(ch, \"[one]\", 5000)); Print(DDETerminate(ch));"), "1\n0\n0\n");
    a.stop(5000);
    b.stop(5000);
    std::string logs = a.received() + "--\n" + b.received();
    const std::string partner = kHello + "execute 5 [one]\nterminate\n", dropped = kHello + "terminate\n";
    EXPECT_TRUE(logs == partner + "--\n" + dropped || logs == dropped + "--\n" + partner) << logs;
}

// A window that is no conversation fails every call, and terminate leaves
// it alone.
TEST_F(DdeTest, AWindowThatIsNoConversation) {
    HWND plain = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    std::string w = num(plain);
    EXPECT_EQ(run("out = \"old\"; Print(DDEExecute(" + w + ", \"x\", 5000)); Print(DDEPoke(" + w + ", \"MxItem\", \"x\", 5000));"
                  "Print(DDERequest(" + w + ", \"MxItem\", 1, out, 5000)); Print(StrLen(out)); Print(DDETerminate(" + w + "));"),
              "-1\n-1\n-1\n0\n0\n");
    EXPECT_TRUE(IsWindow(plain));
    DestroyWindow(plain);
}

TEST_F(DdeTest, ProgramStartOnlyWhenNobodyAnsweredABroadcast) {
    std::wstring log = dir + L"\\started.log";
    SetEnvironmentVariableW(L"MX_DDESERVER_LOG", log.c_str());
    std::string exe = macroPath(serverExe());
    HWND plain = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    // Addressed to one window: never starts anything.
    EXPECT_EQ(run("Print(DDEInitiate(\"" + exe + "\", \"MxStartTopic\", " + num(plain) + ", 1, 0));"), "0\n");
    Sleep(1000);
    EXPECT_EQ(winReadFile(log), "");
    // Broadcast: the program starts, but nothing waits for it, so the
    // broadcast finds no server yet.
    EXPECT_EQ(run("Print(DDEInitiate(\"" + exe + "\", \"MxStartTopic\", 0, 1, 0));"), "0\n");
    SetEnvironmentVariableW(L"MX_DDESERVER_LOG", nullptr);
    DestroyWindow(plain);
    std::string text;
    for (int i = 0; i < 200 && text.rfind("started ", 0) != 0; ++i, Sleep(100)) text = winReadFile(log);
    ASSERT_EQ(text.rfind("started ", 0), 0u) << text;
    EXPECT_NE(text.find(" MxStartTopic\n"), std::string::npos);
    Server started;
    started.process.hProcess = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, std::stoul(text.substr(8)));
    started.stop(0);
}

// Wine's shell answers DDE on "Progman" once the session has a desktop. It
// lists its groups (the folders of the start menu) as 8-bit text, which the
// library copies as UTF-16 units, each holding two of its characters; it
// deletes a group on command and refuses commands it does not know. (The
// test makes the group itself: the shell's own CreateGroup opens a window.)
TEST_F(DdeTest, ConversationWithTheShell) {
    wchar_t programs[MAX_PATH];
    ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_PROGRAMS, nullptr, 0, programs), S_OK);
    std::wstring group = std::wstring(programs) + L"\\Morvix Test";
    ASSERT_TRUE(CreateDirectoryW(group.c_str(), nullptr) || GetLastError() == ERROR_ALREADY_EXISTS);
    std::string got = run("char groups[2000]; ch = DDEInitiate(\"Progman\", \"Progman\", 0, 0, 0); Print(ch != 0);"
                          "Print(DDEExecute(ch, \"[NoSuchCommand(1)]\", 10000));"
                          "Print(DDERequest(ch, \"Groups\", 1, groups, 10000)); Print(groups);"
                          "Print(DDEExecute(ch, \"[DeleteGroup(Morvix Test)]\", 10000)); Print(DDETerminate(ch));");
    size_t groups = got.find("\n", 7);
    ASSERT_EQ(got.substr(0, 7), "1\n-1\n0\n") << got;
    ASSERT_NE(groups, std::string::npos);
    EXPECT_EQ(got.substr(groups), "\n0\n0\n") << got;
    std::string bytes;
    for (char16_t u : utf16(got.substr(7, groups - 7))) bytes += {char(u & 0xFF), char(u >> 8)};
    EXPECT_NE(bytes.find("Morvix Test\r\n"), std::string::npos) << got;
    // The shell may acknowledge before it has removed the folder.
    for (int i = 0; i < 100 && GetFileAttributesW(group.c_str()) != INVALID_FILE_ATTRIBUTES; ++i) Sleep(50);
    EXPECT_EQ(GetFileAttributesW(group.c_str()), INVALID_FILE_ATTRIBUTES);
    RemoveDirectoryW(group.c_str());
}

}  // namespace
