#include "builtins/text/case.h"

#include "builtins/text/text_in.h"
#include "platform/casemap.h"
#include "platform/platform.h"

namespace mx {

int32_t txtStringToUpper(char16_t *s, int32_t cap) {
    if (!s || cap < 1) return 0;
    s[cap - 1] = 0;
    mxp_UpperText(s, txtLen(s, cap));
    return 0;
}

int32_t txtStringToLower(char16_t *s, int32_t cap) {
    if (!s || cap < 1) return 0;
    s[cap - 1] = 0;
    mxp_LowerText(s, txtLen(s, cap));
    return 0;
}

int32_t txtToUpper(int32_t ch) { return mxp_CharUpper(char16_t(ch & 0xFFFF)); }

int32_t txtToLower(int32_t ch) { return mxp_CharLower(char16_t(ch & 0xFFFF)); }

int32_t txtIsAlpha(int32_t ch) { return mxp_IsAlpha(char16_t(ch & 0xFFFF)) ? 1 : 0; }

int32_t txtIsAlphaNumeric(int32_t ch) { return mxp_IsAlphaNumeric(char16_t(ch & 0xFFFF)) ? 1 : 0; }

}  // namespace mx
