// ODBC against real SQLite and PostgreSQL databases (started and removed by
// the odbc_db fixture): connections (sharing equal parameters, the ten slots,
// bad handles, failed connects), selections to lines and files, values in
// every column type, and the check that every test leaves no statement,
// connection or environment handle behind.
#include <gtest/gtest.h>
#include <fcntl.h>

#include <cstdlib>
#include <regex>
#include <string>

#include "macro_harness.h"
#include "odbc/odbc_slots.h"
#include "odbc/zodbc_counts.h"
#include "platform/platform.h"

namespace odbctest {

struct Database {
    const char *name;  // test name suffix
    const char *dsn;
    const char *user;
    const char *password;
    bool postgres;
};

inline const Database kSqlite = {"Sqlite", "MorvixSqlite", "", "", false};
inline const Database kPostgres = {"Postgres", "MorvixPg", "morvix", "Geheim-42", true};

inline std::string lit(const std::string &s) { return "\"" + s + "\""; }

// The macro call that connects to db.
inline std::string connectCall(const Database &db) {
    return "OdbcConnect(" + lit(db.dsn) + ", " + lit(db.user) + ", " + lit(db.password) +
           ", 0)";
}

inline void swallowBox(const char16_t *, const char16_t *) {}

// Closes every connection still open (without showing boxes).
inline void closeAll() {
    mx::mxp_SetBoxSink(swallowBox);
    for (int h = 1; h <= mx::kOdbcSlots; ++h)
        if (mx::odbcTableOpenCount() > 0) mx::odbcTableRemove(h);
    mx::mxp_SetBoxSink(nullptr);
}

// A test against one database: each test body runs macros that start with
// "int h; h = OdbcConnect(...);" and the fixture proves at the end that no
// handle leaked.
class OdbcTest : public ::testing::TestWithParam<Database> {
protected:
    const Database &db() const { return GetParam(); }

    // Runs body after the declaration of h and the connection.
    MacroRun run(const std::string &body) {
        return runMemory(u16("int h; h = " + connectCall(db()) + "; " + body));
    }

    // Executes statements (separated by '|') and expects each to succeed.
    void exec(const std::string &statements) {
        size_t from = 0;
        while (from <= statements.size()) {
            size_t bar = statements.find('|', from);
            std::string one = statements.substr(from, bar == std::string::npos ? std::string::npos : bar - from);
            MacroRun r = run("Print(OdbcPerformSql(h, " + lit(one) + ", 0));");
            ASSERT_EQ(r.output, "0\n") << one;
            if (bar == std::string::npos) break;
            from = bar + 1;
        }
    }

    // A table of this test's own, created fresh with the given columns.
    std::string table(const std::string &columns) {
        std::string name = std::string("t_") + ::testing::UnitTest::GetInstance()->current_test_info()->name();
        for (char &c : name)
            if (c == '/') c = '_';
        // PostgreSQL answers a drop of a missing table with a notice, which
        // counts as failure: its answer does not matter here.
        run("OdbcPerformSql(h, \"DROP TABLE IF EXISTS " + name + "\", 0);");
        exec("CREATE TABLE " + name + " (" + columns + ")");
        return name;
    }

    void TearDown() override {
        EXPECT_EQ(mx::zodbcLiveHandles().statements, 0) << "a statement handle leaked";
        closeAll();
        mx::ZodbcHandleCounts live = mx::zodbcLiveHandles();
        EXPECT_EQ(live.connections, 0);
        EXPECT_EQ(live.environments, 0);
    }
};

inline void PrintTo(const Database &d, std::ostream *os) { *os << d.name; }

inline std::string paramName(const ::testing::TestParamInfo<Database> &info) { return info.param.name; }

// UTF-16LE bytes of a UTF-8 text, for comparing result files.
inline std::string utf16le(const std::string &utf8) {
    std::string out;
    for (char16_t c : u16(utf8)) {
        out += char(c & 0xFF);
        out += char(c >> 8);
    }
    return out;
}

inline const std::string kBom = "\xFF\xFE";

}  // namespace odbctest

#define ODBC_BOTH_DATABASES(suite) \
    INSTANTIATE_TEST_SUITE_P(Db, suite, ::testing::Values(odbctest::kSqlite, odbctest::kPostgres), \
                             odbctest::paramName)

namespace {

// The driver manager reads the driver list and data sources from the build
// tree (nothing from /etc), and the 8-bit SQLite driver's texts travel as UTF-8.
const bool kEnvironmentSet = [] {
    setenv("ODBCSYSINI", MX_ODBC_DIR, 1);
    setenv("ODBCINI", MX_ODBC_DIR "/odbc.ini", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    return true;
}();

}  // namespace

// The drivers keep a few allocations until the process ends; full stacks
// let the suppressions name the driver.
extern "C" const char *__lsan_default_options() {
    return "suppressions=" MX_SOURCE_DIR "/tests/odbc/lsan.supp:print_suppressions=0";
}
extern "C" const char *__asan_default_options() { return "fast_unwind_on_malloc=0"; }

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

// A handle whose connection was closed: message 155 and -1 from every
// function, 0 from OdbcDisconnect; nothing is written to the outputs.
TEST_P(OdbcConnect, AClosedHandleIsRefusedByEveryFunction) {
    MacroRun r = run("OdbcDisconnect(h);");
    ASSERT_EQ(r.result, 0);
    std::string dir = scratchDir();
    MacroRun bad = runMemory(u16(
        "int h; char s[20]; float f; s = \"keep\"; f = 2.5; h = 1;"
        "Print(OdbcDisconnect(h)); Print(OdbcPerformSql(h, \"SELECT 1\", 0));"
        "Print(OdbcSelectLine(h, \"SELECT 1\", s, 0)); Print(OdbcSelect(h, \"SELECT 1\", \"" +
        dir + "/out.txt\", 0)); Print(OdbcCountRecords(h, \"t\", \"\", 0));"
        "Print(OdbcAddFields(h, \"t\", \"a\", \"\", f, 0)); Print(OdbcGetMaximum(h, \"t\", \"a\", \"\", f, 0));"
        "Print(OdbcDateToSqlConst(h, s, 1, 2, 3)); Print(s); Print(f);"));
    std::string expected;
    for (const char *answer : {"0", "-1", "-1", "-1", "-1", "-1", "-1", "-1"}) expected += kBadHandle + answer + "\n";
    EXPECT_EQ(bad.output, expected + "keep\n2.500000\n");
    EXPECT_EQ(readFile(dir + "/out.txt"), "") << "no result file for a bad handle";
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

namespace {

class OdbcSelect : public OdbcTest {
protected:
    std::string t;
    void SetUp() override {
        t = table("id INTEGER, name VARCHAR(40), note VARCHAR(600)");
        exec("INSERT INTO " + t + " VALUES (1, 'Grüße', 'Ελληνικά')|INSERT INTO " + t +
             " VALUES (2, NULL, '日本語')");
    }
};

// The first row only, TAB between the values, a NULL leaving its place
// empty; no row empties the variable; the text is cut at its capacity.
TEST_P(OdbcSelect, SelectLineReadsTheFirstRowIntoTheVariable) {
    MacroRun r = run("char v[100]; char one[1]; char five[5];"
                     "Print(OdbcSelectLine(h, \"SELECT id, name, note FROM " + t + " ORDER BY id DESC\", v, 0)); Print(v);"
                     "Print(OdbcSelectLine(h, \"SELECT id, name, note FROM " + t + " ORDER BY id\", v, 0)); Print(v);"
                     "Print(OdbcSelectLine(h, \"SELECT id FROM " + t + " WHERE id > 5\", v, 0)); Print(StrLen(v));"
                     "Print(OdbcSelectLine(h, \"SELECT name, note FROM " + t + " WHERE id = 1\", one, 0)); Print(StrLen(one));"
                     "Print(OdbcSelectLine(h, \"SELECT note, id FROM " + t + " WHERE id = 1\", five, 0)); Print(five);");
    EXPECT_EQ(r.output, "0\n2\t\t日本語\n0\n1\tGrüße\tΕλληνικά\n0\n0\n0\n0\n0\nΕλλη\n");
}

// Two rows of two columns: the byte-order mark, value TAB value CR LF twice,
// in UTF-16LE; NULL leaves its field empty; no rows leave only the mark.
TEST_P(OdbcSelect, SelectWritesTheResultFile) {
    std::string dir = scratchDir();
    MacroRun r = run("Print(OdbcSelect(h, \"SELECT id, note FROM " + t + " ORDER BY id\", \"" + dir + "/two.txt\", 0));"
                     "Print(OdbcSelect(h, \"SELECT name, id, name FROM " + t + " WHERE id = 2\", \"" + dir + "/null.txt\", 0));"
                     "Print(OdbcSelect(h, \"SELECT id FROM " + t + " WHERE id < 0\", \"" + dir + "/none.txt\", 0));");
    EXPECT_EQ(r.output, "0\n0\n0\n");
    EXPECT_EQ(readFile(dir + "/two.txt"), kBom + utf16le("1\tΕλληνικά\r\n2\t日本語\r\n"));
    EXPECT_EQ(readFile(dir + "/null.txt"), kBom + utf16le("\t2\t\r\n"));
    EXPECT_EQ(readFile(dir + "/none.txt"), kBom);
}

// A statement the driver rejects leaves the created file empty; a file in a
// missing directory or one held by OpenFile gives message 156 with its name.
TEST_P(OdbcSelect, SelectFailuresLeaveNoMoreThanTheyShould) {
    std::string dir = scratchDir();
    std::string held = dir + "/held.txt";
    MacroRun r = run("int f; Print(OdbcSelect(h, \"SELECT nothing FROM nowhere\", \"" + dir + "/bad.txt\", 0));"
                     "Print(OdbcSelect(h, \"SELECT id FROM " + t + "\", \"" + dir + "/no/such.txt\", 0));"
                     "f = OpenFile(\"" + held + "\", \"w\"); WriteFile(f, \"mine\");"
                     "Print(OdbcSelect(h, \"SELECT id FROM " + t + "\", \"" + held + "\", 0)); CloseFile(f);");
    EXPECT_NE(r.output.find("ODBC-Fehler: SQLSTATE"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("Anweisung: SELECT nothing FROM nowhere\n-1\n"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("Makrofehler: s Die Zieldatei der Datenbankselektion  '" + dir +
                            "/no/such.txt'  kann nicht angelegt werden.\n-1\n"),
              std::string::npos) << r.output;
    EXPECT_NE(r.output.find("Makrofehler: s Die Zieldatei der Datenbankselektion  '" + held +
                            "'  kann nicht angelegt werden.\n-1\n"),
              std::string::npos) << r.output;
    EXPECT_EQ(readFile(dir + "/bad.txt"), "");
    EXPECT_EQ(access((dir + "/bad.txt").c_str(), F_OK), 0) << "the file is created before the statement runs";
    EXPECT_EQ(readFile(held), "mine") << "the other slot's file stays untouched";
}

// A value longer than the 998 bytes offered for it ends the function with
// the statement error: the line keeps nothing of it, the file what was
// written before.
TEST_P(OdbcSelect, ValuesLongerThanTheBufferFail) {
    std::string fits(498, 'a'), tooLong(499, 'b');
    exec("INSERT INTO " + t + " VALUES (3, 'x', NULL)|UPDATE " + t + " SET note = '" + fits +
         "' WHERE id = 3");
    std::string dir = scratchDir();
    std::string longText = db().postgres ? "repeat('b', 499)" : "printf('%.499c', 'b')";
    MacroRun r = run("char v[600];"
                     "Print(OdbcSelectLine(h, \"SELECT note FROM " + t + " WHERE id = 3\", v, 0)); Print(StrLen(v));"
                     "Print(OdbcSelectLine(h, \"SELECT id, " + longText + " FROM " + t + " WHERE id = 3\", v, 0));"
                     "Print(OdbcSelect(h, \"SELECT id, " + longText + " FROM " + t + " WHERE id = 3\", \"" + dir + "/long.txt\", 0));");
    EXPECT_EQ(r.output.substr(0, 6), "0\n498\n");
    EXPECT_NE(r.output.find("SQLSTATE 01004"), std::string::npos) << r.output;
    EXPECT_EQ(r.output.substr(r.output.size() - 3), "-1\n");
    EXPECT_NE(r.output.find("\n-1\n"), r.output.rfind("\n-1\n")) << "both fail: " << r.output;
    EXPECT_EQ(readFile(dir + "/long.txt"), kBom + utf16le("3\t"));
}

// Syntax errors, an update that touches no row (no data) and, on
// PostgreSQL, a notice (success with information) all fail with the
// statement error box naming the statement.
TEST_P(OdbcSelect, PerformSqlFailsOnAnythingButPlainSuccess) {
    MacroRun r = run("Print(OdbcPerformSql(h, \"SELEKT 1\", 0));"
                     "Print(OdbcPerformSql(h, \"UPDATE " + t + " SET id = 5 WHERE id = 99\", 0));"
                     "Print(OdbcPerformSql(h, \"UPDATE " + t + " SET id = 5 WHERE id = 2\", 0));");
    EXPECT_NE(r.output.find("\n\nAnweisung: SELEKT 1\n-1\n"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("ODBC-Fehler: Der Treiber meldet keine Diagnose"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("Anweisung: UPDATE " + t + " SET id = 5 WHERE id = 99\n-1\n0\n"),
              std::string::npos) << r.output;
    if (db().postgres) {
        MacroRun notice = run("Print(OdbcPerformSql(h, \"DO $$BEGIN RAISE NOTICE 'Hinweis äöü'; END$$\", 0));");
        EXPECT_NE(notice.output.find("Hinweis äöü"), std::string::npos) << notice.output;
        EXPECT_EQ(notice.output.substr(notice.output.size() - 3), "-1\n");
    }
}

// Quotes and semicolons inside statements reach the driver as written.
TEST_P(OdbcSelect, StatementsPassThroughUnchanged) {
    MacroRun r = run("char v[100];"
                     "Print(OdbcPerformSql(h, \"INSERT INTO " + t + " VALUES (4, 'it''s; \\\"q\\\"', NULL)\", 0));"
                     "Print(OdbcSelectLine(h, \"SELECT name FROM " + t + " WHERE id = 4\", v, 0)); Print(v);");
    EXPECT_EQ(r.output, "0\n0\nit's; \"q\"\n");
}

ODBC_BOTH_DATABASES(OdbcSelect);

}  // namespace

namespace {

class OdbcValues : public OdbcTest {};

// One row of every kind of column, read one value at a time. The expected
// texts are the table of docs/odbc.md.
TEST_P(OdbcValues, EachSqlTypeHasItsText) {
    bool pg = db().postgres;
    std::string t = table(std::string("i INTEGER, big BIGINT, n NUMERIC(10,2), d DOUBLE PRECISION, dt DATE, tm TIME, "
                                      "ts TIMESTAMP, ts0 TIMESTAMP, b ") +
                          (pg ? "BOOLEAN, bin BYTEA" : "BIT, bin BLOB") + ", txt VARCHAR(600)");
    std::string longText(400, 'z');
    exec("INSERT INTO " + t + " VALUES (-42, 9007199254740993, 1234.50, -0.125, '2003-12-24', '08:05:09', "
         "'2003-12-24 10:11:12.250', '1999-01-02 03:04:05', " + (pg ? "true, decode('00ff10', 'hex')" : "1, x'00ff10'") +
         ", 'Ünïcödé ✓ " + longText + "')");
    std::string body = "char v[600];";
    for (const char *column : {"i", "big", "n", "d", "dt", "tm", "ts", "ts0", "b", "bin", "txt"})
        body += std::string("OdbcSelectLine(h, \"SELECT ") + column + " FROM " + t + "\", v, 0); Print(v);";
    MacroRun r = run(body);
    std::string expected = "-42\n9007199254740993\n";
    expected += pg ? "1234,50\n" : "1234,5\n";
    expected += "-0,125\n24.12.2003\n08:05:09\n24.12.2003 10:11:12,25\n02.01.1999 03:04:05\n1\n00FF10\n";
    expected += "Ünïcödé ✓ " + longText + "\n";
    EXPECT_EQ(r.output, expected);
}

// Count, sum and maximum, with and without a where clause; an empty result
// answers 0 (count) or 1 with a result of 0; a failing query -1 with the
// error box and the result variable untouched.
TEST_P(OdbcValues, AggregateHelpers) {
    std::string t = table("a INTEGER, w DOUBLE PRECISION, name VARCHAR(20)");
    exec("INSERT INTO " + t + " VALUES (1, 1.5, 'it''s')|INSERT INTO " + t + " VALUES (5, 2.25, 'x')|INSERT INTO " +
         t + " VALUES (3, NULL, 'y')");
    MacroRun r = run("float f;"
                     "Print(OdbcCountRecords(h, \"" + t + "\", \"\", 0));"
                     "Print(OdbcCountRecords(h, \"" + t + "\", \"name = 'it''s'\", 0));"
                     "Print(OdbcAddFields(h, \"" + t + "\", \"w\", \"\", f, 0)); Print(f);"
                     "Print(OdbcGetMaximum(h, \"" + t + "\", \"a\", \"a < 5\", f, 0)); Print(f);"
                     "Print(OdbcCountRecords(h, \"" + t + "\", \"a > 10\", 0));"
                     "Print(OdbcAddFields(h, \"" + t + "\", \"w\", \"a = 3\", f, 0)); Print(f); f = 7;"
                     "Print(OdbcGetMaximum(h, \"" + t + "\", \"a\", \"a > 10\", f, 0)); Print(f); f = 7;"
                     "Print(OdbcGetMaximum(h, \"no_such_table\", \"a\", \"\", f, 0)); Print(f);");
    std::string out = r.output;
    EXPECT_EQ(out.substr(0, out.find("ODBC-Fehler")),
              "3\n1\n0\n3.750000\n0\n3.000000\n0\n1\n0.000000\n1\n0.000000\n");
    EXPECT_NE(out.find("Anweisung: SELECT MAX(a) FROM no_such_table\n-1\n7.000000\n"), std::string::npos) << out;
}

// Names with quotes, blanks and semicolons stay names: the helpers delimit
// them and double their quotes, so nothing of them is read as SQL.
TEST_P(OdbcValues, AggregateNamesWithQuotesAndSemicolons) {
    run("OdbcPerformSql(h, \"DROP TABLE IF EXISTS \\\"odd \\\"\\\"name\\\"\\\"; x\\\"\", 0);");
    exec("CREATE TABLE \\\"odd \\\"\\\"name\\\"\\\"; x\\\" (\\\"we\\\"\\\"ird\\\" INTEGER)|"
         "INSERT INTO \\\"odd \\\"\\\"name\\\"\\\"; x\\\" VALUES (4)|"
         "INSERT INTO \\\"odd \\\"\\\"name\\\"\\\"; x\\\" VALUES (6)");
    MacroRun r = run("float f;"
                     "Print(OdbcCountRecords(h, \"odd \\\"name\\\"; x\", \"\", 0));"
                     "Print(OdbcAddFields(h, \"odd \\\"name\\\"; x\", \"we\\\"ird\", \"\", f, 0)); Print(f);"
                     "Print(OdbcGetMaximum(h, \"\\\"odd \\\"\\\"name\\\"\\\"; x\\\"\", \"we\\\"ird\", \"\", f, 0)); Print(f);"
                     "Print(OdbcCountRecords(h, \"odd \\\"name\\\"; x\\\"; DROP TABLE x; --\", \"\", 0));");
    EXPECT_EQ(r.output.substr(0, r.output.find("ODBC-Fehler")), "2\n0\n10.000000\n0\n6.000000\n");
    EXPECT_NE(r.output.find("FROM \"odd \"\"name\"\"; x\"\"; DROP TABLE x; --\"\n-1\n"), std::string::npos)
        << r.output;
    exec("DROP TABLE \\\"odd \\\"\\\"name\\\"\\\"; x\\\"");
}

// Date literals: neither database is Microsoft SQL Server, so both get
// #MM-DD-YYYY#; two-digit years count from 1900, day and month are not
// checked, and the text is cut to the variable.
TEST_P(OdbcValues, DateLiterals) {
    MacroRun r = run("char v[20]; char c[5];"
                     "Print(OdbcDateToSqlConst(h, v, 1, 2, 3)); Print(v);"
                     "OdbcDateToSqlConst(h, v, 24, 12, 2003); Print(v);"
                     "OdbcDateToSqlConst(h, v, 31, 1, 99); Print(v);"
                     "OdbcDateToSqlConst(h, v, 99, 13, 100); Print(v);"
                     "Print(OdbcDateToSqlConst(h, c, 24, 12, 2003)); Print(c);");
    EXPECT_EQ(r.output, "0\n#02-01-1903#\n#12-24-2003#\n#01-31-1999#\n#13-99-0100#\n0\n#12-\n");
}

ODBC_BOTH_DATABASES(OdbcValues);

// With MORVIX_SQL_LOG set, every statement is appended to the log with a
// time stamp before it runs; without it nothing is written.
TEST(OdbcStatementLog, StatementsAreLoggedWhenALogIsNamed) {
    std::string log = scratchDir() + "/sql.log";
    setenv("MORVIX_SQL_LOG", log.c_str(), 1);
    MacroRun r = runMemory(u16("int h; char v[10]; h = " + connectCall(kSqlite) +
                               "; OdbcSelectLine(h, \"SELECT 'Жж'\", v, 0); OdbcPerformSql(h, \"SELEKT\", 0);"));
    unsetenv("MORVIX_SQL_LOG");
    MacroRun quiet = runMemory(u16("int h; h = " + connectCall(kSqlite) + "; OdbcPerformSql(h, \"SELECT 2\", 0);"));
    closeAll();
    std::regex entry(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\t([^\r]*)\r\n)");
    std::string text = readFile(log), statements;
    for (std::sregex_iterator it(text.begin(), text.end(), entry), end; it != end; ++it)
        statements += (*it)[1].str() + "|";
    EXPECT_EQ(statements, "SELECT 'Жж'|SELEKT|");
    EXPECT_EQ(mx::zodbcLiveHandles().statements, 0);
}

}  // namespace
