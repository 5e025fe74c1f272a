// Shared pieces of the ODBC tests: the two test databases, macro runs with a
// connection prepared, and the check that every test leaves no statement,
// connection or environment handle behind.
#pragma once
#include <gtest/gtest.h>

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
