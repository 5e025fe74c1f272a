// Placeholder until the full table lands: the named constants only, padded.
#include "builtins/table.h"

namespace mx {

namespace {
struct Table {
    FunctionRow rows[kBuiltinRows + 1] = {
        {u"ABBRUCH", 2, nullptr, nullptr}, {u"ABORT", 2, nullptr, nullptr},
        {u"ASCII", 4, nullptr, nullptr}, {u"AUSRUF", 33, nullptr, nullptr},
        {u"BUTTSTAT_NEWGROUP", 32, nullptr, nullptr}, {u"BUTTSTAT_NEWLINE", 16, nullptr, nullptr},
        {u"DOUBLEQUOTE", 34, nullptr, nullptr}, {u"EXCL", 33, nullptr, nullptr},
        {u"EXCLAIM", 33, nullptr, nullptr}, {u"FRAGE", 63, nullptr, nullptr},
        {u"HKCU", 1, nullptr, nullptr}, {u"HKEY_CURRENT_USER", 1, nullptr, nullptr},
        {u"HKEY_LOCAL_MACHINE", 2, nullptr, nullptr}, {u"HKLM", 2, nullptr, nullptr},
        {u"INFO", 73, nullptr, nullptr}, {u"JA", 4, nullptr, nullptr},
        {u"LESEN", 16, nullptr, nullptr}, {u"LVD_FULL", 2, nullptr, nullptr},
        {u"LVD_GRID", 1, nullptr, nullptr}, {u"MULTI", 2, nullptr, nullptr},
        {u"NEIN", 8, nullptr, nullptr}, {u"NO", 8, nullptr, nullptr},
        {u"OK", 1, nullptr, nullptr}, {u"QUEST", 63, nullptr, nullptr},
        {u"READ", 16, nullptr, nullptr}, {u"REGEXP_DOTALL", 1, nullptr, nullptr},
        {u"SCHREIBEN", 32, nullptr, nullptr}, {u"SINGLEQUOTE", 39, nullptr, nullptr},
        {u"SORT", 1, nullptr, nullptr}, {u"STOP", 83, nullptr, nullptr},
        {u"WRITE", 32, nullptr, nullptr}, {u"YES", 4, nullptr, nullptr},
    };
    Table() {
        for (int i = 32; i < kBuiltinRows; ++i) rows[i] = {u"\xFFFF", 0, nullptr, nullptr};
    }
};
const Table table;
}  // namespace

const FunctionRow *biTable() { return table.rows; }

}  // namespace mx
