// The built-in function table: its shape, order, descriptors and spelling
// flags, rows checked against independently typed expectations, and the named
// constants as macros see them.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "builtins/table.h"
#include "base/utf8.h"
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

const FunctionRow *findRow(const std::u16string &name) {
    for (const FunctionRow *r : walkTable())
        if (name == r->name) return r;
    return nullptr;
}

size_t indexOf(const std::u16string &name) {
    auto rows = walkTable();
    for (size_t i = 0; i < rows.size(); ++i)
        if (name == rows[i]->name) return i;
    return SIZE_MAX;
}

std::string utf8(const char16_t *text) { return text ? mx::toUtf8(text) : "(absent)"; }

// Splits a signature into its descriptors: an optional "*", one letter and an
// optional "[]". A character that fits no descriptor yields "?".
std::vector<std::string> descriptors(const std::u16string &sig) {
    std::vector<std::string> out;
    for (size_t i = 0; i < sig.size();) {
        std::string d;
        if (sig[i] == u'*') d += '*', ++i;
        if (i >= sig.size() || (sig[i] != u'C' && sig[i] != u'D' && sig[i] != u'L' && sig[i] != u'X')) {
            out.push_back("?");
            return out;
        }
        d += char(sig[i++]);
        if (sig.compare(i, 2, u"[]") == 0) d += "[]", i += 2;
        out.push_back(d);
    }
    return out;
}

TEST(BuiltinTable, HasExactly318RowsThenTheAllZeroRow) {
    EXPECT_EQ(mx::kBuiltinRows, 318);
    ASSERT_EQ(walkTable().size(), 318u);
    const FunctionRow &end = mx::biTable()[318];
    EXPECT_EQ(end.name, nullptr);
    EXPECT_EQ(end.identifier, 0u);
    EXPECT_EQ(end.signature, nullptr);
    EXPECT_EQ(end.paramNames, nullptr);
}

TEST(BuiltinTable, Holds286FunctionRowsUnder196NumbersAnd32Constants) {
    size_t functions = 0, constants = 0;
    std::set<uint32_t> numbers;
    for (const FunctionRow *r : walkTable()) {
        if (r->signature) {
            ++functions;
            numbers.insert(r->identifier & mx::kFunctionNumberMask);
            EXPECT_NE(r->paramNames, nullptr) << utf8(r->name);
        } else {
            ++constants;
            EXPECT_EQ(r->paramNames, nullptr) << utf8(r->name);
        }
    }
    EXPECT_EQ(functions, 286u);
    EXPECT_EQ(constants, 32u);
    EXPECT_EQ(numbers.size(), 196u);
    // Numbers are 1 to 306 or the list dialogs' 9000 and 9001.
    for (uint32_t n : numbers) EXPECT_TRUE((n >= 1 && n <= 306) || n == 9000 || n == 9001) << n;
}

TEST(BuiltinTable, NamesAreUniqueAndStrictlyAscendingByCodeUnit) {
    auto rows = walkTable();
    for (size_t i = 1; i < rows.size(); ++i)
        EXPECT_LT(std::u16string(rows[i - 1]->name), std::u16string(rows[i]->name))
            << utf8(rows[i - 1]->name) << " / " << utf8(rows[i]->name);
    // Upper-case initials before lower-case ones, diacritics after ASCII.
    const char16_t *chain[] = {u"ABORT", u"AbbAppendButton", u"AsciiToAnsi", u"AuffüllenTextLinks"};
    for (size_t i = 1; i < std::size(chain); ++i) EXPECT_LT(indexOf(chain[i - 1]), indexOf(chain[i]));
    EXPECT_LT(indexOf(u"DateinameDialog"), indexOf(u"DateiÖffnen"));
    EXPECT_NE(indexOf(u"DateiÖffnen"), SIZE_MAX);
}

TEST(BuiltinTable, DescriptorCountsOverAllSignatures) {
    std::map<std::string, int> counts;
    for (const FunctionRow *r : walkTable())
        if (r->signature)
            for (const std::string &d : descriptors(r->signature)) ++counts[d];
    const std::map<std::string, int> expected = {
        {"L", 289}, {"C[]", 281}, {"*C[]", 119}, {"*L", 31},
        {"C", 12},  {"D", 8},     {"*D", 8},     {"X", 1},
    };
    EXPECT_EQ(counts, expected);
}

// German names, typed from the function lists; each carries the spelling flag.
const char16_t *const kGermanNames[] = {
    u"LinkerText", u"RechterText", u"MittlererText", u"AuffüllenTextLinks", u"AuffüllenTextRechts",
    u"TextAnhängen", u"TextVergleich", u"IstTextEnthalten", u"TextGroß", u"TextKlein",
    u"TextLänge", u"ZeichenGroß", u"ZeichenKlein", u"LöscheSteuerzeichen", u"IstAlpha",
    u"IstAlphaNumerisch", u"AsciiNachAnsi", u"AnsiNachAscii", u"TrimRechts", u"TrimLinks",
    u"TransformiereText", u"ZahlNachText", u"TextNachZahl", u"GleitNachText", u"TextNachGleit",
    u"GleitNachZifferNamen", u"GibHeute", u"FormatiereDatum", u"GibHeuteFormatiert",
    u"DmNachEuro", u"EuroNachDm", u"DatumNachZahl", u"ZahlNachDatum", u"ZerlegeDatum",
    u"ErzeugeDatum", u"DateiKopieren", u"DateiÖffnen", u"DateiSchließen", u"DateiLesen",
    u"DateiSchreiben", u"DateiUmbenennen", u"DateiLöschen", u"BildeDateiname",
    u"StripVerzeichnis", u"StripNameUndExtension", u"IniDateiLesen", u"IniDateiSchreiben",
    u"GibAppName", u"GibBenutzerPfad", u"GibWindowsPfad", u"ErzeugeDateinamenListe",
    u"GibProgrammPfad", u"Piep", u"MdiGibAktives", u"MdiAktiviere", u"MdiAktiviereNächstes",
    u"MdiWiederherstelle", u"MdiMaximiere", u"MdiIstMaximiert", u"GibTitel",
    u"FensterMaximiere", u"FensterMinimiere", u"FensterWiederherstelle", u"FensterAktiviere",
    u"FensterGibAktives", u"ClipBoardLesen", u"ClipBoardSchreiben", u"StarteProgrammNM",
    u"GibFenster", u"GibEnvironment", u"SendeNachricht", u"NachrichtBox", u"GanzzahlDialog",
    u"NachrichtDialog", u"EingabeDialogPosition", u"ListenDialog", u"ListenDialogMultiSelect",
    u"ListenDialogAnsi", u"ListenDialogAnsiMultiSelect", u"DateinameDialog", u"IstDeklariert",
    u"StarteMakro", u"GibMakroParameter", u"SetzeFluchtsymbol", u"TraceFunktion",
    u"TraceZuweisung", u"TraceDatei",
};

// English rows that carry the flag although no unflagged twin exists.
const char16_t *const kFlaggedEnglish[] = {
    u"MakeText5",      u"InputDialogPosition",   u"SetDialogPosition", u"SetDialogSize",
    u"ListDialog",     u"ListDialogMultiSelect", u"ListDialogAnsi",    u"ListDialogAnsiMultiSelect",
};

TEST(BuiltinTable, ExactlyTheGermanRowsAndTheListedEnglishOnesCarryTheFlag) {
    std::set<std::u16string> expected(std::begin(kGermanNames), std::end(kGermanNames));
    ASSERT_EQ(expected.size(), 87u);
    expected.insert(std::begin(kFlaggedEnglish), std::end(kFlaggedEnglish));
    std::set<std::u16string> flagged;
    for (const FunctionRow *r : walkTable())
        if (r->signature && (r->identifier & mx::kSpellingFlag)) flagged.insert(r->name);
    EXPECT_EQ(flagged, expected);
    for (const FunctionRow *r : walkTable()) {
        if (r->signature) { EXPECT_EQ(r->identifier >> 17, 0u) << utf8(r->name); }
    }
}

TEST(BuiltinTable, GermanRowsHaveAnEnglishTwinWithTheSameSignature) {
    std::map<uint32_t, std::vector<const FunctionRow *>> byNumber;
    for (const FunctionRow *r : walkTable())
        if (r->signature) byNumber[r->identifier & mx::kFunctionNumberMask].push_back(r);
    for (const char16_t *german : kGermanNames) {
        const FunctionRow *g = findRow(german);
        ASSERT_NE(g, nullptr) << utf8(german);
        bool hasTwin = false;
        for (const FunctionRow *r : byNumber[g->identifier & mx::kFunctionNumberMask])
            hasTwin |= r != g && std::u16string(g->signature) == r->signature;
        // AnsiNachAscii has no twin; ZahlNachDatum's signature differs from its twin's.
        bool exempt = std::u16string(german) == u"AnsiNachAscii" || std::u16string(german) == u"ZahlNachDatum";
        EXPECT_TRUE(hasTwin || exempt) << utf8(german);
    }
    EXPECT_EQ(byNumber[62].size(), 1u);
    EXPECT_EQ(byNumber[60].size(), 4u);
    EXPECT_EQ(byNumber[9000].size(), 4u);
    EXPECT_EQ(byNumber[78].size(), 3u);
}

struct RowCase {
    const char16_t *name;
    uint32_t identifier;
    const char16_t *signature;
    const char16_t *paramNames;
};

TEST(BuiltinTable, SpotChecksOfSingleRows) {
    const RowCase cases[] = {
        {u"LeftString", 15, u"C[]L*C[]", u"Source, Chars, Destination"},
        {u"AuffüllenTextLinks", 65554, u"*C[]LC", u"Text, Lng, Zeichen"},
        {u"MakeText5", 65662, u"*C[]C[]C[]C[]C[]C[]C[]", u"Result,Pattern,P1,P2,P3,P4,P5"},
        {u"ZahlNachText", 65546, u"L*C[]CC", u""},
        {u"ZahlNachDatum", 65640, u"LC[]", u""},
        {u"IntToDate", 104, u"L*C[]", u"Int,Date"},
        {u"GleitNachText", 65548, u"D*C[]CC", u"Wert,Textpuffer,Nachkommastellen,Tausendertrenner"},
        {u"DateiÖffnen", 65538, u"C[]C[]", u"Dateiname,ModusText"},
        {u"GibWindowsPfad", 65596, u"*C[]", u"Ziel"},
        {u"GetUserPath", 60, u"*C[]", u"Dest"},
        {u"MdiAktiviereNächstes", 65588, u"", u""},
        {u"GetCommandLineCount", 165, u"", u""},
        {u"SendMail", 172, u"C[]C[]C[]C[]C[]C[]C[]L", u"Sender, Receivers, Ccs, Bccs, Subject, Text, Files, Flags"},
        {u"EingabeDialogPosition", 65614, u"LL", u"Links, Oben"},
        {u"SetDialogSize", 65655, u"LL", u"Width, Height"},
        {u"ListenDialogAnsiMultiSelect", 74537, u"C[]C[]LLLLLL*C[]*C[]",
         u"Title, ListFile, xPos, yPos, Width, Height, Scrollwidth, Sort, Desti1, Desti2"},
        {u"ListDialog", 74536, u"C[]C[]LLLLLL*C[]*C[]",
         u"Title, ListFile, xPos, yPos, Width, Height, ScrollWidth, Sort, Desti1, Desti2"},
        {u"RtfDialog", 94, u"C[]C[]LLLLL", u"RTF-File,Title,Col,Line,Width,Height,Zoom"},
        {u"ScanBufferForRegExp", 151, u"C[]LC[]L*LL", u"Buffer, Size, RegExp, Start, MatchLng, Flags"},
        {u"OdbcAddFields", 206, u"LC[]C[]C[]*DL", u"Handle, Table, Field, WhereClause, Result, Flags"},
        {u"DDERequest", 92, u"LC[]L*C[]L", u"Channel, Item, Format, Data, WaitMilliSecs"},
        {u"Dim", 28, u"X", u"VariableName"},
        {u"GibMakroParameter", 65569, u"L*C[]", u"ParameterNummer,Textpuffer"},
        {u"CallWithParams", 192, u"C[]C[]C[]C[]C[]C[]", u"Macro, P1, P2, P3, P4, P5"},
        {u"TraceDialog", 96, u"L", u"Mode"},
        {u"XMLWriteFile", 306, u"LC[]L", u"xmlctl, filename, flags"},
    };
    for (const RowCase &c : cases) {
        const FunctionRow *r = findRow(c.name);
        ASSERT_NE(r, nullptr) << utf8(c.name);
        EXPECT_EQ(r->identifier, c.identifier) << utf8(c.name);
        EXPECT_EQ(utf8(r->signature), utf8(c.signature)) << utf8(c.name);
        EXPECT_EQ(utf8(r->paramNames), utf8(c.paramNames)) << utf8(c.name);
    }
}

TEST(BuiltinTable, NamedConstantsAndTheirValues) {
    const std::map<std::u16string, uint32_t> expected = {
        {u"OK", 1}, {u"ABORT", 2}, {u"ABBRUCH", 2}, {u"YES", 4}, {u"JA", 4}, {u"NO", 8},
        {u"NEIN", 8}, {u"EXCL", 33}, {u"EXCLAIM", 33}, {u"AUSRUF", 33}, {u"QUEST", 63},
        {u"FRAGE", 63}, {u"INFO", 73}, {u"STOP", 83}, {u"HKCU", 1}, {u"HKEY_CURRENT_USER", 1},
        {u"HKLM", 2}, {u"HKEY_LOCAL_MACHINE", 2}, {u"SORT", 1}, {u"MULTI", 2}, {u"LVD_GRID", 1},
        {u"LVD_FULL", 2}, {u"BUTTSTAT_NEWLINE", 16}, {u"BUTTSTAT_NEWGROUP", 32}, {u"READ", 16},
        {u"LESEN", 16}, {u"WRITE", 32}, {u"SCHREIBEN", 32}, {u"ASCII", 4}, {u"REGEXP_DOTALL", 1},
        {u"DOUBLEQUOTE", 34}, {u"SINGLEQUOTE", 39},
    };
    std::map<std::u16string, uint32_t> found;
    for (const FunctionRow *r : walkTable())
        if (!r->signature) found[r->name] = r->identifier;
    EXPECT_EQ(found, expected);
}

struct MacroCase {
    const char *body;
    const char *output;
};

TEST(BuiltinTable, ConstantsWorkInMacroFormulas) {
    const MacroCase cases[] = {
        {"Print(STOP);", "83\n"},
        {"int x; x = AUSRUF + DOUBLEQUOTE * 2; Print(x);", "101\n"},
        {"Print(HKEY_LOCAL_MACHINE - HKCU);", "1\n"},
        // The keyword stop ends the macro; the constant STOP does not.
        {"Print(STOP); stop; Print(1);", "83\n"},
        {"int i; i = 0; while (1) begin i = i + 1; if (i == 3) abbruch; end Print(ABBRUCH + i);", "5\n"},
    };
    for (const MacroCase &c : cases) {
        MacroRun r = runMemory(u16(c.body));
        EXPECT_EQ(r.result, 0) << c.body;
        EXPECT_EQ(r.output, c.output) << c.body;
    }
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

TEST(FunctionDocs, TheReferenceShowsRowsAsTheTableHasThem) {
    std::string doc = mxdoc::docRender();
    const char *lines[] = {
        "| 15 | `LeftString` (15), `LinkerText` (65551) | `C[]L*C[]` | \"Source, Chars, Destination\" "
        "(`LeftString`); \"Quelle, Anzahl, Ziel\" (`LinkerText`) |",
        "| 104 | `IntToDate` (104), `ZahlNachDatum` (65640) | `L*C[]` (`IntToDate`); `LC[]` "
        "(`ZahlNachDatum`) |",
        "| 113 | `GetScreenHeight` (113) | (none) | \"\" |",
        "| `STOP` | 83 | ",
    };
    for (const char *line : lines) EXPECT_NE(doc.find(line), std::string::npos) << line;
    EXPECT_NE(doc.find("318 rows: 286 function rows under 196 function numbers, and 32 named constants"),
              std::string::npos);
}

}  // namespace
