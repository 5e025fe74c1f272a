// German public holidays: the nationwide ones and those of whole states, as
// the holiday laws stand, with the years in which a rule held.
#include "helperlib/kelvane_date.h"

namespace mx {

namespace {

constexpr int32_t kAllStates = 0xFFFF;
constexpr int32_t kEasterBased = 0;  // month 0: day is an offset from Easter Sunday
constexpr int32_t kRepentance = -1;  // month -1: the Wednesday before 23 November

struct Holiday {
    int32_t number;
    int32_t month;   // 1-12, kEasterBased or kRepentance
    int32_t day;     // day of the month, or days after Easter Sunday
    int32_t states;  // kAllStates: nationwide
    int32_t from, to;  // the years in which the rule holds
};

constexpr int32_t kOpen = kDateLastYear;
constexpr int32_t kReformationStates = kStateBB | kStateMV | kStateSN | kStateST | kStateTH;
constexpr int32_t kNorthStates = kStateHB | kStateHH | kStateNI | kStateSH;
constexpr int32_t kCorpusChristiStates = kStateBW | kStateBY | kStateHE | kStateNW | kStateRP | kStateSL;
constexpr int32_t kAllSaintsStates = kStateBW | kStateBY | kStateNW | kStateRP | kStateSL;

const Holiday kHolidays[] = {
    {1, 1, 1, kAllStates, 1, kOpen},                               // Neujahr
    {2, 1, 6, kStateBW | kStateBY | kStateST, 1, kOpen},            // Heilige Drei Könige
    {3, 3, 8, kStateBE, 2019, kOpen},                               // Internationaler Frauentag
    {3, 3, 8, kStateMV, 2023, kOpen},
    {4, kEasterBased, -2, kAllStates, 1, kOpen},                    // Karfreitag
    {5, kEasterBased, 0, kStateBB, 1, kOpen},                       // Ostersonntag
    {6, kEasterBased, 1, kAllStates, 1, kOpen},                     // Ostermontag
    {7, 5, 1, kAllStates, 1, kOpen},                                // Tag der Arbeit
    {8, kEasterBased, 39, kAllStates, 1, kOpen},                    // Christi Himmelfahrt
    {9, kEasterBased, 49, kStateBB, 1, kOpen},                      // Pfingstsonntag
    {10, kEasterBased, 50, kAllStates, 1, kOpen},                   // Pfingstmontag
    {11, kEasterBased, 60, kCorpusChristiStates, 1, kOpen},         // Fronleichnam
    {12, 8, 15, kStateSL, 1, kOpen},                                // Mariä Himmelfahrt
    {13, 9, 20, kStateTH, 2019, kOpen},                             // Weltkindertag
    {14, 10, 3, kAllStates, 1990, kOpen},                           // Tag der Deutschen Einheit
    {15, 10, 31, kReformationStates, 1990, kOpen},                  // Reformationstag
    {15, 10, 31, kAllStates, 2017, 2017},
    {15, 10, 31, kNorthStates, 2018, kOpen},
    {16, 11, 1, kAllSaintsStates, 1, kOpen},                        // Allerheiligen
    {17, kRepentance, 0, kStateSN, 1995, kOpen},                    // Buß- und Bettag
    {17, kRepentance, 0, kAllStates, 1990, 1994},
    {18, 12, 25, kAllStates, 1, kOpen},                             // 1. Weihnachtstag
    {19, 12, 26, kAllStates, 1, kOpen},                             // 2. Weihnachtstag
    {20, 5, 8, kStateBE, 2020, 2020},                               // Tag der Befreiung
    {20, 5, 8, kStateBE, 2025, 2025},
    {21, 6, 17, kAllStates, 1954, 1990},                            // 17. Juni
};

// Day number of the rule's day in year.
int64_t dayOf(const Holiday &h, int32_t year, int64_t easter) {
    if (h.month == kEasterBased) return easter + h.day;
    if (h.month == kRepentance) {
        int64_t nov23 = kdtDayNumber(year, 11, 23);
        int64_t sinceWednesday = (nov23 % 7 + 7 - 3) % 7;  // day numbers run with the weekday
        return nov23 - (sinceWednesday == 0 ? 7 : sinceWednesday);
    }
    return kdtDayNumber(year, h.month, h.day);
}

}  // namespace

int32_t Kelvane_IsHoliday(int32_t year, int32_t month, int32_t day, int32_t flags) {
    if (!kdtValidDate(year, month, day)) return 0;
    KelvaneDateTime easter{};
    Kelvane_ComputeEasterSunday(year, &easter);
    int64_t easterDay = kdtDayNumber(year, easter.month, easter.day);
    int64_t today = kdtDayNumber(year, month, day);
    for (const Holiday &h : kHolidays) {
        bool applies = h.states == kAllStates || (h.states & flags) != 0;
        if (applies && year >= h.from && year <= h.to && dayOf(h, year, easterDay) == today) return h.number;
    }
    return 0;
}

}  // namespace mx
