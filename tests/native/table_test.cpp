// The built-in function table as a host walks it: the row count and the
// all-zero row, the ascending order the lookup relies on, host rows hiding
// built-ins, and the generated reference (docs/functions.md is rendered from
// every row, so comparing it with the checked-in file checks every name,
// number, flag, signature and parameter text), and the dispatch entries:
// every entry names the signature its handler reads, the signature of the
// function's rows (the English one where there are two). In this build each
// read through engine/args.h is checked against that signature, and the
// macro harness adds every misfit to a run's output, so the case files
// (which call every implemented function) fail on a handler that reads an
// argument otherwise than its entry says.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "builtins/table.h"
#include "engine/args.h"
#include "engine/dispatcher.h"
#include "engine/function_numbers.h"
#include "interface/families.h"
#include "macro_harness.h"
#include "tools/function_descriptions.h"
#include "tools/mxdoc_render.h"

namespace {

using mx::FunctionRow;

// The rows before the all-zero row, found by walking as a host does.
std::vector<const FunctionRow *> walkTable() {
    std::vector<const FunctionRow *> rows;
    for (const FunctionRow *r = mx::biTable(); r->name && rows.size() < 1000; ++r) rows.push_back(r);
    return rows;
}

std::string utf8(const char16_t *text) { return text ? mx::toUtf8(text) : "(absent)"; }

TEST(BuiltinTable, HasExactly318RowsThenTheAllZeroRow) {
    EXPECT_EQ(mx::kBuiltinRows, 318);
    ASSERT_EQ(walkTable().size(), 318u);
    const FunctionRow &end = mx::biTable()[318];
    EXPECT_EQ(end.name, nullptr);
    EXPECT_EQ(end.identifier, 0u);
    EXPECT_EQ(end.signature, nullptr);
    EXPECT_EQ(end.paramNames, nullptr);
}

// Upper-case initials before lower-case ones, diacritics after ASCII: by code unit.
TEST(BuiltinTable, NamesAreUniqueAndStrictlyAscendingByCodeUnit) {
    auto rows = walkTable();
    for (size_t i = 1; i < rows.size(); ++i)
        EXPECT_LT(std::u16string(rows[i - 1]->name), std::u16string(rows[i]->name))
            << utf8(rows[i - 1]->name) << " / " << utf8(rows[i]->name);
}

// The host's StrLen answers 4711; its Print prints a long.
LONG CALLBACK hidingHost(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    if (number == 2) return 4711;
    if (number == 1 && count == 1 && args[0]->type == MX_TYPE_LONG)
        harnessPrint(std::to_string(*static_cast<LONG *>(args[0]->data)));
    return 0;
}

TEST(BuiltinTable, AHostRowHidesTheBuiltinOfTheSameName) {
    const MX_FUNCTION_ROW rows[] = {
        {u"Print", 1, u"X", u"Value"},
        {u"STOP", 7, nullptr, nullptr},
        {u"StrLen", 2, u"C[]", u"String"},
        {nullptr, 0, nullptr, nullptr},
    };
    MacroRun r = runMemoryWithHost(u"Print(StrLen(\"abc\")); Print(STOP); Print(INFO);", rows, hidingHost);
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.output, "4711\n7\n73\n");
}

TEST(FunctionDocs, EveryFunctionNumberAndConstantHasADescription) {
    std::set<uint32_t> numbers;
    size_t constants = 0;
    for (const FunctionRow *r : walkTable()) {
        if (r->signature) {
            numbers.insert(r->identifier & mx::kFunctionNumberMask);
            EXPECT_NE(mxdoc::docFunctionDescription(r->identifier & mx::kFunctionNumberMask), nullptr)
                << utf8(r->name);
        } else {
            ++constants;
            EXPECT_NE(mxdoc::docConstantDescription(r->name), nullptr) << utf8(r->name);
        }
    }
    // As many descriptions as numbers and constants: none describes a stranger.
    EXPECT_EQ(size_t(mxdoc::docFunctionDescriptionCount()), numbers.size());
    EXPECT_EQ(size_t(mxdoc::docConstantDescriptionCount()), constants);
}

TEST(FunctionDocs, TheCheckedInReferenceIsTheGeneratedOne) {
    std::string checkedIn = readFile(std::string(MX_SOURCE_DIR) + "/docs/functions.md");
    EXPECT_TRUE(checkedIn == mxdoc::docRender())
        << "docs/functions.md is out of date; regenerate it with "
           "./build/native/tools/mxdoc > docs/functions.md";
}

// Restores the real families after a test installed its own.
struct RealFamiliesAfterwards {
    ~RealFamiliesAfterwards() { mx::installBuiltinFamilies(); }
};

}  // namespace

using namespace mx;

TEST(Dispatch, NumbersWithoutImplementationAnswerZero) {
    mx::RunContext ctx;
    for (int32_t n : {0, -1, 94, 150, 151, 160, 161, 307, 8999, 9002, 65536})
        EXPECT_EQ(mx::dispatchCall(ctx, n, nullptr, 0), 0) << n;
}

TEST(Signatures, EveryEntryReadsTheSignatureOfItsRows) {
    installBuiltinFamilies();
    std::set<int32_t> withRow;  // some numbers have only a German-spelt row
    for (const FunctionRow *r = biTable(); r->name; ++r) {
        if (!r->signature) continue;  // a named constant
        int32_t number = int32_t(r->identifier & kFunctionNumberMask);
        const DispatchEntry *e = dispatchEntry(number);
        if (!e) continue;
        SCOPED_TRACE(toUtf8(r->name));
        ASSERT_NE(e->reads, nullptr);
        bool german = (r->identifier & kSpellingFlag) != 0;
        withRow.insert(number);
        // The one known deviation: ZahlNachDatum is printed "LC[]" while
        // IntToDate reads "L*C[]"; the handler writes the text either way.
        if (german && number == fnum::IntToDate) {
            EXPECT_EQ(toUtf8(r->signature), "LC[]");
            EXPECT_EQ(toUtf8(e->reads), "L*C[]");
            continue;
        }
        EXPECT_EQ(toUtf8(e->reads), toUtf8(r->signature));
    }
    for (int32_t n = 0; n <= fnum::ListDialogAnsi; ++n)
        if (dispatchEntry(n)) {
            EXPECT_TRUE(withRow.count(n)) << "no row for implemented number " << n;
        }
    EXPECT_GT(withRow.size(), 100u);
}

TEST(Signatures, ReadsAreCheckedAgainstTheEntryByPosition) {
    ASSERT_TRUE(kCheckArgReads) << "the test build checks every argument read";
    argReadFaults();
    int32_t number = 7;
    char16_t text[8] = u"abc";
    Value l{kOwning, kLong, &number, 0, nullptr, 0, 0};
    Value t{kReference, kChar, text, 8, nullptr, 0, 0};
    Value *args[] = {&l, &t};
    {
        ArgReadScope scope(fnum::IntToDate, u"L*C[]", args, 2);
        EXPECT_EQ(argLong(args[0]), 7);
        EXPECT_EQ(argCapacity(args[1]), 8);
        argText(args[1]);
        EXPECT_EQ(argReadFaults(), "");
        argText(args[0]);
        argLongRef(args[1]);
        Value stranger = l;
        argLong(&stranger);
        EXPECT_EQ(argReadFaults(),
                  "function 104 reads argument 1 as a text (C[] or *C[]), its entry says L\n"
                  "function 104 reads argument 2 as *L, its entry says *C[]\n"
                  "function 104 reads a value that is none of its arguments as L\n");
        {
            ArgReadScope inner(fnum::Dim, u"X", args + 1, 1);
            argLong(args[1]);  // X hands over anything
            argLong(args[0]);  // not an argument of the inner call
        }
        argLong(args[0]);  // the outer call counts again
        EXPECT_EQ(argReadFaults(), "function 28 reads a value that is none of its arguments as L\n");
    }
    argLong(args[1]);  // outside any call there is nothing to check
    EXPECT_EQ(argReadFaults(), "");
}

TEST(Signatures, AMacroRunReportsAHandlerReadingOtherwiseThanItsEntry) {
    ASSERT_TRUE(kCheckArgReads) << "the test build checks every argument read";
    RealFamiliesAfterwards restore;
    // StrLen's entry claims a long but the handler reads a text.
    static const DispatchEntry kWrong[] = {
        {fnum::StrLen, u"L", [](RunContext &, Value **a, int32_t) { return int32_t(argText(a[0]) != nullptr); }},
    };
    static const DispatchFamily kWrongFamily = {"wrong", kWrong, 1};
    static const DispatchFamily *const kFamilies[] = {&kWrongFamily};
    dispatchInstall(kFamilies, 1);
    MacroRun r = runMemory(u"Print(StrLen(\"abc\"));");
    EXPECT_EQ(r.output, "1\nfunction 25 reads argument 1 as a text (C[] or *C[]), its entry says L\n");
}
