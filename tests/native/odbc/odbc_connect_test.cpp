// Connections: sharing equal parameters, the ten slots, bad handles and
// failed connects, on SQLite and PostgreSQL.
#include "odbc_test_util.h"

using namespace odbctest;

namespace {

const std::string kBadHandle = "Makrofehler: s Der ODBC-Connection-Handle ist ungültig.\n";
const std::string kTooMany =
    "Makrofehler: s Es sind in dieser Anwendung zu viele ODBC-Verbindungen gleichzeitig durch "
    "Makros eröffnet worden.\n";

class OdbcConnect : public OdbcTest {};

// Equal parameters share one connection, also in a later run; a freed slot
// is the lowest free one and is taken again.
TEST_P(OdbcConnect, EqualParametersShareOneConnectionAcrossRuns) {
    std::string t = table("a INTEGER");
    exec("INSERT INTO " + t + " VALUES (7)");
    MacroRun first = runMemory(u16("Print(" + connectCall(db()) + "); Print(" + connectCall(db()) + ");"));
    EXPECT_EQ(first.output, "1\n1\n");
    EXPECT_EQ(mx::zodbcLiveHandles().connections, 1);
    MacroRun second = runMemory(u16("int h; char v[20]; h = " + connectCall(db()) +
                                    "; Print(h); OdbcSelectLine(h, \"SELECT a FROM " + t +
                                    "\", v, 0); Print(v); Print(OdbcDisconnect(h));"));
    EXPECT_EQ(second.output, "1\n7\n0\n");
    EXPECT_EQ(mx::zodbcLiveHandles().connections, 0);
    MacroRun other = runMemory(u16("Print(OdbcConnect(\"MorvixSqlite2\", \"\", \"\", 0));"));
    EXPECT_EQ(other.output, "1\n");
}

// Handles 0, 11, -1 and a disconnected one: message 155 and -1 from every
// function, 0 from OdbcDisconnect; nothing is written to the outputs.
TEST_P(OdbcConnect, BadHandlesAreRefusedByEveryFunction) {
    MacroRun r = run("int d; OdbcDisconnect(h); d = h;");
    ASSERT_EQ(r.result, 0);
    for (std::string handle : {"0", "11", "-1", "1"}) {
        std::string dir = scratchDir();
        MacroRun bad = runMemory(u16(
            "int h; char s[20]; float f; s = \"keep\"; f = 2.5; h = " + handle + ";"
            "Print(OdbcDisconnect(h)); Print(OdbcPerformSql(h, \"SELECT 1\", 0));"
            "Print(OdbcSelectLine(h, \"SELECT 1\", s, 0)); Print(OdbcSelect(h, \"SELECT 1\", \"" +
            dir + "/out.txt\", 0)); Print(OdbcCountRecords(h, \"t\", \"\", 0));"
            "Print(OdbcAddFields(h, \"t\", \"a\", \"\", f, 0)); Print(OdbcGetMaximum(h, \"t\", \"a\", \"\", f, 0));"
            "Print(OdbcDateToSqlConst(h, s, 1, 2, 3)); Print(s); Print(f);"));
        std::string expected;
        for (const char *answer : {"0", "-1", "-1", "-1", "-1", "-1", "-1", "-1"})
            expected += kBadHandle + answer + "\n";
        EXPECT_EQ(bad.output, expected + "keep\n2.500000\n") << "handle " << handle;
        EXPECT_EQ(readFile(dir + "/out.txt"), "") << "no result file for a bad handle";
    }
}

// A data source that does not exist, and (PostgreSQL) a wrong password: 0,
// the driver's diagnostics in a box, and no handle left over.
TEST_P(OdbcConnect, FailedConnectsAnswerZeroAndShowTheDriversError) {
    MacroRun missing = runMemory(u16("Print(OdbcConnect(\"NoSuchSource\", \"\", \"\", 0));"));
    EXPECT_NE(missing.output.find("ODBC-Fehler: SQLSTATE IM002"), std::string::npos) << missing.output;
    EXPECT_EQ(missing.output.substr(missing.output.size() - 2), "0\n");
    if (db().postgres) {
        MacroRun wrong = runMemory(u16("Print(OdbcConnect(\"MorvixPg\", \"morvix\", \"falsch\", 0));"));
        EXPECT_NE(wrong.output.find("ODBC-Fehler: SQLSTATE 08001"), std::string::npos) << wrong.output;
        EXPECT_NE(wrong.output.find("password authentication failed"), std::string::npos);
        EXPECT_EQ(wrong.output.substr(wrong.output.size() - 2), "0\n");
    }
    EXPECT_EQ(mx::zodbcLiveHandles().connections, 0);
    EXPECT_EQ(mx::zodbcLiveHandles().environments, 0);
}

ODBC_BOTH_DATABASES(OdbcConnect);

// Ten different parameter sets fill the table; an eleventh is refused with
// message 154 while an equal set still finds its connection. SQLite ignores
// the user id, so ten user ids make ten distinct connections.
TEST(OdbcSlots, TheEleventhConnectionIsRefusedUnlessItIsShared) {
    std::string body;
    for (int i = 1; i <= 10; ++i)
        body += "Print(OdbcConnect(\"MorvixSqlite\", \"u" + std::to_string(i) + "\", \"\", 0));";
    body += "Print(OdbcConnect(\"MorvixSqlite\", \"u11\", \"\", 0));";
    body += "Print(OdbcConnect(\"MorvixSqlite\", \"u5\", \"\", 0));";
    body += "Print(OdbcDisconnect(3)); Print(OdbcConnect(\"MorvixSqlite2\", \"\", \"\", 0));";
    MacroRun r = runMemory(u16(body));
    EXPECT_EQ(r.output, "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n" + kTooMany + "0\n5\n0\n3\n");
    EXPECT_EQ(mx::zodbcLiveHandles().connections, 10);
    closeAll();
    EXPECT_EQ(mx::zodbcLiveHandles().connections, 0);
}

// Parameters are compared exactly, case included, and cut to their fields
// (data source 99, user and password 49 characters) before the comparison.
TEST(OdbcSlots, ParametersAreComparedExactlyAfterCutting) {
    std::string longUser(60, 'x');
    MacroRun r = runMemory(u16(
        "Print(OdbcConnect(\"MorvixSqlite\", \"Anna\", \"\", 0)); Print(OdbcConnect(\"MorvixSqlite\", \"anna\", \"\", 0));"
        "Print(OdbcConnect(\"MorvixSqlite\", \"" + longUser + "\", \"\", 0));"
        "Print(OdbcConnect(\"MorvixSqlite\", \"" + longUser.substr(0, 49) + "\", \"\", 0));"));
    EXPECT_EQ(r.output, "1\n2\n3\n3\n");
    closeAll();
}

}  // namespace
