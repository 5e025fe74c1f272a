// ODBC through morvix32w.dll under Wine: Wine's odbc32 forwards to unixODBC,
// which loads the same SQLite and PostgreSQL drivers as the native tests.
// Each case runs against both databases.
#include <gtest/gtest.h>

#include <string>

#include "win_harness.h"

namespace {

struct Database {
    const char *name;
    const char *dsn;
    const char *user;
    const char *password;
    bool postgres;
};

const Database kSqlite = {"Sqlite", "MorvixSqlite", "", "", false};
const Database kPostgres = {"Postgres", "MorvixPg", "morvix", "Geheim-42", true};

void PrintTo(const Database &d, std::ostream *os) { *os << d.name; }

std::u16string u16(const std::string &utf8) {
    int n = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), nullptr, 0);
    std::wstring w(size_t(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), w.data(), n);
    return std::u16string(w.begin(), w.end());
}

std::string utf16le(const std::string &utf8) {
    std::string out;
    for (char16_t c : u16(utf8)) {
        out += char(c & 0xFF);
        out += char(c >> 8);
    }
    return out;
}

// A scratch directory as macros write it: with slashes, since a backslash
// starts an escape inside macro texts.
std::string macroDir() {
    std::wstring w = winScratchDir();
    std::string s(w.begin(), w.end());
    for (char &c : s)
        if (c == '\\') c = '/';
    return s;
}

std::wstring winPath(const std::string &macroPath) { return std::wstring(macroPath.begin(), macroPath.end()); }

const std::string kBom = "\xFF\xFE";
const std::string kBadHandle = "Makrofehler: s Der ODBC-Connection-Handle ist ungültig.\n";

class OdbcWine : public ::testing::TestWithParam<Database> {
protected:
    const Database &db() const { return GetParam(); }

    std::string connectCall() const {
        return std::string("OdbcConnect(\"") + db().dsn + "\", \"" + db().user + "\", \"" + db().password + "\", 0)";
    }

    WinRun run(const std::string &body) { return winRunMemory(u16("int h; h = " + connectCall() + "; " + body)); }

    void exec(const std::string &statement) {
        WinRun r = run("Print(OdbcPerformSql(h, \"" + statement + "\", 0));");
        ASSERT_EQ(r.output, "0\n") << statement;
    }

    std::string table(const std::string &columns) {
        std::string name = std::string("w_") + ::testing::UnitTest::GetInstance()->current_test_info()->name();
        for (char &c : name)
            if (c == '/') c = '_';
        run("OdbcPerformSql(h, \"DROP TABLE IF EXISTS " + name + "\", 0);");
        exec("CREATE TABLE " + name + " (" + columns + ")");
        return name;
    }

    void TearDown() override {
        std::string all;
        for (int i = 1; i <= 10; ++i) all += "OdbcDisconnect(" + std::to_string(i) + ");";
        winRunMemory(u16(all));
    }
};

// Equal parameters share a connection across runs; the lowest free slot is
// reused; bad handles give message 155.
TEST_P(OdbcWine, ConnectionsAndBadHandles) {
    WinRun first = winRunMemory(u16("Print(" + connectCall() + "); Print(" + connectCall() + ");"));
    WinRun second = winRunMemory(u16("Print(" + connectCall() + "); Print(OdbcDisconnect(1));"
                                     "Print(OdbcConnect(\"MorvixSqlite2\", \"\", \"\", 0)); Print(OdbcDisconnect(1));"
                                     "Print(OdbcDisconnect(1)); Print(OdbcPerformSql(0, \"SELECT 1\", 0));"
                                     "Print(OdbcCountRecords(11, \"t\", \"\", 0));"));
    EXPECT_EQ(first.output, "1\n1\n");
    EXPECT_EQ(second.output, "1\n0\n1\n0\n" + kBadHandle + "0\n" + kBadHandle + "-1\n" + kBadHandle + "-1\n");
    WinRun missing = winRunMemory(u16("Print(OdbcConnect(\"NoSuchSource\", \"\", \"\", 0));"));
    EXPECT_NE(missing.output.find("ODBC-Fehler: SQLSTATE IM002"), std::string::npos) << missing.output;
    if (db().postgres) {
        WinRun wrong = winRunMemory(u16("Print(OdbcConnect(\"MorvixPg\", \"morvix\", \"falsch\", 0));"));
        EXPECT_NE(wrong.output.find("password authentication failed"), std::string::npos) << wrong.output;
        EXPECT_EQ(wrong.output.substr(wrong.output.size() - 2), "0\n");
    }
}

// The first row in a variable and the whole result in a file, with
// non-Latin text, NULLs, no rows, and a cut at the variable's capacity.
TEST_P(OdbcWine, SelectLineAndResultFile) {
    std::string t = table("id INTEGER, name VARCHAR(40), note VARCHAR(40)");
    exec("INSERT INTO " + t + " VALUES (1, 'Grüße', 'Ελληνικά')");
    exec("INSERT INTO " + t + " VALUES (2, NULL, '日本語')");
    std::string dir = macroDir();
    WinRun r = run("char v[100]; char five[5];"
                   "Print(OdbcSelectLine(h, \"SELECT id, name, note FROM " + t + " ORDER BY id DESC\", v, 0)); Print(v);"
                   "Print(OdbcSelectLine(h, \"SELECT id FROM " + t + " WHERE id > 5\", v, 0)); Print(StrLen(v));"
                   "Print(OdbcSelectLine(h, \"SELECT note FROM " + t + " WHERE id = 1\", five, 0)); Print(five);"
                   "Print(OdbcSelect(h, \"SELECT id, note FROM " + t + " ORDER BY id\", \"" + dir + "/two.txt\", 0));"
                   "Print(OdbcSelect(h, \"SELECT name, id, name FROM " + t + " WHERE id = 2\", \"" + dir + "/null.txt\", 0));"
                   "Print(OdbcSelect(h, \"SELECT id FROM " + t + " WHERE id < 0\", \"" + dir + "/none.txt\", 0));");
    EXPECT_EQ(r.output, "0\n2\t\t日本語\n0\n0\n0\nΕλλη\n0\n0\n0\n");
    EXPECT_EQ(winReadFile(winPath(dir + "/two.txt")), kBom + utf16le("1\tΕλληνικά\r\n2\t日本語\r\n"));
    EXPECT_EQ(winReadFile(winPath(dir + "/null.txt")), kBom + utf16le("\t2\t\r\n"));
    EXPECT_EQ(winReadFile(winPath(dir + "/none.txt")), kBom);
}

// Failures: a rejected statement leaves an empty file; a missing directory
// and a file held by OpenFile give message 156; a value over 998 bytes, a
// syntax error, an update without rows and (PostgreSQL) a notice fail with
// the statement error.
TEST_P(OdbcWine, FailuresShowTheirMessages) {
    std::string t = table("id INTEGER");
    exec("INSERT INTO " + t + " VALUES (1)");
    std::string dir = macroDir();
    std::string longText = db().postgres ? "repeat('b', 499)" : "printf('%.499c', 'b')";
    WinRun r = run("int f; char v[600];"
                   "Print(OdbcSelect(h, \"SELECT nothing FROM nowhere\", \"" + dir + "/bad.txt\", 0));"
                   "Print(OdbcSelect(h, \"SELECT id FROM " + t + "\", \"" + dir + "/no/such.txt\", 0));"
                   "f = OpenFile(\"" + dir + "/held.txt\", \"w\");"
                   "Print(OdbcSelect(h, \"SELECT id FROM " + t + "\", \"" + dir + "/held.txt\", 0)); CloseFile(f);"
                   "Print(OdbcSelectLine(h, \"SELECT " + longText + "\", v, 0));"
                   "Print(OdbcPerformSql(h, \"SELEKT 1\", 0));"
                   "Print(OdbcPerformSql(h, \"UPDATE " + t + " SET id = 5 WHERE id = 99\", 0));");
    const std::string &out = r.output;
    EXPECT_NE(out.find("Anweisung: SELECT nothing FROM nowhere\n-1\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Die Zieldatei der Datenbankselektion  '" + dir + "/no/such.txt'  kann nicht angelegt werden.\n-1\n"),
              std::string::npos) << out;
    EXPECT_NE(out.find("Die Zieldatei der Datenbankselektion  '" + dir + "/held.txt'  kann nicht angelegt werden.\n-1\n"),
              std::string::npos) << out;
    EXPECT_NE(out.find("SQLSTATE 01004"), std::string::npos) << out;
    EXPECT_NE(out.find("Anweisung: SELEKT 1\n-1\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Der Treiber meldet keine Diagnose"), std::string::npos) << out;
    EXPECT_EQ(out.substr(out.size() - 3), "-1\n");
    EXPECT_EQ(winReadFile(winPath(dir + "/bad.txt")), "");
    if (db().postgres) {
        WinRun notice = run("Print(OdbcPerformSql(h, \"DO $$BEGIN RAISE NOTICE 'Hinweis'; END$$\", 0));");
        EXPECT_NE(notice.output.find("Hinweis"), std::string::npos) << notice.output;
        EXPECT_EQ(notice.output.substr(notice.output.size() - 3), "-1\n");
    }
}

// Values of each SQL type, the aggregate helpers and date literals, as
// natively.
TEST_P(OdbcWine, ValuesAggregatesAndDates) {
    bool pg = db().postgres;
    std::string t = table(std::string("i INTEGER, n NUMERIC(10,2), d DOUBLE PRECISION, dt DATE, ts TIMESTAMP, b ") +
                          (pg ? "BOOLEAN, bin BYTEA" : "BIT, bin BLOB"));
    exec("INSERT INTO " + t + " VALUES (-42, 1234.50, -0.125, '2003-12-24', '2003-12-24 10:11:12.250', " +
         (pg ? "true, decode('00ff10', 'hex')" : "1, x'00ff10'") + ")");
    exec("INSERT INTO " + t + " VALUES (8, 1, 0.5, NULL, NULL, NULL, NULL)");
    std::string body = "char v[100]; float f;";
    for (const char *column : {"i", "n", "d", "dt", "ts", "b", "bin"})
        body += std::string("OdbcSelectLine(h, \"SELECT ") + column + " FROM " + t + " WHERE i < 0\", v, 0); Print(v);";
    body += "Print(OdbcCountRecords(h, \"" + t + "\", \"i > 0\", 0));"
            "Print(OdbcAddFields(h, \"" + t + "\", \"d\", \"\", f, 0)); Print(f);"
            "Print(OdbcGetMaximum(h, \"" + t + "\", \"i\", \"i > 100\", f, 0)); Print(f);"
            "OdbcDateToSqlConst(h, v, 1, 2, 3); Print(v);";
    WinRun r = run(body);
    EXPECT_EQ(r.output, std::string("-42\n") + (pg ? "1234,50\n" : "1234,5\n") +
                            "-0,125\n24.12.2003\n24.12.2003 10:11:12,25\n1\n00FF10\n1\n0\n0.375000\n1\n0.000000\n"
                            "#02-01-1903#\n");
}

INSTANTIATE_TEST_SUITE_P(Db, OdbcWine, ::testing::Values(kSqlite, kPostgres),
                         [](const ::testing::TestParamInfo<Database> &info) { return std::string(info.param.name); });

}  // namespace
