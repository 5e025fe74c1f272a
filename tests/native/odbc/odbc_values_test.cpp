// What macros receive: each SQL type as text, the aggregate helpers, date
// literals, and the statement log.
#include <cstdlib>
#include <regex>

#include "odbc_test_util.h"

using namespace odbctest;

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
