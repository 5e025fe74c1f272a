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
int32_t hIntToString(RunContext &, Value **a, int32_t) {
    return numIntToString(argLong(a[0]), argText(a[1]), argCapacity(a[1]), argChar(a[2]), argChar(a[3]));
}
// C[]
int32_t hStringToInt(RunContext &, Value **a, int32_t) { return numStringToInt(in(a[0])); }
int32_t hDateToInt(RunContext &, Value **a, int32_t) { return numDateToInt(in(a[0])); }
int32_t hGetWeekday(RunContext &, Value **a, int32_t) { return numGetWeekday(in(a[0])); }
// D*C[]CC: the decimal separator is the run's
int32_t hFloatToString(RunContext &ctx, Value **a, int32_t) {
    return numFloatToString(argDouble(a[0]), argText(a[1]), argCapacity(a[1]), argChar(a[2]), argChar(a[3]),
                            ctx.decimalSeparator);
}
// C[]*D
int32_t hStringToFloat(RunContext &ctx, Value **a, int32_t) {
    return numStringToFloat(in(a[0]), argDoubleRef(a[1]), ctx.decimalSeparator);
}
// D*C[]C[]L
int32_t hFloatToDigitNames(RunContext &, Value **a, int32_t) {
    return numFloatToDigitNames(argDouble(a[0]), argText(a[1]), argCapacity(a[1]), in(a[2]), argLong(a[3]));
}
// LL and LLL..., passed to the helper unchanged where it answers
int32_t hModulo(RunContext &, Value **a, int32_t) { return numModulo(argLong(a[0]), argLong(a[1])); }
int32_t hGetMonthLng(RunContext &, Value **a, int32_t) { return Get_MonthLng(argLong(a[0]), argLong(a[1])); }
int32_t hIsSunday(RunContext &, Value **a, int32_t) {
    return Kelvane_IsSunday(argLong(a[0]), argLong(a[1]), argLong(a[2]));
}
int32_t hIsHoliday(RunContext &, Value **a, int32_t) {
    return Kelvane_IsHoliday(argLong(a[0]), argLong(a[1]), argLong(a[2]), argLong(a[3]));
}
int32_t hIsSchoolHoliday(RunContext &, Value **a, int32_t) {
    return Kelvane_IsSchoolHoliday(argLong(a[0]), argLong(a[1]), argLong(a[2]), argLong(a[3]), argLong(a[4]));
}
int32_t hGetWeekdayFromYMD(RunContext &, Value **a, int32_t) {
    return numGetWeekdayFromYMD(argLong(a[0]), argLong(a[1]), argLong(a[2]));
}
// *C[] and *C[]C[]
int32_t hGetToday(RunContext &, Value **a, int32_t) { return numGetToday(argText(a[0]), argCapacity(a[0])); }
int32_t hGetTodayFormatted(RunContext &, Value **a, int32_t) {
    return numGetTodayFormatted(argText(a[0]), argCapacity(a[0]), in(a[1]));
}
int32_t hFormatDate(RunContext &, Value **a, int32_t) {
    return numFormatDate(argText(a[0]), argCapacity(a[0]), in(a[1]));
}
int32_t hFormatDateForSql(RunContext &, Value **a, int32_t) {
    return numFormatDate(argText(a[0]), argCapacity(a[0]), TextIn(kSqlDateFormat, u16Len(kSqlDateFormat) + 1));
}
// L*C[] (the German row: LC[], read alike)
int32_t hIntToDate(RunContext &, Value **a, int32_t) {
    return numIntToDate(argLong(a[0]), argText(a[1]), argCapacity(a[1]));
}
// C[]*L*L*L
int32_t hDisassembleDate(RunContext &, Value **a, int32_t) {
    return numDisassembleDate(in(a[0]), nullptr, argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
int32_t hDisassembleIsoDate(RunContext &, Value **a, int32_t) {
    return numDisassembleDate(in(a[0]), kIsoDateFormat, argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
int32_t hHtmlToRgb(RunContext &, Value **a, int32_t) {
    return numHtmlToRgb(in(a[0]), argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
// *C[]LLL
int32_t hAssembleDate(RunContext &, Value **a, int32_t) {
    return numAssembleDate(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argLong(a[2]), argLong(a[3]));
}
// LL*C[] and LLL*C[]
int32_t hWeekdayToName(RunContext &, Value **a, int32_t) {
    return numWeekdayToName(argLong(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
int32_t hRgbToHtml(RunContext &, Value **a, int32_t) {
    return numRgbToHtml(argLong(a[0]), argLong(a[1]), argLong(a[2]), argText(a[3]), argCapacity(a[3]));
}
// L*L*L*L and *L*L*L
int32_t hGetEasterSunday(RunContext &, Value **a, int32_t) {
    return numGetEasterSunday(argLong(a[0]), argLongRef(a[1]), argLongRef(a[2]), argLongRef(a[3]));
}
int32_t hGetCurrentDate(RunContext &, Value **a, int32_t) {
    return numGetCurrentDate(argLongRef(a[0]), argLongRef(a[1]), argLongRef(a[2]));
}
int32_t hGetCurrentTime(RunContext &, Value **a, int32_t) {
    return numGetCurrentTime(argLongRef(a[0]), argLongRef(a[1]), argLongRef(a[2]));
}
// D*D
int32_t hDmToEuro(RunContext &, Value **a, int32_t) { return numDmToEuro(argDouble(a[0]), argDoubleRef(a[1])); }
int32_t hEuroToDm(RunContext &, Value **a, int32_t) { return numEuroToDm(argDouble(a[0]), argDoubleRef(a[1])); }
// C[]*C[]C[]
int32_t hPhoneNumberToInternational(RunContext &, Value **a, int32_t) {
    return numPhoneToInternational(in(a[0]), argText(a[1]), argCapacity(a[1]), in(a[2]));
}

const DispatchEntry kEntries[] = {
    {fnum::IntToString, hIntToString},       {fnum::StringToInt, hStringToInt},        {fnum::FloatToString, hFloatToString},
    {fnum::StringToFloat, hStringToFloat},     {fnum::FloatToDigitNames, hFloatToDigitNames},  {fnum::Modulo, hModulo},
    {fnum::GetToday, hGetToday},          {fnum::FormatDate, hFormatDate},         {fnum::GetTodayFormatted, hGetTodayFormatted},
    {fnum::DmToEuro, hDmToEuro},         {fnum::EuroToDm, hEuroToDm},          {fnum::DateToInt, hDateToInt},
    {fnum::IntToDate, hIntToDate},        {fnum::DisassembleDate, hDisassembleDate},   {fnum::AssembleDate, hAssembleDate},
    {fnum::FormatDateForSql, hFormatDateForSql}, {fnum::GetWeekday, hGetWeekday},        {fnum::GetEasterSunday, hGetEasterSunday},
    {fnum::GetCurrentDate, hGetCurrentDate},   {fnum::GetCurrentTime, hGetCurrentTime},    {fnum::HtmlToRgb, hHtmlToRgb},
    {fnum::RgbToHtml, hRgbToHtml},        {fnum::PhoneNumberToInternational, hPhoneNumberToInternational}, {fnum::GetWeekdayFromYMD, hGetWeekdayFromYMD},
    {fnum::GetMonthLng, hGetMonthLng},      {fnum::IsSunday, hIsSunday},          {fnum::IsHoliday, hIsHoliday},
    {fnum::IsSchoolHoliday, hIsSchoolHoliday},  {fnum::DisassembleIsoDate, hDisassembleIsoDate}, {fnum::WeekdayToName, hWeekdayToName},
};

}  // namespace

const DispatchFamily kNumberFamily = {"numbers", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
