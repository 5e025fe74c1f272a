// School holidays from a data file the host names (the public holidays are
// cases in tests/cases/numbers.cases).
#include <gtest/gtest.h>

#include "helperlib/kelvane_date.h"
#include "macro_harness.h"

using namespace mx;

namespace {

TEST(DateHolidays, SchoolHolidaysComeFromTheDataFile) {
    std::string dir = scratchDir();
    std::string path = dir + "/ferien.txt";
    writeFile(path,
              "# country state first last name\n"
              "49\t2\t2024-07-29\t2024-09-09\tSommerferien\n"
              "49 0 2024-12-23 2025-01-04 Weihnachtsferien\n"
              "\n"
              "49\t9\tnot-a-date\t2024-01-01\n"
              "44\t2\t2024-06-01\t2024-06-30\n");
    Kelvane_SetSchoolHolidayFile(u16(path).c_str());
    const struct {
        int32_t country, state, y, m, d, expected;
    } cases[] = {
        {49, 2, 2024, 7, 29, 1},  {49, 2, 2024, 9, 9, 1},  {49, 2, 2024, 9, 10, 0}, {49, 2, 2024, 7, 28, 0},
        {49, 3, 2024, 8, 1, 0},   {49, 3, 2024, 12, 31, 1}, {49, 16, 2025, 1, 4, 1}, {49, 2, 2025, 1, 5, 0},
        {44, 2, 2024, 6, 15, 1},  {49, 2, 2024, 6, 15, 0},  {49, 2, 2024, 2, 30, 0},
    };
    for (auto &c : cases)
        EXPECT_EQ(Kelvane_IsSchoolHoliday(c.country, c.state, c.y, c.m, c.d), c.expected)
            << c.country << "/" << c.state << " " << c.d << "." << c.m << "." << c.y;
    Kelvane_SetSchoolHolidayFile(u16(dir + "/missing.txt").c_str());
    EXPECT_EQ(Kelvane_IsSchoolHoliday(49, 2, 2024, 8, 1), 0);
    Kelvane_SetSchoolHolidayFile(nullptr);
}

TEST(DateHolidays, TheSampleFileOfTheResourcesReads) {
    std::string sample = std::string(MX_SOURCE_DIR) + "/resources/schoolholidays.sample.txt";
    ASSERT_FALSE(readFile(sample).empty());
    Kelvane_SetSchoolHolidayFile(u16(sample).c_str());
    EXPECT_EQ(Kelvane_IsSchoolHoliday(49, 2, 2024, 8, 15), 1);
    EXPECT_EQ(Kelvane_IsSchoolHoliday(49, 2, 2024, 10, 15), 0);
    Kelvane_SetSchoolHolidayFile(nullptr);
}

}  // namespace
