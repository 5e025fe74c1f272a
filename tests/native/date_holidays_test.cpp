// German public holidays and school holidays from a data file.
#include <gtest/gtest.h>

#include "helperlib/kelvane_date.h"
#include "macro_harness.h"

using namespace mx;

namespace {

TEST(DateHolidays, NationwideHolidays2024) {
    const struct {
        int32_t m, d, number;
    } days[] = {
        {1, 1, 1},   {3, 29, 4},  {4, 1, 6},    {5, 1, 7},    {5, 9, 8},   {5, 20, 10},
        {10, 3, 14}, {12, 25, 18}, {12, 26, 19}, {3, 31, 0},   {1, 6, 0},   {5, 30, 0},
        {10, 31, 0}, {11, 1, 0},  {11, 20, 0},  {12, 24, 0},  {8, 15, 0},  {3, 8, 0},
    };
    for (auto &h : days) EXPECT_EQ(Kelvane_IsHoliday(2024, h.m, h.d, 0), h.number) << h.d << "." << h.m;
}

TEST(DateHolidays, StateHolidaysNeedTheirBit) {
    const struct {
        int32_t y, m, d, flags, number;
    } cases[] = {
        {2024, 1, 6, kStateBY, 2},           {2024, 1, 6, kStateNW, 0},
        {2024, 5, 30, kStateNW, 11},         {2024, 5, 30, kStateSN, 0},   // Fronleichnam
        {2024, 8, 15, kStateSL, 12},         {2024, 8, 15, kStateBY, 0},   // whole states only
        {2024, 10, 31, kStateSN, 15},        {2024, 10, 31, kStateHH, 15},
        {2017, 10, 31, 0, 15},               {2016, 10, 31, kStateHH, 0},
        {2024, 11, 1, kStateBW | kStateSN, 16},
        {2024, 11, 20, kStateSN, 17},        {2023, 11, 22, kStateSN, 17}, // the Wednesday before 23 November
        {2022, 11, 16, kStateSN, 17},        {2022, 11, 23, kStateSN, 0},
        {1994, 11, 16, 0, 17},               {1995, 11, 22, 0, 0},
        {2024, 3, 8, kStateBE, 3},           {2018, 3, 8, kStateBE, 0},    {2024, 3, 8, kStateMV, 3},
        {2024, 9, 20, kStateTH, 13},         {2024, 3, 31, kStateBB, 5},   {2024, 5, 19, kStateBB, 9},
        {2025, 5, 8, kStateBE, 20},          {2024, 5, 8, kStateBE, 0},
        {1989, 6, 17, 0, 21},                {1991, 6, 17, 0, 0},          {1989, 10, 3, 0, 0},
        {2024, 6, 1, 0xFFFF, 0},
    };
    for (auto &c : cases)
        EXPECT_EQ(Kelvane_IsHoliday(c.y, c.m, c.d, c.flags), c.number) << c.d << "." << c.m << "." << c.y;
    EXPECT_EQ(Kelvane_IsHoliday(2024, 2, 30, 0xFFFF), 0);
}

TEST(DateHolidays, EasterBasedHolidaysMoveWithEaster) {
    // 2038 has the latest Easter of the century, 25 April.
    EXPECT_EQ(Kelvane_IsHoliday(2038, 4, 23, 0), 4);
    EXPECT_EQ(Kelvane_IsHoliday(2038, 4, 26, 0), 6);
    EXPECT_EQ(Kelvane_IsHoliday(2038, 6, 3, 0), 8);
    EXPECT_EQ(Kelvane_IsHoliday(2038, 6, 14, 0), 10);
    EXPECT_EQ(Kelvane_IsHoliday(2038, 6, 24, kStateBW), 11);
}

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
