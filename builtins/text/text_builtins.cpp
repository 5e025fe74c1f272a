// Dispatch entries of the text built-ins: each handler reads its bound
// arguments as its signature hands them over and calls the implementation.
#include "engine/args.h"
#include "engine/function_numbers.h"
#include "engine/text_end.h"
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
int32_t biLeftString(RunContext &, Value **a, int32_t) {
    return txtLeftString(in(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
int32_t biRightString(RunContext &, Value **a, int32_t) {
    return txtRightString(in(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
int32_t biMidString(RunContext &, Value **a, int32_t) {
    return txtMidString(in(a[0]), argLong(a[1]), argLong(a[2]), argText(a[3]), argCapacity(a[3]));
}
// *C[]LC
int32_t biFillStringLeft(RunContext &, Value **a, int32_t) {
    return txtFillStringLeft(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argChar(a[2]));
}
int32_t biFillStringRight(RunContext &, Value **a, int32_t) {
    return txtFillStringRight(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argChar(a[2]));
}
// *C[]C[] and C[]C[]
// Appending again to the text it appended to last needs no search for its end.
int32_t biStrCat(RunContext &, Value **a, int32_t) {
    char16_t *s = argText(a[0]);
    int32_t cap = argCapacity(a[0]), len, end;
    if (!textEndKnown(s, cap, &len)) len = txtLen(s, cap);
    int32_t result = txtStrCatAt(s, cap, len, in(a[1]), &end);
    textEndRemember(s, cap, end);
    return result;
}
int32_t biStrCmp(RunContext &, Value **a, int32_t) { return txtStrCmp(in(a[0]), in(a[1])); }
int32_t biStrStr(RunContext &, Value **a, int32_t) { return txtStrStr(in(a[0]), in(a[1])); }
// *C[]
int32_t biStringToUpper(RunContext &, Value **a, int32_t) { return txtStringToUpper(argText(a[0]), argCapacity(a[0])); }
int32_t biStringToLower(RunContext &, Value **a, int32_t) { return txtStringToLower(argText(a[0]), argCapacity(a[0])); }
int32_t biStripControl(RunContext &, Value **a, int32_t) { return txtStripControl(argText(a[0]), argCapacity(a[0])); }
int32_t biStripNonDigits(RunContext &, Value **a, int32_t) {
    return txtStripNonDigits(argText(a[0]), argCapacity(a[0]));
}
int32_t biDecodeString(RunContext &, Value **a, int32_t) { return txtDecodeString(argText(a[0]), argCapacity(a[0])); }
// C[]
int32_t biStrLen(RunContext &, Value **a, int32_t) { return txtStrLen(in(a[0])); }
int32_t biIsDigitString(RunContext &, Value **a, int32_t) { return txtIsDigitString(in(a[0])); }
int32_t biIsStringWhite(RunContext &, Value **a, int32_t) { return txtIsStringWhite(in(a[0])); }
// L
int32_t biToUpper(RunContext &, Value **a, int32_t) { return txtToUpper(argLong(a[0])); }
int32_t biToLower(RunContext &, Value **a, int32_t) { return txtToLower(argLong(a[0])); }
int32_t biIsAlpha(RunContext &, Value **a, int32_t) { return txtIsAlpha(argLong(a[0])); }
int32_t biIsAlphaNumeric(RunContext &, Value **a, int32_t) { return txtIsAlphaNumeric(argLong(a[0])); }
// C[]*C[]
int32_t biAnsiToAscii(RunContext &, Value **a, int32_t) { return txtCopyText(in(a[0]), argText(a[1]), argCapacity(a[1])); }
int32_t biMD5(RunContext &, Value **a, int32_t) { return txtMD5(in(a[0]), argText(a[1]), argCapacity(a[1])); }
// *C[]*C[]L
int32_t biStrDelim(RunContext &, Value **a, int32_t) {
    return txtStrDelim(argText(a[0]), argCapacity(a[0]), argText(a[1]), argCapacity(a[1]), low16(a[2]));
}
// C[]L: the text parameter has no "*" but is written all the same.
int32_t biTrimRight(RunContext &, Value **a, int32_t) {
    return txtTrimRight(argText(a[0]), argCapacity(a[0]), low16(a[1]));
}
int32_t biTrimLeft(RunContext &, Value **a, int32_t) { return txtTrimLeft(argText(a[0]), argCapacity(a[0]), low16(a[1])); }
// C[]C[]*C[]
int32_t biTransformString(RunContext &, Value **a, int32_t) {
    return txtTransformString(in(a[0]), in(a[1]), argText(a[2]), argCapacity(a[2]));
}
// *C[]C[] followed by count texts
int32_t makeText(Value **a, int32_t count) {
    TextIn params[5];
    for (int32_t i = 0; i < count; ++i) params[i] = in(a[2 + i]);
    return txtMakeText(argText(a[0]), argCapacity(a[0]), in(a[1]), params, count);
}
int32_t biMakeText1(RunContext &, Value **a, int32_t) { return makeText(a, 1); }
int32_t biMakeText2(RunContext &, Value **a, int32_t) { return makeText(a, 2); }
int32_t biMakeText3(RunContext &, Value **a, int32_t) { return makeText(a, 3); }
int32_t biMakeText4(RunContext &, Value **a, int32_t) { return makeText(a, 4); }
int32_t biMakeText5(RunContext &, Value **a, int32_t) { return makeText(a, 5); }
// *C[]C[]L
int32_t biMakeTextInt(RunContext &, Value **a, int32_t) {
    return txtMakeTextInt(argText(a[0]), argCapacity(a[0]), in(a[1]), argLong(a[2]));
}
// *C[]L and *C[]LL
int32_t biEncloseString(RunContext &, Value **a, int32_t) {
    return txtEncloseString(argText(a[0]), argCapacity(a[0]), low16(a[1]));
}
int32_t biStripLeft(RunContext &, Value **a, int32_t) { return txtStripLeft(argText(a[0]), argCapacity(a[0]), argLong(a[1])); }
int32_t biStripRight(RunContext &, Value **a, int32_t) {
    return txtStripRight(argText(a[0]), argCapacity(a[0]), argLong(a[1]));
}
int32_t biStripMid(RunContext &, Value **a, int32_t) {
    return txtStripMid(argText(a[0]), argCapacity(a[0]), argLong(a[1]), argLong(a[2]));
}
// C[]L*C[]
int32_t biGetSubString(RunContext &, Value **a, int32_t) {
    return txtGetSubString(in(a[0]), argLong(a[1]), argText(a[2]), argCapacity(a[2]));
}
// *C[]C[]C[]L
int32_t biReplaceString(RunContext &, Value **a, int32_t) {
    return txtReplaceString(argText(a[0]), argCapacity(a[0]), in(a[1]), in(a[2]), argLong(a[3]));
}
// C[]L and C[]C[]L
int32_t biCreateHash(RunContext &, Value **a, int32_t) { return txtCreateHash(in(a[0]), argLong(a[1])); }
int32_t biFindString(RunContext &, Value **a, int32_t) { return txtFindString(in(a[0]), in(a[1])); }

const DispatchEntry kEntries[] = {
    {fnum::LeftString, u"C[]L*C[]", biLeftString},
    {fnum::RightString, u"C[]L*C[]", biRightString},
    {fnum::MidString, u"C[]LL*C[]", biMidString},
    {fnum::FillStringLeft, u"*C[]LC", biFillStringLeft},
    {fnum::FillStringRight, u"*C[]LC", biFillStringRight},
    {fnum::StrCat, u"*C[]C[]", biStrCat},
    {fnum::StrCmp, u"C[]C[]", biStrCmp},
    {fnum::StrStr, u"C[]C[]", biStrStr},
    {fnum::StringToUpper, u"*C[]", biStringToUpper},
    {fnum::StringToLower, u"*C[]", biStringToLower},
    {fnum::StrLen, u"C[]", biStrLen},
    {fnum::ToUpper, u"L", biToUpper},
    {fnum::ToLower, u"L", biToLower},
    {fnum::StripControl, u"*C[]", biStripControl},
    {fnum::IsAlpha, u"L", biIsAlpha},
    {fnum::IsAlphaNumeric, u"L", biIsAlphaNumeric},
    {fnum::AsciiToAnsi, u"C[]*C[]", biAnsiToAscii},
    {fnum::AnsiToAscii, u"C[]*C[]", biAnsiToAscii},
    {fnum::StrDelim, u"*C[]*C[]L", biStrDelim},
    {fnum::TrimRight, u"C[]L", biTrimRight},
    {fnum::TrimLeft, u"C[]L", biTrimLeft},
    {fnum::TransformString, u"C[]C[]*C[]", biTransformString},
    {fnum::MakeText1, u"*C[]C[]C[]", biMakeText1},
    {fnum::MakeText2, u"*C[]C[]C[]C[]", biMakeText2},
    {fnum::MakeText3, u"*C[]C[]C[]C[]C[]", biMakeText3},
    {fnum::IsDigitString, u"C[]", biIsDigitString},
    {fnum::MakeText4, u"*C[]C[]C[]C[]C[]C[]", biMakeText4},
    {fnum::MakeText5, u"*C[]C[]C[]C[]C[]C[]C[]", biMakeText5},
    {fnum::EncloseString, u"*C[]L", biEncloseString},
    {fnum::GetSubString, u"C[]L*C[]", biGetSubString},
    {fnum::ReplaceString, u"*C[]C[]C[]L", biReplaceString},
    {fnum::IsStringWhite, u"C[]", biIsStringWhite},
    {fnum::MakeTextInt, u"*C[]C[]L", biMakeTextInt},
    {fnum::DecodeString, u"*C[]", biDecodeString},
    {fnum::CreateHash, u"C[]L", biCreateHash},
    {fnum::StripLeft, u"*C[]L", biStripLeft},
    {fnum::StripMid, u"*C[]LL", biStripMid},
    {fnum::StripRight, u"*C[]L", biStripRight},
    {fnum::FindString, u"C[]C[]L", biFindString},
    {fnum::MD5, u"C[]*C[]", biMD5},
    {fnum::StripNonDigits, u"*C[]", biStripNonDigits},
};

}  // namespace

const DispatchFamily kTextFamily = {"text", kEntries, int32_t(sizeof kEntries / sizeof kEntries[0])};

}  // namespace mx
