// Column values as macros receive them. The driver delivers every value as
// wide text; numbers get the caller's decimal separator, dates and time
// stamps the German day.month.year order, bits 0 or 1, binary data upper-case
// hexadecimal digits. Everything else stays as delivered.
#include <cstring>

#include "odbc/zodbc.h"

namespace mx {

namespace {

int32_t length(const char16_t *text, int32_t capacity) {
    int32_t n = 0;
    while (n < capacity && text[n]) ++n;
    return n;
}

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// True when text[at..] holds "YYYY-MM-DD".
bool isIsoDate(const char16_t *text, int32_t n, int32_t at) {
    if (n - at < 10) return false;
    for (int32_t i = 0; i < 10; ++i) {
        bool dash = i == 4 || i == 7;
        if (dash ? text[at + i] != u'-' : !isDigit(text[at + i])) return false;
    }
    return true;
}

// "YYYY-MM-DD..." becomes "DD.MM.YYYY..." in place (same length).
void reorderDate(char16_t *text) {
    char16_t year[4];
    std::memcpy(year, text, sizeof year);
    text[0] = text[8];
    text[1] = text[9];
    text[2] = u'.';
    text[3] = text[5];
    text[4] = text[6];
    text[5] = u'.';
    std::memcpy(text + 6, year, sizeof year);
}

void decimalPoint(char16_t *text, int32_t n, char16_t separator) {
    for (int32_t i = 0; i < n; ++i)
        if (text[i] == u'.') text[i] = separator;
}

// A time's fraction of a second (a point after the last ':'): trailing
// zeros go, and an all-zero fraction goes with its point; what remains gets
// the decimal separator.
int32_t trimFraction(char16_t *text, int32_t n, char16_t separator) {
    int32_t point = -1;
    for (int32_t i = 0; i < n; ++i)
        if (text[i] == u':') point = -1;
        else if (text[i] == u'.') point = i;
    if (point < 0) return n;
    while (n > point + 1 && text[n - 1] == u'0') --n;
    if (n == point + 1) n = point;
    else text[point] = separator;
    text[n] = 0;
    return n;
}

int32_t formatBit(char16_t *text, int32_t n, int32_t capacity) {
    if (n == 0 || capacity < 2) return n;
    char16_t c = text[0];
    if (c == u't' || c == u'T' || c == u'y' || c == u'Y') text[0] = u'1';
    else if (c == u'f' || c == u'F' || c == u'n' || c == u'N') text[0] = u'0';
    else if (c != u'0' && c != u'1') return n;
    text[1] = 0;
    return 1;
}

int32_t formatHex(char16_t *text, int32_t n) {
    int32_t from = 0;
    // Drivers may wrap the digits as a literal, X'...', or an escape, \x...
    if (n >= 3 && (text[0] == u'x' || text[0] == u'X') && text[1] == u'\'' && text[n - 1] == u'\'') {
        from = 2;
        --n;
    } else if (n >= 2 && text[0] == u'\\' && (text[1] == u'x' || text[1] == u'X')) {
        from = 2;
    }
    int32_t out = 0;
    for (int32_t i = from; i < n; ++i) {
        char16_t c = text[i];
        text[out++] = c >= u'a' && c <= u'f' ? char16_t(c - u'a' + u'A') : c;
    }
    text[out] = 0;
    return out;
}

}  // namespace

int32_t Zodbc_OdbcDataToString(char16_t *text, int32_t capacity, int32_t sqlType,
                               char16_t decimalSeparator) {
    if (!text || capacity < 1) return 0;
    int32_t n = length(text, capacity);
    if (n == capacity) text[--n] = 0;  // never trust an unterminated buffer
    switch (sqlType) {
    case SQL_DECIMAL:
    case SQL_NUMERIC:
    case SQL_FLOAT:
    case SQL_REAL:
    case SQL_DOUBLE:
        decimalPoint(text, n, decimalSeparator);
        return n;
    case SQL_DATE:
    case SQL_TYPE_DATE:
        if (isIsoDate(text, n, 0)) reorderDate(text);
        return n;
    case SQL_TIMESTAMP:
    case SQL_TYPE_TIMESTAMP:
        if (!isIsoDate(text, n, 0)) return n;
        reorderDate(text);
        return trimFraction(text, n, decimalSeparator);
    case SQL_TIME:
    case SQL_TYPE_TIME:
        return trimFraction(text, n, decimalSeparator);
    case SQL_BIT:
        return formatBit(text, n, capacity);
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return formatHex(text, n);
    default:
        return n;
    }
}

}  // namespace mx
