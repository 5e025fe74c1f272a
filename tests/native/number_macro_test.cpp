// The number, date and conversion built-ins called from real macros.
#include <gtest/gtest.h>

#include "macro_harness.h"

namespace {

struct MacroCase {
    const char *name;
    int32_t country;
    const char16_t *body;
    const char *output;
};

TEST(NumberMacro, ConversionsThroughTheBinding) {
    const MacroCase cases[] = {
        {"IntToString", 1, u"char s[30]; IntToString(42, s, 5, '0'); Print(s); IntToString(-2147483647 - 1, s, 0, 48); "
                           u"Print(s); IntToString(7, s, '5', '0'); Print(StrLen(s)); char t[3]; "
                           u"ZahlNachText(12345, t, 0, 48); Print(t);",
         "00042\n-2147483648\n20\n12\n"},
        {"StringToInt", 1, u"Print(StringToInt(\" -12abc\")); Print(TextNachZahl(\"99999999999\"));",
         "-12\n2147483647\n"},
        {"StringToFloat comma", 49, u"float v; StringToFloat(\"1.234,56\", v); Print(v);", "1234.560000\n"},
        {"StringToFloat point", 1, u"float v; StringToFloat(\"1.234,56\", v); Print(v); TextNachGleit(\"1,234.5\", v); "
                                   u"Print(v);",
         "1.234560\n1234.500000\n"},
        {"FloatToString comma", 49, u"char d[30]; Print(FloatToString(1234567.891, d, 2, '.')); Print(d); "
                                    u"FloatToString(-1234.5, d, 1, 0); Print(d);",
         "0\n1.234.567,89\n-1234,5\n"},
        {"FloatToString point", 1, u"char d[30]; FloatToString(1234567.891, d, 2, 44); Print(d); "
                                   u"float big; big = 100000000000000; Print(FloatToString(big * big * big, d, 2, 46)); "
                                   u"Print(StrLen(d));",
         "1,234,567.89\n-1\n0\n"},
        {"FloatToDigitNames", 1, u"char d[100]; FloatToDigitNames(409.7, d, \"-\", 49); Print(d); "
                                 u"FloatToDigitNames(-25, d, \" \", 44); Print(d);",
         "Vier-Null-Neun\nTwo Five\n"},
        {"Modulo", 1, u"Print(Modulo(-7, 3)); Print(Modulo(7, -3)); Print(Modulo(5, 0)); "
                      u"Print(Modulo(-2147483647 - 1, -1));",
         "-1\n1\n5\n0\n"},
    };
    for (const MacroCase &c : cases) {
        MacroRun r = runMemory(c.body, c.country);
        EXPECT_EQ(r.result, 0) << c.name << "\n" << r.output;
        EXPECT_EQ(r.output, c.output) << c.name;
    }
}

TEST(NumberMacro, ByReferenceArgumentsMustBeVariables) {
    MacroRun r = runMemory(u"int m; int d; GetCurrentDate(2024, m, d);");
    EXPECT_EQ(r.result, -1);
    EXPECT_NE(r.output.find("muß eine Variable sein"), std::string::npos) << r.output;
}

}  // namespace
