// Every implemented function's dispatch entry names the signature its handler
// reads: the signature of the function's table rows (the English one where
// there are two). In this build each read through engine/args.h is checked
// against that signature, and the macro harness adds every misfit to a run's
// output, so the golden macros (which call every implemented function) fail
// on a handler that reads an argument otherwise than its entry says.
#include <gtest/gtest.h>

#include <set>

#include "base/utf8.h"
#include "builtins/table.h"
#include "engine/args.h"
#include "engine/dispatcher.h"
#include "engine/function_numbers.h"
#include "interface/families.h"
#include "macro_harness.h"

using namespace mx;

namespace {

// Restores the real families after a test installed its own.
struct RealFamiliesAfterwards {
    ~RealFamiliesAfterwards() { installBuiltinFamilies(); }
};

}  // namespace

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
    if (!kCheckArgReads) GTEST_SKIP() << "this build does not check argument reads";
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
    if (!kCheckArgReads) GTEST_SKIP() << "this build does not check argument reads";
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
