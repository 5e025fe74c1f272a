// School holidays from a data file.
//
// File format (8-bit text, one period a line):
//   line   := country sep state sep first sep last [sep name]
//   sep    := one or more TABs or blanks
//   first, last := YYYY-MM-DD, both days belonging to the period
// Lines that are empty, start with "#" or do not have this form are skipped.
// country is the telephone code (49 for Germany), state the number 1 to 16
// of the holiday flags (0: the whole country).
#include <cstdlib>

#include "base/u16.h"
#include "base/utf8.h"
#include "helperlib/kelvane_date.h"
#include "platform/files.h"

namespace mx {

namespace {

constexpr int32_t kPathCapacity = 1024;
constexpr int32_t kFieldCapacity = 32;
constexpr int32_t kLineCapacity = 512;

char16_t gPath[kPathCapacity];
bool gPathSet = false;

// The file to read: the one set, else the one the environment names.
bool holidayFile(char16_t *path, int32_t capacity) {
    if (gPathSet) return u16Copy(path, capacity, gPath) > 0;
#ifdef _WIN32
    const wchar_t *named = _wgetenv(L"MORVIX_SCHOOLHOLIDAYS");
    return named && u16Copy(path, capacity, reinterpret_cast<const char16_t *>(named)) > 0;
#else
    const char *named = std::getenv("MORVIX_SCHOOLHOLIDAYS");
    if (!named) return false;
    std::u16string wide = fromUtf8(named);
    return u16Copy(path, capacity, wide.c_str()) > 0;
#endif
}

// Reads one line (cut to the capacity; the rest is skipped). False at the end.
bool readLine(MxpFile *file, char16_t *line, int32_t capacity) {
    int32_t n = 0, c = 0;
    bool any = false;
    while ((c = mxp_FileGetChar(file)) >= 0 && c != u'\n') {
        any = true;
        if (n < capacity - 1) line[n++] = char16_t(c);
    }
    line[n] = 0;
    return any || c == u'\n';
}

// Copies the next field of line at *p into field; false when there is none.
bool nextField(const char16_t *line, int32_t *p, char16_t *field) {
    while (line[*p] == u' ' || line[*p] == u'\t') ++*p;
    int32_t n = 0;
    while (line[*p] && line[*p] != u' ' && line[*p] != u'\t') {
        if (n < kFieldCapacity - 1) field[n++] = line[*p];
        ++*p;
    }
    field[n] = 0;
    return n > 0;
}

bool numberField(const char16_t *field, int32_t *value) {
    int64_t v = 0;
    for (int32_t i = 0; field[i]; ++i) {
        if (field[i] < u'0' || field[i] > u'9' || i > 8) return false;
        v = v * 10 + (field[i] - u'0');
    }
    *value = int32_t(v);
    return true;
}

int64_t dayField(const char16_t *field) {
    KelvaneDateTime rec{};
    if (FormattedDate_To_DateTimeStructW(field, u"%Y2-%M2-%D2", &rec) != 0) return -1;
    return kdtDayNumber(rec.year, rec.month, rec.day);
}

// True when the line is a period of country and state (or of state 0) holding day.
bool lineHolds(const char16_t *line, int32_t country, int32_t state, int64_t day) {
    char16_t field[kFieldCapacity];
    int32_t p = 0, lineCountry = 0, lineState = 0;
    if (!nextField(line, &p, field) || field[0] == u'#' || !numberField(field, &lineCountry)) return false;
    if (!nextField(line, &p, field) || !numberField(field, &lineState)) return false;
    if (!nextField(line, &p, field)) return false;
    int64_t first = dayField(field);
    if (!nextField(line, &p, field)) return false;
    int64_t last = dayField(field);
    if (first < 0 || last < 0 || lineCountry != country) return false;
    return (lineState == state || lineState == 0) && day >= first && day <= last;
}

}  // namespace

void Kelvane_SetSchoolHolidayFile(const char16_t *path) {
    gPathSet = path != nullptr;
    u16Copy(gPath, kPathCapacity, path);
}

int32_t Kelvane_IsSchoolHoliday(int32_t country, int32_t state, int32_t year, int32_t month,
                                int32_t day) {
    if (!kdtValidDate(year, month, day)) return 0;
    char16_t path[kPathCapacity];
    if (!holidayFile(path, kPathCapacity)) return 0;
    MxpFile *file = mxp_FileOpen(path, u"rt", Share::kDenyNone, nullptr);
    if (!file) return 0;
    int64_t today = kdtDayNumber(year, month, day);
    char16_t line[kLineCapacity];
    int32_t found = 0;
    while (!found && readLine(file, line, kLineCapacity)) found = lineHolds(line, country, state, today) ? 1 : 0;
    mxp_FileClose(file);
    return found;
}

}  // namespace mx
