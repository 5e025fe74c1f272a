// ODBC through morvix32w.dll under Wine: the library's wide calls reach
// Wine's odbc32, which forwards to unixODBC and the same SQLite and
// PostgreSQL drivers as the native tests. The native tests hold every rule
// of the ODBC functions; here each database gets one pass over what crosses
// odbc32: non-Latin text both ways, the values of each SQL type, the result
// file's bytes and the drivers' diagnostics.
#include <gtest/gtest.h>

#include "win_harness.h"

namespace {

struct Database {
    const char *name, *connect;
    bool postgres;
};

class OdbcWine : public ::testing::TestWithParam<Database> {};

std::string utf16le(const std::string &text) {
    std::string out;
    for (char16_t c : utf16(text)) out += {char(c & 0xFF), char(c >> 8)};
    return out;
}

TEST_P(OdbcWine, TextValuesFilesAndDiagnosticsCrossOdbc32) {
    bool pg = GetParam().postgres;
    std::wstring wdir = winScratchDir();
    std::string dir = utf8(wdir), t = std::string("w_") + GetParam().name;
    for (char &c : dir)
        if (c == '\\') c = '/';
    std::string out = runIn(nullptr, std::string("int h; char v[100]; char five[5]; float f; h = ") + GetParam().connect + ";"
        "OdbcPerformSql(h, \"DROP TABLE IF EXISTS " + t + "\", 0); Print(\"--\");"
        "Print(OdbcPerformSql(h, \"CREATE TABLE " + t + " (i INTEGER, t VARCHAR(40), n NUMERIC(10,2), dt DATE, ts TIMESTAMP, bin " +
        (pg ? "BYTEA" : "BLOB") + ")\", 0));"
        "Print(OdbcPerformSql(h, \"INSERT INTO " + t + " VALUES (-42, 'Ελληνικά', 1234.50, '2003-12-24', '2003-12-24 10:11:12.250', " +
        (pg ? "decode('00ff10', 'hex')" : "x'00ff10'") + ")\", 0));"
        "Print(OdbcPerformSql(h, \"INSERT INTO " + t + " VALUES (8, '日本語', NULL, NULL, NULL, NULL)\", 0));"
        "Print(OdbcSelectLine(h, \"SELECT i, t, n, dt, ts, bin FROM " + t + " WHERE i < 0\", v, 0)); Print(v);"
        "Print(OdbcSelectLine(h, \"SELECT t FROM " + t + " WHERE i = -42\", five, 0)); Print(five);"
        "Print(OdbcSelect(h, \"SELECT i, t, n FROM " + t + " ORDER BY i\", \"" + dir + "/two.txt\", 0));"
        "Print(OdbcAddFields(h, \"" + t + "\", \"i\", \"\", f, 0)); Print(f);"
        "Print(OdbcPerformSql(h, \"SELEKT 1\", 0));"
        "Print(OdbcConnect(\"NoSuchSource\", \"\", \"\", 0)); Print(OdbcDisconnect(h)); Print(OdbcDisconnect(h));");
    std::string n = pg ? "1234,50" : "1234,5";
    size_t from = out.find("--\n") + 3;
    EXPECT_EQ(out.substr(from, out.find("ODBC-Fehler", from) - from),
              "0\n0\n0\n0\n-42\tΕλληνικά\t" + n + "\t24.12.2003\t24.12.2003 10:11:12,25\t00FF10\n0\nΕλλη\n0\n0\n-34.000000\n");
    EXPECT_NE(out.find("Anweisung: SELEKT 1\n-1\n"), std::string::npos) << out;
    EXPECT_NE(out.find("ODBC-Fehler: SQLSTATE IM002"), std::string::npos) << out;
    const std::string end = "\n0\n0\nMakrofehler: s Der ODBC-Connection-Handle ist ungültig.\n0\n";
    EXPECT_EQ(out.substr(out.size() - std::min(out.size(), end.size())), end);
    EXPECT_EQ(winReadFile(wdir + L"\\two.txt"), "\xFF\xFE" + utf16le("-42\tΕλληνικά\t" + n + "\r\n8\t日本語\t\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Db, OdbcWine,
                         ::testing::Values(Database{"Sqlite", "OdbcConnect(\"MorvixSqlite\", \"\", \"\", 0)", false},
                                           Database{"Postgres", "OdbcConnect(\"MorvixPg\", \"morvix\", \"Geheim-42\", 0)", true}),
                         [](const ::testing::TestParamInfo<Database> &info) { return std::string(info.param.name); });

}  // namespace
