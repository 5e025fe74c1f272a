// Dispatch entries of the number, date and conversion built-ins: each
// handler reads its bound arguments as its signature hands them over and
// calls the implementation or the helper library.
#include "engine/args.h"
#include "engine/function_numbers.h"
#include "builtins/families.h"
#include "builtins/numbers/colours.h"
#include "builtins/numbers/conversions.h"
#include "builtins/numbers/dates.h"
#include "builtins/numbers/float_format.h"
#include "builtins/numbers/phone.h"
#include "base/u16.h"
#include "helperlib/kelvane_date.h"

namespace mx {

namespace {

TextIn in(Value *v) { return TextIn(argText(v), argCapacity(v)); }

// L*C[]CC
int32_t biIntToString(RunContext &, Value **a, int32_t) {
    return numIntToString(argLong(a[0]), argText(a[1]), argCapacity(a[1]), argChar(a[2]), argChar(a[3]));
}
// C[]
int32_t biStringToInt(RunContext &, Value **a, int32_t) { return numStringToInt(in(a[0])); }
int32_t biDateToInt(RunContext &, Value **a, int32_t) { return numDateToInt(in(a[0])); }
int32_t biGetWeekday(RunContext &, Value **a, int32_t) { return numGetWeekday(in(a[0])); }
// D*C[]CC: the decimal separator is the run's
int32_t biFloatToString(RunContext &ctx, Value **a, int32_t) {
    return numFloatToString(argDouble(a[0]), argText(a[1]), argCapacity(a[1]), argChar(a[2]), argChar(a[3]),
                            ctx.decimalSeparator);
}
// C[]*D
int32_t biStringToFloat(RunContext &ctx, Value **a, int32_t) {
    return numStringToFloat(in(a[0]), argDoubleRef(a[1]), ctx.decimalSeparator);
}
// D*C[]C[]L
int32_t biFloatToDigitNames(RunContext &, Value **a, int32_t) {
    return numFloatToDigitNames(argDouble(a[0]), argText(a[1]), argCapacity(a[1]), in(a[2]), argLong(a[3]));
}
// LL and LLL..., passed to the helper unchanged where it answers
int32_t biModulo(RunContext &, Value **a, int32_t) { return numModulo(argLong(a[0]), argLong(a[1])); }
int32_t biGetMonthLng(RunContext &, Value **a, int32_t) { return Get_MonthLng(argLong(a[0]), argLong(a[1])); }
int32_t biIsSunday(RunContext &, Value **a, int32_t) {
    return Kelvane_IsSunday(argLong(a[0]), argLong(a[1]), argLong(a[2]));
}
int32_t biIsHoliday(RunContext &, Value **a, int32_t) {
    return Kelvane_IsHoliday(argLong(a[0]), argLong(a[1]), argLong(a[2]), argLong(a[3]));
}
int32_t biIsSchoolHoliday(RunContext &, Value **a, int32_t) {
    return Kelvane_IsSchoolHoliday(argLong(a[0]), argLong(a[1]), argLong(a[2]), argLong(a[3]), argLong(a[4]));
}
int32_t biGetWeekdayFromYMD(RunContext &, Value **a, int32_t) {
    return numGetWeekdayFromYMD(argLong(a[0]), argLong(a[1]), argLong(a[2]));
}
// *C[] and *C[]C[]
int32_t biGetToday(RunContext &, Value **a, int32_t) { return numGetToday(argText(a[0]), argCapacity(a[0])); }
int32_t biGetTodayFormatted(RunContext &, Value **a, int32_t) {
    return numGetTodayFormatted(argText(a[0]), argCapacity(a[0]), in(a[1]));
}
int32_t biFormatDate(RunContext &, Value **a, int32_t) {
    return numFormatDate(argText(a[0]), argCapacity(a[0]), in(a[1]));
}
int32_t biFormatDateForSql(RunContext &, Value **a, int32_t) {
    return numFormatDate(argText(a[0]), argCapacity(a[0]), TextIn(kSqlDateFormat, u16Len(kSqlDateFormat) + 1));
}
// L*C[] (the German row: LC[], read alike)
int32_t biIntToDate(RunContext &, Value **a, int32_t) {
    return numIntToDate(argLong(a[0]), argText(a[1]), argCapacity(a[1]));
}
// C[]*L*L*L
int32_t biDisassembleDate(RunContext &, Value **a, int32_t) {
    return numDisassembleDate(in(a[0]), nullptr, argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
int32_t biDisassembleIsoDate(RunContext &, Value **a, int32_t) {
    return numDisassembleDate(in(a[0]), kIsoDateFormat, argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
int32_t biHtmlToRgb(RunContext &, Value **a, int32_t) {
    return numHtmlToRgb(in(a[0]), argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
// *C[]LLL
int32_t biAssembleDate(RunContext &, Value **a, int32_t) {
    return numAssembleDate(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argLong(a[2]), argLong(a[3]));
}
// LL*C[] and LLL*C[]
int32_t biWeekdayToName(RunContext &, Value **a, int32_t) {
    return numWeekdayToName(argLong(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
int32_t biRgbToHtml(RunContext &, Value **a, int32_t) {
    return numRgbToHtml(argLong(a[0]), argLong(a[1]), argLong(a[2]), argText(a[3]), argCapacity(a[3]));
}
// L*L*L*L and *L*L*L
int32_t biGetEasterSunday(RunContext &, Value **a, int32_t) {
    return numGetEasterSunday(argLong(a[0]), argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
int32_t biGetCurrentDate(RunContext &, Value **a, int32_t) {
    return numGetCurrentDate(argLongRef(a[0]), argLongRef(a[1]), argLongRef(a[2]));
}
int32_t biGetCurrentTime(RunContext &, Value **a, int32_t) {
    return numGetCurrentTime(argLongRef(a[0]), argLongRef(a[1]), argLongRef(a[2]));
}
// D*D
int32_t biDmToEuro(RunContext &, Value **a, int32_t) { return numDmToEuro(argDouble(a[0]), argDoubleRef(a[1])); }
int32_t biEuroToDm(RunContext &, Value **a, int32_t) { return numEuroToDm(argDouble(a[0]), argDoubleRef(a[1])); }
// C[]*C[]C[]
int32_t biPhoneNumberToInternational(RunContext &, Value **a, int32_t) {
    return numPhoneToInternational(in(a[0]), argText(a[1]), argCapacity(a[1]), in(a[2]));
}

const DispatchEntry kEntries[] = {
    {fnum::IntToString, u"L*C[]CC", biIntToString},
    {fnum::StringToInt, u"C[]", biStringToInt},
    {fnum::FloatToString, u"D*C[]CC", biFloatToString},
    {fnum::StringToFloat, u"C[]*D", biStringToFloat},
    {fnum::FloatToDigitNames, u"D*C[]C[]L", biFloatToDigitNames},
    {fnum::Modulo, u"LL", biModulo},
    {fnum::GetToday, u"*C[]", biGetToday},
    {fnum::FormatDate, u"*C[]C[]", biFormatDate},
    {fnum::GetTodayFormatted, u"*C[]C[]", biGetTodayFormatted},
    {fnum::DmToEuro, u"D*D", biDmToEuro},
    {fnum::EuroToDm, u"D*D", biEuroToDm},
    {fnum::DateToInt, u"C[]", biDateToInt},
    {fnum::IntToDate, u"L*C[]", biIntToDate},
    {fnum::DisassembleDate, u"C[]*L*L*L", biDisassembleDate},
    {fnum::AssembleDate, u"*C[]LLL", biAssembleDate},
    {fnum::FormatDateForSql, u"*C[]", biFormatDateForSql},
    {fnum::GetWeekday, u"C[]", biGetWeekday},
    {fnum::GetEasterSunday, u"L*L*L*L", biGetEasterSunday},
    {fnum::GetCurrentDate, u"*L*L*L", biGetCurrentDate},
    {fnum::GetCurrentTime, u"*L*L*L", biGetCurrentTime},
    {fnum::HtmlToRgb, u"C[]*L*L*L", biHtmlToRgb},
    {fnum::RgbToHtml, u"LLL*C[]", biRgbToHtml},
    {fnum::PhoneNumberToInternational, u"C[]*C[]C[]", biPhoneNumberToInternational},
    {fnum::GetWeekdayFromYMD, u"LLL", biGetWeekdayFromYMD},
    {fnum::GetMonthLng, u"LL", biGetMonthLng},
    {fnum::IsSunday, u"LLL", biIsSunday},
    {fnum::IsHoliday, u"LLLL", biIsHoliday},
    {fnum::IsSchoolHoliday, u"LLLLL", biIsSchoolHoliday},
    {fnum::DisassembleIsoDate, u"C[]*L*L*L", biDisassembleIsoDate},
    {fnum::WeekdayToName, u"LL*C[]", biWeekdayToName},
};

}  // namespace

const DispatchFamily kNumberFamily = {"numbers", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
