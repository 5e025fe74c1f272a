// The button bar and command-line requests under Wine: the test desktop's
// frame records every request record the library sends with its registered
// message and answers 4711, 1 or 0 as each test asks.
#include <gtest/gtest.h>

#include "test_desktop.h"
#include "win_harness.h"

namespace {

struct HostRequests : ::testing::Test {
    const TestDesktop &d = testDesktop();
    std::string run(const std::string &text) { return runIn(d.frame, text); }
    void TearDown() override { hostReset(MX_HOST_DONE); }
};

// op, then the eight fields of a button record.
std::string fields(const HostRequest &r) {
    const MX_BUTTON_REQUEST &b = r.button;
    char line[200];
    snprintf(line, sizeof line, "op %d: %ld %ld %ld %ld %ld %ld %s %ld", int(r.op), long(b.mode), long(b.height),
             long(b.width), long(b.command), long(b.state), long(b.kind), b.text ? "text" : "null", long(b.reserved));
    return line;
}

}  // namespace

TEST_F(HostRequests, ButtonRequestsCarryTheirFieldsAndTheHostsAnswer4711GivesZero) {
    hostReset(MX_HOST_DONE);
    EXPECT_EQ(run("Print(AbbAppendButton(100, 24, 24, BUTTSTAT_NEWLINE + BUTTSTAT_NEWGROUP, 9));"
                  "Print(AbbDeleteButton(100, 9)); Print(AbbDeleteAllButtons(9));"),
              "0\n0\n0\n");
    const std::vector<HostRequest> &r = hostRequests();
    ASSERT_EQ(r.size(), 3u);
    EXPECT_EQ(fields(r[0]), "op 1: 1 24 24 100 48 0 null 0");
    EXPECT_EQ(fields(r[1]), "op 2: 0 0 0 100 0 0 null 0");
    EXPECT_EQ(r[2].op, 3u);
    EXPECT_FALSE(r[2].hasRecord);
}

TEST_F(HostRequests, PropertyRequestsPassTheirKindAndTextDuringTheCall) {
    hostReset(MX_HOST_DONE);
    EXPECT_EQ(run("char t[20]; t = \"Gr\xC3\xBC\xC3\x9F" "e\";"
                  "Print(AbbSetButtonAction(7, \"act\")); Print(AbbSetButtonBitmapFile(7, \"b.bmp\"));"
                  "Print(AbbSetButtonMacroFile(7, \"m.mac\")); Print(AbbSetButtonSignum(7, \"S\"));"
                  "Print(AbbSetButtonPopupText(100, t)); t = \"changed\";"),
              "0\n0\n0\n0\n0\n");
    const std::vector<HostRequest> &r = hostRequests();
    ASSERT_EQ(r.size(), 5u);
    const int kinds[] = {4, 1, 2, 3, 7};
    const wchar_t *texts[] = {L"act", L"b.bmp", L"m.mac", L"S", L"Gr\u00FC\u00DFe"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(r[i].op, 4u);
        EXPECT_EQ(r[i].button.kind, kinds[i]);
        EXPECT_EQ(r[i].button.command, i < 4 ? 7 : 100);
        EXPECT_EQ(r[i].button.mode, 0);
        EXPECT_EQ(r[i].text, texts[i]);
    }
}

TEST_F(HostRequests, CommandLineCountAndParametersCutAtTheCapacity) {
    hostReset(MX_HOST_DONE, {L"first", L"a longer parameter"});
    EXPECT_EQ(run("char v[40]; char s[6]; v = \"keep\";"
                  "Print(GetCommandLineCount()); Print(GetCommandLineParam(1, v)); Print(v);"
                  "Print(GetCommandLineParam(2, s)); Print(s);"
                  "v = \"keep\"; Print(GetCommandLineParam(3, v)); Print(v);"),
              "2\n0\nfirst\n0\na lon\n-1\nkeep\n");
    const std::vector<HostRequest> &r = hostRequests();
    ASSERT_EQ(r.size(), 4u);
    EXPECT_EQ(r[0].op, 6u);
    EXPECT_FALSE(r[0].hasRecord);
    EXPECT_EQ(r[1].op, 7u);
    EXPECT_EQ(r[1].param.number, 1);
    EXPECT_EQ(r[1].param.capacity, 40);
    EXPECT_EQ(r[2].param.capacity, 6);
}

TEST_F(HostRequests, AnyOtherAnswerIsAFailureAndTheCountIsTheAnswerItself) {
    for (LRESULT reply : {LRESULT(1), LRESULT(0)}) {
        hostReset(reply, {L"p"});
        EXPECT_EQ(run("char v[10]; v = \"keep\"; Print(AbbAppendButton(1, 2, 3, 4, 0)); Print(AbbDeleteButton(1, 0));"
                      "Print(AbbDeleteAllButtons(0)); Print(AbbSetButtonPopupText(1, \"x\"));"
                      "Print(GetCommandLineParam(1, v)); Print(v); Print(GetCommandLineCount());"),
                  "-1\n-1\n-1\n-1\n-1\nkeep\n" + std::to_string(reply) + "\n");
        EXPECT_EQ(hostRequests().size(), 6u);
    }
    // The profile functions have no implementation: 0, nothing sent.
    hostReset(MX_HOST_DONE);
    EXPECT_EQ(run("Print(AbbLoadButtonsFromProfile(\"p\", \"s\", 0)); Print(AbbSaveButtonsToProfile(\"p\", \"s\", 0));"),
              "0\n0\n");
    EXPECT_TRUE(hostRequests().empty());
}

TEST_F(HostRequests, TheRequestGoesToTheTopLevelWindowOfTheWindowTheHostPassed) {
    hostReset(MX_HOST_DONE, {L"p"});
    EXPECT_EQ(runIn(d.docs[0], "Print(GetCommandLineCount());"), "1\n");
    EXPECT_EQ(hostRequests().size(), 1u);
    // Without a window, or with a window that does not know the message.
    hostReset(MX_HOST_DONE, {L"p"});
    EXPECT_EQ(runIn(nullptr, "Print(GetCommandLineCount()); Print(AbbDeleteAllButtons(0));"), "0\n-1\n");
    EXPECT_EQ(runIn(d.editor, "Print(GetCommandLineCount()); Print(AbbDeleteAllButtons(0));"), "0\n-1\n");
    EXPECT_TRUE(hostRequests().empty());
}
