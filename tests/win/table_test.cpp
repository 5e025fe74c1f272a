// The built-in function table as a host reads it from morvix32w.dll: through
// the export, walking to the all-zero row.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "win_harness.h"

namespace {

std::vector<const MX_FUNCTION_ROW *> hostWalk() {
    std::vector<const MX_FUNCTION_ROW *> rows;
    const MX_FUNCTION_ROW *r = dll().getFunctionList();
    for (; r && r->name && rows.size() < 1000; ++r) rows.push_back(r);
    return rows;
}

const MX_FUNCTION_ROW *hostFind(const std::wstring &name) {
    for (const MX_FUNCTION_ROW *r : hostWalk())
        if (name == r->name) return r;
    return nullptr;
}

}  // namespace

TEST(WinTable, TheExportGivesTheSortedTableEndedByTheAllZeroRow) {
    ASSERT_NE(dll().getFunctionList, nullptr);
    EXPECT_EQ(dll().getFunctionList(), dll().getFunctionList());
    auto rows = hostWalk();
    ASSERT_EQ(rows.size(), 318u);
    const MX_FUNCTION_ROW *end = rows.back() + 1;
    EXPECT_EQ(end->name, nullptr);
    EXPECT_EQ(end->identifier, 0u);
    EXPECT_EQ(end->signature, nullptr);
    EXPECT_EQ(end->paramNames, nullptr);
    size_t constants = 0;
    std::set<DWORD> numbers;
    for (size_t i = 0; i < rows.size(); ++i) {
        if (i > 0) EXPECT_LT(std::wstring(rows[i - 1]->name), std::wstring(rows[i]->name)) << i;
        if (!rows[i]->signature) ++constants;
        else numbers.insert(rows[i]->identifier & 0xFFFF);
    }
    EXPECT_EQ(constants, 32u);
    EXPECT_EQ(numbers.size(), 196u);
}

TEST(WinTable, RowsReadAsTheHostSeesThem) {
    const MX_FUNCTION_ROW *open = hostFind(L"Datei\u00D6ffnen");
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(open->identifier, 65538u);
    EXPECT_EQ(std::wstring(open->signature), L"C[]C[]");
    EXPECT_EQ(std::wstring(open->paramNames), L"Dateiname,ModusText");
    const MX_FUNCTION_ROW *stop = hostFind(L"STOP");
    ASSERT_NE(stop, nullptr);
    EXPECT_EQ(stop->identifier, 83u);
    EXPECT_EQ(stop->signature, nullptr);
    EXPECT_EQ(stop->paramNames, nullptr);
    const MX_FUNCTION_ROW *list = hostFind(L"ListenDialogAnsi");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->identifier, 74537u);
}

TEST(WinTable, NamedConstantsWorkInAMacro) {
    WinRun r = winRunMemory(u"Print(STOP); Print(HKEY_LOCAL_MACHINE); stop; Print(1);");
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "83\n2\n");
}
