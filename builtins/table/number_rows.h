// Rows of the number, date and conversion functions, in the order of their
// documentation table: English row first, German row after it.
#pragma once
#include "builtins/table/row_helpers.h"

namespace mx::rows {

inline constexpr FunctionRow kNumberRows[] = {
    {u"IntToString", fnum::IntToString, u"L*C[]CC", u"Value,Result,Digits,LeadingZero"},
    {u"ZahlNachText", kDe | fnum::IntToString, u"L*C[]CC", u""},
    {u"StringToInt", fnum::StringToInt, u"C[]", u"String"},
    {u"TextNachZahl", kDe | fnum::StringToInt, u"C[]", u"Text"},
    {u"FloatToString", fnum::FloatToString, u"D*C[]CC", u"Value, Dest, FractDigits, ThousandSep"},
    {u"GleitNachText", kDe | fnum::FloatToString, u"D*C[]CC", u"Wert,Textpuffer,Nachkommastellen,Tausendertrenner"},
    {u"StringToFloat", fnum::StringToFloat, u"C[]*D", u"String,Value"},
    {u"TextNachGleit", kDe | fnum::StringToFloat, u"C[]*D", u"Text,Wert"},
    {u"FloatToDigitNames", fnum::FloatToDigitNames, u"D*C[]C[]L", u"Value, Dest, Separator, Language"},
    {u"GleitNachZifferNamen", kDe | fnum::FloatToDigitNames, u"D*C[]C[]L", u"Wert,Ergebnis,Trenner,Sprache"},
    {u"Modulo", fnum::Modulo, u"LL", u"Base, DivideBy"},
    {u"GetToday", fnum::GetToday, u"*C[]", u"Buffer"},
    {u"GibHeute", kDe | fnum::GetToday, u"*C[]", u"Buffer"},
    {u"GetTodayFormatted", fnum::GetTodayFormatted, u"*C[]C[]", u"Buffer, Format"},
    {u"GibHeuteFormatiert", kDe | fnum::GetTodayFormatted, u"*C[]C[]", u"Buffer, Format"},
    {u"FormatDate", fnum::FormatDate, u"*C[]C[]", u"Datestring,Formatstring"},
    {u"FormatiereDatum", kDe | fnum::FormatDate, u"*C[]C[]", u"Datestring,Formatstring"},
    {u"FormatDateForSql", fnum::FormatDateForSql, u"*C[]", u"Datestring"},
    {u"DateToInt", fnum::DateToInt, u"C[]", u"Date"},
    {u"DatumNachZahl", kDe | fnum::DateToInt, u"C[]", u"Datum"},
    {u"IntToDate", fnum::IntToDate, u"L*C[]", u"Int,Date"},
    {u"ZahlNachDatum", kDe | fnum::IntToDate, u"LC[]", u""},  // the German row differs
    {u"DisassembleDate", fnum::DisassembleDate, u"C[]*L*L*L", u"Date, Day, Month, Year"},
    {u"ZerlegeDatum", kDe | fnum::DisassembleDate, u"C[]*L*L*L", u""},
    {u"DisassembleIsoDate", fnum::DisassembleIsoDate, u"C[]*L*L*L", u"Date, Day, Month, Year"},
    {u"AssembleDate", fnum::AssembleDate, u"*C[]LLL", u"Date,Day,Month,Year"},
    {u"ErzeugeDatum", kDe | fnum::AssembleDate, u"*C[]LLL", u"Datum,Tag,Monat,Jahr"},
    {u"GetWeekday", fnum::GetWeekday, u"C[]", u"Date"},
    {u"GetWeekdayFromYMD", fnum::GetWeekdayFromYMD, u"LLL", u"Year, Month, Day"},
    {u"WeekdayToName", fnum::WeekdayToName, u"LL*C[]", u"weekday, mode, name"},
    {u"GetEasterSunday", fnum::GetEasterSunday, u"L*L*L*L", u"Year, ResultYear, ResultMonth, ResultDay"},
    {u"GetCurrentDate", fnum::GetCurrentDate, u"*L*L*L", u"Year, Month, Day"},
    {u"GetCurrentTime", fnum::GetCurrentTime, u"*L*L*L", u"Hour, Minute, Second"},
    {u"GetMonthLng", fnum::GetMonthLng, u"LL", u"Year, Month"},
    {u"IsSunday", fnum::IsSunday, u"LLL", u"year, month, day"},
    {u"IsHoliday", fnum::IsHoliday, u"LLLL", u"year, month, day, flags"},
    {u"IsSchoolHoliday", fnum::IsSchoolHoliday, u"LLLLL", u"country, state, year, month, day"},
    {u"DmToEuro", fnum::DmToEuro, u"D*D", u"DmValue, EuroValue"},
    {u"DmNachEuro", kDe | fnum::DmToEuro, u"D*D", u"DmWert, EuroWert"},
    {u"EuroToDm", fnum::EuroToDm, u"D*D", u"EuroValue, DmValue"},
    {u"EuroNachDm", kDe | fnum::EuroToDm, u"D*D", u"EuroWert, DmWert"},
    {u"HtmlToRgb", fnum::HtmlToRgb, u"C[]*L*L*L", u"HtmlColor, Red, Green, Blue"},
    {u"RgbToHtml", fnum::RgbToHtml, u"LLL*C[]", u"Red, Green, Blue, HtmlColor"},
    {u"PhoneNumberToInternational", fnum::PhoneNumberToInternational, u"C[]*C[]C[]", u"number, international, CountryPrefixString"},
};

}  // namespace mx::rows
