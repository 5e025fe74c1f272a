// Showing pending ODBC diagnostics: every record's SQLSTATE, native error and
// message, and for a statement the statement text, in one error box (on
// standard error in the native build, like every box).
#include <string>

#include "base/handles.h"
#include "odbc/zodbc.h"
#include "platform/platform.h"

namespace mx {

namespace {

constexpr char16_t kTitle[] = u"ODBC-Fehler";

void appendNumber(std::u16string &out, long long n) {
    std::string digits = std::to_string(n);
    out.append(digits.begin(), digits.end());
}

// Appends the diagnostic records of handle; returns how many there were.
int appendDiagnostics(std::u16string &out, SQLSMALLINT type, SQLHANDLE handle) {
    int records = 0;
    for (SQLSMALLINT i = 1; handle && i <= 20; ++i) {
        char16_t state[6] = {0};
        char16_t message[1024] = {0};
        SQLINTEGER native = 0;
        SQLSMALLINT length = 0;
        SQLRETURN rc = SQLGetDiagRecW(type, handle, i, sqlText(state), &native, sqlText(message),
                                      SQLSMALLINT(sizeof message / sizeof message[0]), &length);
        if (!SQL_SUCCEEDED(rc)) break;
        message[sizeof message / sizeof message[0] - 1] = 0;
        if (records++) out += u"\n";
        out += u"SQLSTATE ";
        out += state;
        out += u", nativer Fehler ";
        appendNumber(out, native);
        out += u":\n";
        out += message;
    }
    return records;
}

void show(SQLSMALLINT type, SQLHANDLE handle, const char16_t *statement) {
    std::u16string text;
    if (!appendDiagnostics(text, type, handle))
        text = u"Der Treiber meldet keine Diagnose (etwa keine Zeile betroffen oder keine Daten).";
    if (statement) {
        text += u"\n\nAnweisung: ";
        text += statement;
    }
    mxp_MessageBox(nullptr, text.c_str(), kTitle, kBoxOk | kBoxIconError | kBoxTaskModal);
}

}  // namespace

void Zodbc_DisplayErrorHdbc(SQLHDBC dbc) { show(SQL_HANDLE_DBC, dbc, nullptr); }

void Zodbc_DisplayErrorHstmt(SQLHSTMT stmt, const char16_t *statement) {
    show(SQL_HANDLE_STMT, stmt, statement ? statement : u"");
}

}  // namespace mx
