// Rows of the number, date and conversion functions, in the order of their
// documentation table: English row first, German row after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kNumberRows[] = {
    {u"IntToString", 10, u"L*C[]CC", u"Value,Result,Digits,LeadingZero"},
    {u"ZahlNachText", kDe | 10, u"L*C[]CC", u""},
    {u"StringToInt", 11, u"C[]", u"String"},
    {u"TextNachZahl", kDe | 11, u"C[]", u"Text"},
    {u"FloatToString", 12, u"D*C[]CC", u"Value, Dest, FractDigits, ThousandSep"},
    {u"GleitNachText", kDe | 12, u"D*C[]CC", u"Wert,Textpuffer,Nachkommastellen,Tausendertrenner"},
    {u"StringToFloat", 14, u"C[]*D", u"String,Value"},
    {u"TextNachGleit", kDe | 14, u"C[]*D", u"Text,Wert"},
    {u"FloatToDigitNames", 83, u"D*C[]C[]L", u"Value, Dest, Separator, Language"},
    {u"GleitNachZifferNamen", kDe | 83, u"D*C[]C[]L", u"Wert,Ergebnis,Trenner,Sprache"},
    {u"Modulo", 84, u"LL", u"Base, DivideBy"},
    {u"GetToday", 85, u"*C[]", u"Buffer"},
    {u"GibHeute", kDe | 85, u"*C[]", u"Buffer"},
    {u"GetTodayFormatted", 95, u"*C[]C[]", u"Buffer, Format"},
    {u"GibHeuteFormatiert", kDe | 95, u"*C[]C[]", u"Buffer, Format"},
    {u"FormatDate", 86, u"*C[]C[]", u"Datestring,Formatstring"},
    {u"FormatiereDatum", kDe | 86, u"*C[]C[]", u"Datestring,Formatstring"},
    {u"FormatDateForSql", 130, u"*C[]", u"Datestring"},
    {u"DateToInt", 103, u"C[]", u"Date"},
    {u"DatumNachZahl", kDe | 103, u"C[]", u"Datum"},
    {u"IntToDate", 104, u"L*C[]", u"Int,Date"},
    {u"ZahlNachDatum", kDe | 104, u"LC[]", u""},  // the German row differs
    {u"DisassembleDate", 110, u"C[]*L*L*L", u"Date, Day, Month, Year"},
    {u"ZerlegeDatum", kDe | 110, u"C[]*L*L*L", u""},
    {u"DisassembleIsoDate", 193, u"C[]*L*L*L", u"Date, Day, Month, Year"},
    {u"AssembleDate", 111, u"*C[]LLL", u"Date,Day,Month,Year"},
    {u"ErzeugeDatum", kDe | 111, u"*C[]LLL", u"Datum,Tag,Monat,Jahr"},
    {u"GetWeekday", 132, u"C[]", u"Date"},
    {u"GetWeekdayFromYMD", 182, u"LLL", u"Year, Month, Day"},
    {u"WeekdayToName", 194, u"LL*C[]", u"weekday, mode, name"},
    {u"GetEasterSunday", 134, u"L*L*L*L", u"Year, ResultYear, ResultMonth, ResultDay"},
    {u"GetCurrentDate", 142, u"*L*L*L", u"Year, Month, Day"},
    {u"GetCurrentTime", 143, u"*L*L*L", u"Hour, Minute, Second"},
    {u"GetMonthLng", 183, u"LL", u"Year, Month"},
    {u"IsSunday", 184, u"LLL", u"year, month, day"},
    {u"IsHoliday", 185, u"LLLL", u"year, month, day, flags"},
    {u"IsSchoolHoliday", 186, u"LLLLL", u"country, state, year, month, day"},
    {u"DmToEuro", 101, u"D*D", u"DmValue, EuroValue"},
    {u"DmNachEuro", kDe | 101, u"D*D", u"DmWert, EuroWert"},
    {u"EuroToDm", 102, u"D*D", u"EuroValue, DmValue"},
    {u"EuroNachDm", kDe | 102, u"D*D", u"EuroWert, DmWert"},
    {u"HtmlToRgb", 178, u"C[]*L*L*L", u"HtmlColor, Red, Green, Blue"},
    {u"RgbToHtml", 179, u"LLL*C[]", u"Red, Green, Blue, HtmlColor"},
    {u"PhoneNumberToInternational", 180, u"C[]*C[]C[]", u"number, international, CountryPrefixString"},
};

}  // namespace mx::rows
