// The DDE client against real servers under Wine: the test server of
// tests/win/ddeserver (started and stopped by each test, with the
// behaviour its switches choose) and Wine's own shell answering "Progman".
// Every test ends by checking that no atom of its names is left in the
// global atom table.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <deque>
#include <vector>

#include "win_harness.h"

namespace {

std::u16string u16(const std::wstring &s) { return std::u16string(s.begin(), s.end()); }

std::wstring binDir() {
    wchar_t path[MAX_PATH];
    DWORD n = GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring p(path, n);
    return p.substr(0, p.find_last_of(L'\\') + 1);
}

std::wstring serverExe() { return binDir() + L"ddeserver.exe"; }

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

    // Starts a server with the given switches and waits until its window
    // exists.
    Server &start(const std::wstring &switches) {
        static int count = 0;
        Server s;
        s.log = dir + L"\\server" + std::to_wstring(servers.size()) + L".log";
        std::wstring event = L"MxDdeReady" + std::to_wstring(GetCurrentProcessId()) + L"_" + std::to_wstring(++count);
        HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, event.c_str());
        std::wstring line = L"\"" + serverExe() + L"\" --log \"" + s.log + L"\" --ready " + event + L" " + switches;
        STARTUPINFOW si = {};
        si.cb = sizeof si;
        bool started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &si,
                                      &s.process);
        EXPECT_TRUE(started);
        EXPECT_EQ(WaitForSingleObject(ready, 20000), WAIT_OBJECT_0);
        CloseHandle(ready);
        servers.push_back(s);
        return servers.back();
    }

    // Runs statements inside a macro and returns its Print lines.
    std::string run(const std::string &body) {
        std::u16string text = u"int ch; char out[40]; " + u16(std::wstring(body.begin(), body.end()));
        WinRun r = winRunMemory(text);
        EXPECT_EQ(r.result, 0) << r.output;
        return r.output;
    }
};

const char kOpen[] = "ch = DDEInitiate(\"MxDdeTest\", \"MxTopic\", 0, 0, 0); Print(ch != 0); ";

TEST_F(DdeTest, ConversationReachesTheServerAndBack) {
    Server &s = start(L"");
    EXPECT_EQ(run(std::string(kOpen) +
                  "Print(DDEExecute(ch, \"[Open(\\\"a b\\\")]\", 5000));"
                  "Print(DDEPoke(ch, \"MxItem\", \"Hallo Welt\", 5000));"
                  "Print(DDERequest(ch, \"MxItem\", 1, out, 5000)); Print(out);"
                  "Print(DDETerminate(ch));"),
              "1\n0\n0\n0\nABCDEFG\n0\n");
    s.stop(5000);
    EXPECT_EQ(s.received(),
              "initiate MxDdeTest MxTopic\n"
              "execute 13 [Open(\"a b\")]\n"
              "poke MxItem flags=0x0000 format=1 Hallo Welt\n"
              "request MxItem format=1\n"
              "terminate\n");
}

TEST_F(DdeTest, InitiateAddressedToOneWindowOrToNobody) {
    Server &s = start(L"");
    HWND server = FindWindowW(L"MxDdeTestServer", nullptr);
    ASSERT_TRUE(server);
    std::string target = std::to_string(reinterpret_cast<intptr_t>(server));
    EXPECT_EQ(run("ch = DDEInitiate(\"MxDdeTest\", \"MxTopic\", " + target +
                  ", 0, 0); Print(ch != 0); Print(DDETerminate(ch));"
                  // Another topic, another application: nobody answers.
                  "Print(DDEInitiate(\"MxDdeTest\", \"MxOther\", 0, 0, 0));"
                  "Print(DDEInitiate(\"MxOther\", \"MxTopic\", " + target + ", 0, 0));"),
              "1\n0\n0\n0\n");
    s.stop(5000);
    EXPECT_EQ(s.received(), "initiate MxDdeTest MxTopic\nterminate\n");
}

TEST_F(DdeTest, NegativeAcknowledgementsFailEveryTransaction) {
    Server &s = start(L"--refuse");
    EXPECT_EQ(run(std::string(kOpen) +
                  "out = \"old\";"
                  "Print(DDEExecute(ch, \"[Nothing()]\", 5000));"
                  "Print(DDEPoke(ch, \"MxItem\", \"x\", 5000));"
                  "Print(DDERequest(ch, \"MxItem\", 1, out, 5000)); Print(StrLen(out));"
                  "Print(DDETerminate(ch));"),
              "1\n-1\n-1\n-1\n0\n0\n");
    s.stop(5000);
    EXPECT_EQ(s.received(),
              "initiate MxDdeTest MxTopic\nexecute 11 [Nothing()]\npoke MxItem flags=0x0000 format=1 x\n"
              "request MxItem format=1\nterminate\n");
}

TEST_F(DdeTest, TimeOutsAndTheUnsignedWait) {
    Server &s = start(L"--late 700");
    EXPECT_EQ(run(std::string(kOpen) +
                  "out = \"old\";"
                  // A negative wait is a very long one: the late answer comes.
                  "Print(DDEExecute(ch, \"first\", -1));"
                  "Print(DDEPoke(ch, \"MxItem\", \"late\", 100));"
                  // A wait of 0 still posts, but reads no answer.
                  "Print(DDEExecute(ch, \"zero\", 0));"
                  "Print(DDERequest(ch, \"MxItem\", 1, out, 0)); Print(StrLen(out));"
                  "Print(DDETerminate(ch));"),
              "1\n0\n-1\n-1\n-1\n0\n0\n");
    s.stop(8000);
    // The item atoms may be gone by the time the server reads them: the
    // library deleted them when it stopped waiting.
    std::string got = s.received();
    EXPECT_EQ(got.rfind("initiate MxDdeTest MxTopic\nexecute 5 first\npoke ", 0), 0u) << got;
    EXPECT_NE(got.find("flags=0x0000 format=1 late\nexecute 4 zero\nrequest "), std::string::npos) << got;
}

TEST_F(DdeTest, ServerEndingWhileATransactionWaits) {
    Server &s = start(L"--quit-on-transaction --stay");
    EXPECT_EQ(run(std::string(kOpen) +
                  "Print(DDEExecute(ch, \"x\", 1000));"
                  // The conversation is over: no post, no wait.
                  "Print(DDEExecute(ch, \"y\", 60000));"
                  "Print(DDERequest(ch, \"MxItem\", 1, out, 60000));"
                  "Print(DDETerminate(ch));"),
              "1\n-1\n-1\n-1\n0\n");
    Sleep(500);  // room for a terminate the last call must not have posted
    s.stop(0);
    // The window procedure answered the server's terminate once; the
    // terminate of the channel posted nothing more.
    EXPECT_EQ(s.received(), "initiate MxDdeTest MxTopic\nexecute 1 x\nquit\nterminate\n");
}

TEST_F(DdeTest, DataWithReleaseBitAndAcknowledgementRequest) {
    Server &s = start(L"--release --ack-request --dib");
    EXPECT_EQ(run(std::string(kOpen) +
                  "char five[5]; char one[1]; out = \"old\";"
                  "Print(DDERequest(ch, \"MxItem\", 1, five, 5000)); Print(five);"
                  "Print(DDERequest(ch, \"MxItem\", 13, one, 5000)); Print(StrLen(one));"
                  // A device-independent bitmap: no text, the picture released.
                  "Print(DDERequest(ch, \"MxItem\", 8, out, 5000)); Print(StrLen(out));"
                  "Print(DDETerminate(ch));"),
              "1\n0\nABCD\n0\n0\n0\n0\n0\n");
    s.stop(5000);
    EXPECT_EQ(s.received(),
              "initiate MxDdeTest MxTopic\nrequest MxItem format=1\nack 0x8000 MxItem\n"
              "request MxItem format=13\nack 0x8000 MxItem\nrequest MxItem format=8\ndib\n"
              "ack 0x8000 MxItem\nterminate\n");
}

TEST_F(DdeTest, TwoServersAnswerOneBroadcastAndOnlyTheFirstStays) {
    Server &a = start(L"");
    Server &b = start(L"");
    EXPECT_EQ(run(std::string(kOpen) + "Print(DDEExecute(ch, \"[one]\", 5000)); Print(DDETerminate(ch));"),
              "1\n0\n0\n");
    a.stop(5000);
    b.stop(5000);
    std::string logs[2] = {a.received(), b.received()};
    const std::string partner = "initiate MxDdeTest MxTopic\nexecute 5 [one]\nterminate\n";
    const std::string dropped = "initiate MxDdeTest MxTopic\nterminate\n";
    EXPECT_TRUE((logs[0] == partner && logs[1] == dropped) || (logs[0] == dropped && logs[1] == partner))
        << logs[0] << "--\n" << logs[1];
}

// Reads the process number from the start line the server wrote to log, waiting up to 20 s.
DWORD startedServer(const std::wstring &log) {
    for (int i = 0; i < 200; ++i) {
        std::string text = winReadFile(log);
        if (text.rfind("started ", 0) == 0) return std::stoul(text.substr(8));
        Sleep(100);
    }
    return 0;
}

TEST_F(DdeTest, ProgramStartOnlyWhenNobodyAnsweredABroadcast) {
    std::wstring log = dir + L"\\started.log";
    SetEnvironmentVariableW(L"MX_DDESERVER_LOG", log.c_str());
    std::wstring exeWide = serverExe();
    std::string exe(exeWide.begin(), exeWide.end());
    std::string quoted;
    for (char c : exe) quoted += c == '\\' ? std::string("\\\\") : std::string(1, c);
    HWND plain = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    std::string target = std::to_string(reinterpret_cast<intptr_t>(plain));
    // Addressed to one window: never starts anything.
    EXPECT_EQ(run("Print(DDEInitiate(\"" + quoted + "\", \"MxStartTopic\", " + target + ", 1, 0));"), "0\n");
    Sleep(1000);
    EXPECT_EQ(winReadFile(log), "");
    // Broadcast: the program starts, but nothing waits for it, so the second
    // broadcast finds no server yet.
    EXPECT_EQ(run("Print(DDEInitiate(\"" + quoted + "\", \"MxStartTopic\", 0, 1, 0));"), "0\n");
    SetEnvironmentVariableW(L"MX_DDESERVER_LOG", nullptr);
    DestroyWindow(plain);
    DWORD pid = startedServer(log);
    ASSERT_NE(pid, 0u);
    EXPECT_EQ(winReadFile(log).substr(0, 8), "started ");
    EXPECT_NE(winReadFile(log).find(" MxStartTopic\n"), std::string::npos);
    Server started;
    started.process.hProcess = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, pid);
    started.stop(0);
}

TEST_F(DdeTest, ChannelsThatAreNoConversations) {
    Server &s = start(L"");
    HWND plain = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    std::string other = std::to_string(reinterpret_cast<intptr_t>(plain));
    std::string calls;
    for (std::string bad : {std::string("0"), std::string("123457"), other}) {
        calls += "out = \"old\"; Print(DDEExecute(" + bad + ", \"x\", 5000)); Print(DDEPoke(" + bad +
                 ", \"MxItem\", \"x\", 5000)); Print(DDERequest(" + bad +
                 ", \"MxItem\", 1, out, 5000)); Print(StrLen(out)); Print(DDETerminate(" + bad + "));";
    }
    const std::string refused = "-1\n-1\n-1\n0\n0\n";
    EXPECT_EQ(run(calls), refused + refused + refused);
    EXPECT_TRUE(IsWindow(plain));  // terminate leaves other windows alone
    DestroyWindow(plain);
    // A terminated channel is no conversation either.
    EXPECT_EQ(run(std::string(kOpen) + "Print(DDETerminate(ch)); Print(DDEExecute(ch, \"x\", 5000));"
                                       "Print(DDETerminate(ch));"),
              "1\n0\n-1\n0\n");
    s.stop(5000);
    EXPECT_EQ(s.received(), "initiate MxDdeTest MxTopic\nterminate\n");
}

TEST_F(DdeTest, OversizedNamesAndCommands) {
    Server &s = start(L"");
    EXPECT_EQ(run("char big[301]; char cmd[100001]; char one[1];"
                  "FillStringRight(big, 300, 'a'); FillStringRight(cmd, 100000, 'c');"
                  // A name without an atom must not turn into "any application".
                  "Print(DDEInitiate(big, \"MxTopic\", 0, 0, 0));"
                  "Print(DDEInitiate(\"MxDdeTest\", big, 0, 0, 0));" +
                  std::string(kOpen) +
                  "Print(DDEExecute(ch, cmd, 10000));"
                  "Print(DDEPoke(ch, big, \"x\", 5000));"
                  "Print(DDERequest(ch, big, 1, out, 5000));"
                  "Print(DDERequest(ch, \"MxItem\", 1, one, 5000)); Print(StrLen(one));"
                  "Print(DDETerminate(ch));"),
              "0\n0\n1\n0\n-1\n-1\n0\n0\n0\n");
    s.stop(5000);
    EXPECT_EQ(s.received(), "initiate MxDdeTest MxTopic\nexecute 100000 " + std::string(40, 'c') +
                                "\nrequest MxItem format=1\nterminate\n");
}

}  // namespace

namespace {

// The bytes of the UTF-16 units that a Print line (UTF-8) shows: a server
// that sends 8-bit text fills each unit with two of its characters.
std::string unitBytes(const std::string &utf8) {
    std::wstring units(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), nullptr, 0), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), units.data(), int(units.size()));
    std::string bytes;
    for (wchar_t u : units) {
        bytes += char(u & 0xFF);
        bytes += char(u >> 8);
    }
    return bytes;
}

// Wine's shell answers DDE on "Progman" once the session has a desktop. It
// knows commands in brackets, refuses others, and lists its groups as 8-bit
// text; the library copies every text value as UTF-16 units.
TEST_F(DdeTest, ConversationWithTheShell) {
    std::string got = run("char groups[2000];"
                          "ch = DDEInitiate(\"Progman\", \"Progman\", 0, 0, 0); Print(ch != 0);"
                          "Print(DDEExecute(ch, \"[CreateGroup(Morvix Test)]\", 10000));"
                          "Print(DDEExecute(ch, \"[NoSuchCommand(1)]\", 10000));"
                          "Print(DDERequest(ch, \"Groups\", 1, groups, 10000)); Print(groups);"
                          "Print(DDEExecute(ch, \"[DeleteGroup(Morvix Test)]\", 10000));"
                          "Print(DDETerminate(ch));");
    std::vector<std::string> lines;
    for (size_t at = 0, eol; (eol = got.find('\n', at)) != std::string::npos; at = eol + 1)
        lines.push_back(got.substr(at, eol - at));
    ASSERT_EQ(lines.size(), 7u) << got;
    EXPECT_EQ(lines[0] + lines[1] + lines[2] + lines[3], "10-10") << got;
    EXPECT_NE(unitBytes(lines[4]).find("Morvix Test\r\n"), std::string::npos) << got;
    EXPECT_EQ(lines[5] + lines[6], "00") << got;  // the group is removed again
}

}  // namespace
