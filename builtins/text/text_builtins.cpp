// Dispatch entries of the text built-ins: each handler reads its bound
// arguments as its signature hands them over and calls the implementation.
#include "engine/args.h"
#include "engine/function_numbers.h"
#include "builtins/families.h"
#include "builtins/text/case.h"
#include "builtins/text/cutting.h"
#include "builtins/text/format.h"
#include "builtins/text/joining.h"
#include "builtins/text/padding.h"
#include "builtins/text/search.h"
#include "builtins/text/text_helpers.h"
#include "builtins/text/transform.h"

namespace mx {

namespace {

TextIn in(Value *v) { return TextIn(argText(v), argCapacity(v)); }
char16_t low16(Value *v) { return char16_t(argLong(v) & 0xFFFF); }

// C[]L*C[] and C[]LL*C[]
int32_t hLeftString(RunContext &, Value **a, int32_t) {
    return txtLeftString(in(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
int32_t hRightString(RunContext &, Value **a, int32_t) {
    return txtRightString(in(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
int32_t hMidString(RunContext &, Value **a, int32_t) {
    return txtMidString(in(a[0]), argLong(a[1]), argLong(a[2]), argText(a[3]), argCapacity(a[3]));
}
// *C[]LC
int32_t hFillStringLeft(RunContext &, Value **a, int32_t) {
    return txtFillStringLeft(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argChar(a[2]));
}
int32_t hFillStringRight(RunContext &, Value **a, int32_t) {
    return txtFillStringRight(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argChar(a[2]));
}
// *C[]C[] and C[]C[]
int32_t hStrCat(RunContext &, Value **a, int32_t) { return txtStrCat(argText(a[0]), argCapacity(a[0]), in(a[1])); }
int32_t hStrCmp(RunContext &, Value **a, int32_t) { return txtStrCmp(in(a[0]), in(a[1])); }
int32_t hStrStr(RunContext &, Value **a, int32_t) { return txtStrStr(in(a[0]), in(a[1])); }
// *C[]
int32_t hStringToUpper(RunContext &, Value **a, int32_t) { return txtStringToUpper(argText(a[0]), argCapacity(a[0])); }
int32_t hStringToLower(RunContext &, Value **a, int32_t) { return txtStringToLower(argText(a[0]), argCapacity(a[0])); }
int32_t hStripControl(RunContext &, Value **a, int32_t) { return txtStripControl(argText(a[0]), argCapacity(a[0])); }
int32_t hStripNonDigits(RunContext &, Value **a, int32_t) {
    return txtStripNonDigits(argText(a[0]), argCapacity(a[0]));
}
int32_t hDecodeString(RunContext &, Value **a, int32_t) { return txtDecodeString(argText(a[0]), argCapacity(a[0])); }
// C[]
int32_t hStrLen(RunContext &, Value **a, int32_t) { return txtStrLen(in(a[0])); }
int32_t hIsDigitString(RunContext &, Value **a, int32_t) { return txtIsDigitString(in(a[0])); }
int32_t hIsStringWhite(RunContext &, Value **a, int32_t) { return txtIsStringWhite(in(a[0])); }
// L
int32_t hToUpper(RunContext &, Value **a, int32_t) { return txtToUpper(argLong(a[0])); }
int32_t hToLower(RunContext &, Value **a, int32_t) { return txtToLower(argLong(a[0])); }
int32_t hIsAlpha(RunContext &, Value **a, int32_t) { return txtIsAlpha(argLong(a[0])); }
int32_t hIsAlphaNumeric(RunContext &, Value **a, int32_t) { return txtIsAlphaNumeric(argLong(a[0])); }
// C[]*C[]
int32_t hCopyText(RunContext &, Value **a, int32_t) { return txtCopyText(in(a[0]), argText(a[1]), argCapacity(a[1])); }
int32_t hMD5(RunContext &, Value **a, int32_t) { return txtMD5(in(a[0]), argText(a[1]), argCapacity(a[1])); }
// *C[]*C[]L
int32_t hStrDelim(RunContext &, Value **a, int32_t) {
    return txtStrDelim(argText(a[0]), argCapacity(a[0]), argText(a[1]), argCapacity(a[1]), low16(a[2]));
}
// C[]L: the text parameter has no "*" but is written all the same.
int32_t hTrimRight(RunContext &, Value **a, int32_t) {
    return txtTrimRight(argText(a[0]), argCapacity(a[0]), low16(a[1]));
}
int32_t hTrimLeft(RunContext &, Value **a, int32_t) { return txtTrimLeft(argText(a[0]), argCapacity(a[0]), low16(a[1])); }
// C[]C[]*C[]
int32_t hTransformString(RunContext &, Value **a, int32_t) {
    return txtTransformString(in(a[0]), in(a[1]), argText(a[2]), argCapacity(a[2]));
}
// *C[]C[] followed by count texts
int32_t makeText(Value **a, int32_t count) {
    TextIn params[5];
    for (int32_t i = 0; i < count; ++i) params[i] = in(a[2 + i]);
    return txtMakeText(argText(a[0]), argCapacity(a[0]), in(a[1]), params, count);
}
int32_t hMakeText1(RunContext &, Value **a, int32_t) { return makeText(a, 1); }
int32_t hMakeText2(RunContext &, Value **a, int32_t) { return makeText(a, 2); }
int32_t hMakeText3(RunContext &, Value **a, int32_t) { return makeText(a, 3); }
int32_t hMakeText4(RunContext &, Value **a, int32_t) { return makeText(a, 4); }
int32_t hMakeText5(RunContext &, Value **a, int32_t) { return makeText(a, 5); }
// *C[]C[]L
int32_t hMakeTextInt(RunContext &, Value **a, int32_t) {
    return txtMakeTextInt(argText(a[0]), argCapacity(a[0]), in(a[1]), argLong(a[2]));
}
// *C[]L and *C[]LL
int32_t hEncloseString(RunContext &, Value **a, int32_t) {
    return txtEncloseString(argText(a[0]), argCapacity(a[0]), low16(a[1]));
}
int32_t hStripLeft(RunContext &, Value **a, int32_t) { return txtStripLeft(argText(a[0]), argCapacity(a[0]), argLong(a[1])); }
int32_t hStripRight(RunContext &, Value **a, int32_t) {
    return txtStripRight(argText(a[0]), argCapacity(a[0]), argLong(a[1]));
}
int32_t hStripMid(RunContext &, Value **a, int32_t) {
    return txtStripMid(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argLong(a[2]));
}
// C[]L*C[]
int32_t hGetSubString(RunContext &, Value **a, int32_t) {
    return txtGetSubString(in(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
// *C[]C[]C[]L
int32_t hReplaceString(RunContext &, Value **a, int32_t) {
    return txtReplaceString(argText(a[0]), argCapacity(a[0]), in(a[1]), in(a[2]), argLong(a[3]));
}
// C[]L and C[]C[]L
int32_t hCreateHash(RunContext &, Value **a, int32_t) { return txtCreateHash(in(a[0]), argLong(a[1])); }
int32_t hFindString(RunContext &, Value **a, int32_t) { return txtFindString(in(a[0]), in(a[1])); }

const DispatchEntry kEntries[] = {
    {fnum::LeftString, hLeftString},      {fnum::RightString, hRightString},     {fnum::MidString, hMidString},       {fnum::FillStringLeft, hFillStringLeft},
    {fnum::FillStringRight, hFillStringRight}, {fnum::StrCat, hStrCat},          {fnum::StrCmp, hStrCmp},          {fnum::StrStr, hStrStr},
    {fnum::StringToUpper, hStringToUpper},   {fnum::StringToLower, hStringToLower},   {fnum::StrLen, hStrLen},          {fnum::ToUpper, hToUpper},
    {fnum::ToLower, hToLower},         {fnum::StripControl, hStripControl},    {fnum::IsAlpha, hIsAlpha},         {fnum::IsAlphaNumeric, hIsAlphaNumeric},
    {fnum::AsciiToAnsi, hCopyText},        {fnum::AnsiToAscii, hCopyText},        {fnum::StrDelim, hStrDelim},        {fnum::TrimRight, hTrimRight},
    {fnum::TrimLeft, hTrimLeft},        {fnum::TransformString, hTransformString}, {fnum::MakeText1, hMakeText1},     {fnum::MakeText2, hMakeText2},
    {fnum::MakeText3, hMakeText3},      {fnum::IsDigitString, hIsDigitString},  {fnum::MakeText4, hMakeText4},      {fnum::MakeText5, hMakeText5},
    {fnum::EncloseString, hEncloseString},  {fnum::GetSubString, hGetSubString},   {fnum::ReplaceString, hReplaceString},  {fnum::IsStringWhite, hIsStringWhite},
    {fnum::MakeTextInt, hMakeTextInt},    {fnum::DecodeString, hDecodeString},   {fnum::CreateHash, hCreateHash},     {fnum::StripLeft, hStripLeft},
    {fnum::StripMid, hStripMid},       {fnum::StripRight, hStripRight},     {fnum::FindString, hFindString},     {fnum::MD5, hMD5},
    {fnum::StripNonDigits, hStripNonDigits},
};

}  // namespace

const DispatchFamily kTextFamily = {"text", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
