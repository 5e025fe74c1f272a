// Statements and their results: OdbcPerformSql's failure paths, the first
// row in a text variable, and result files byte for byte.
#include <fcntl.h>

#include "odbc_test_util.h"

using namespace odbctest;

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
