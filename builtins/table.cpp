// The built-in function table. The rows are written per family, in readable
// order, under builtins/table/; here they are merged and sorted by ordinal
// UTF-16 comparison at compile time, and the all-zero row is appended. The
// static_asserts prove the count, the order and the uniqueness, so a row added
// or lost in a family header stops the build.
#include "builtins/table.h"

#include <array>
#include <cstddef>

#include "builtins/table/buttonbar_rows.h"
#include "builtins/table/connection_rows.h"
#include "builtins/table/constant_rows.h"
#include "builtins/table/dialog_rows.h"
#include "builtins/table/file_rows.h"
#include "builtins/table/language_rows.h"
#include "builtins/table/number_rows.h"
#include "builtins/table/text_rows.h"
#include "builtins/table/window_rows.h"
#include "builtins/table/xml_rows.h"

namespace mx {

namespace {

using Rows = std::array<FunctionRow, kBuiltinRows + 1>;

// Ordinal comparison of two terminated UTF-16 texts: <0, 0 or >0.
constexpr int tblCompare(const char16_t *a, const char16_t *b) {
    while (*a != 0 && *a == *b) ++a, ++b;
    return static_cast<int>(*a) - static_cast<int>(*b);
}

// Appends the rows of one family to out at position at; returns the new end.
template <size_t N>
constexpr size_t tblAppend(Rows &out, size_t at, const FunctionRow (&family)[N]) {
    for (size_t i = 0; i < N && at < static_cast<size_t>(kBuiltinRows); ++i) out[at++] = family[i];
    return at;
}

// Insertion sort of the first count rows by name; runs once, at compile time.
constexpr void tblSort(Rows &rows, size_t count) {
    for (size_t i = 1; i < count; ++i) {
        FunctionRow row = rows[i];
        size_t j = i;
        for (; j > 0 && tblCompare(row.name, rows[j - 1].name) < 0; --j) rows[j] = rows[j - 1];
        rows[j] = row;
    }
}

// All families merged, sorted and followed by the all-zero row (the slot after
// the last row stays zero; the static_asserts below prove that it does).
constexpr Rows tblBuild() {
    Rows table{};
    size_t n = 0;
    n = tblAppend(table, n, rows::kConstantRows);
    n = tblAppend(table, n, rows::kLanguageRows);
    n = tblAppend(table, n, rows::kTextRows);
    n = tblAppend(table, n, rows::kNumberRows);
    n = tblAppend(table, n, rows::kFileRows);
    n = tblAppend(table, n, rows::kWindowRows);
    n = tblAppend(table, n, rows::kButtonBarRows);
    n = tblAppend(table, n, rows::kDialogRows);
    n = tblAppend(table, n, rows::kConnectionRows);
    n = tblAppend(table, n, rows::kXmlRows);
    tblSort(table, n);
    return table;
}

constexpr size_t tblFamilyRows() {
    return std::size(rows::kConstantRows) + std::size(rows::kLanguageRows) +
           std::size(rows::kTextRows) + std::size(rows::kNumberRows) +
           std::size(rows::kFileRows) + std::size(rows::kWindowRows) +
           std::size(rows::kButtonBarRows) + std::size(rows::kDialogRows) +
           std::size(rows::kConnectionRows) + std::size(rows::kXmlRows);
}

constexpr Rows kTable = tblBuild();

// True when every name is strictly greater than the one before it, which
// proves both the order and the uniqueness of the names.
constexpr bool tblStrictlyAscending(const Rows &rows) {
    for (size_t i = 1; i < static_cast<size_t>(kBuiltinRows); ++i)
        if (tblCompare(rows[i - 1].name, rows[i].name) >= 0) return false;
    return true;
}

constexpr bool tblTerminated(const Rows &rows) {
    const FunctionRow &last = rows[kBuiltinRows];
    return !last.name && last.identifier == 0 && !last.signature && !last.paramNames;
}

// Counts rows with (functions) or without (constants) a signature.
constexpr size_t tblCountKind(const Rows &rows, bool functions) {
    size_t n = 0;
    for (size_t i = 0; i < static_cast<size_t>(kBuiltinRows); ++i)
        if ((rows[i].signature != nullptr) == functions) ++n;
    return n;
}

// Function rows carry parameter names (possibly empty); constants carry none.
constexpr bool tblParamNamesMatchKind(const Rows &rows) {
    for (size_t i = 0; i < static_cast<size_t>(kBuiltinRows); ++i)
        if ((rows[i].signature != nullptr) != (rows[i].paramNames != nullptr)) return false;
    return true;
}

static_assert(tblFamilyRows() == static_cast<size_t>(kBuiltinRows),
              "the family headers must hold exactly kBuiltinRows rows");
static_assert(tblStrictlyAscending(kTable), "built-in names must be unique and ascending");
static_assert(tblTerminated(kTable), "the table must end with the all-zero row");
static_assert(tblCountKind(kTable, true) == 286, "286 function rows");
static_assert(tblCountKind(kTable, false) == 32, "32 named constants");
static_assert(tblParamNamesMatchKind(kTable), "parameter names exactly on function rows");

}  // namespace

const FunctionRow *biTable() { return kTable.data(); }

}  // namespace mx
