// Helper library: replacing, hashing, decoding and digesting texts. The
// texts are terminated UTF-16; docs/text.md describes each rule in full.
#pragma once
#include <cstdint>

namespace mx {

// Mode bits of Kelvane_ReplaceStringW.
enum : int32_t {
    kReplaceIgnoreCase = 1,   // Find matches whatever the letters' case
    kReplaceWholeWords = 2,   // a match may not touch a letter, digit or "_"
    kReplaceAll = 4,          // every occurrence, not only the first
    kReplaceCutToFit = 8,     // a result too long is cut, not refused
    kReplaceLiteral = 16,     // Find and Replace as written, no escapes
};

// Replaces occurrences of find in text by replace, in place within capacity
// units (terminator included), scanning left to right and never inside a
// replacement already made. Without kReplaceLiteral, "\t", "\n", "\r" and
// "\\" in find and replace stand for TAB, line feed, carriage return and a
// backslash. Returns the number of replacements; -1 with text unchanged
// when the result does not fit and kReplaceCutToFit is not set, or when
// working memory is missing. An empty find replaces nothing.
int32_t Kelvane_ReplaceStringW(char16_t *text, int32_t capacity, const char16_t *find,
                               const char16_t *replace, int32_t mode);

// A stable hash of text reduced to 0 .. upperBound - 1: 32-bit FNV-1a over
// the text's UTF-8 bytes, taken modulo upperBound. upperBound below 1 gives 0.
int32_t Kelvane_CreateHashW(const char16_t *text, int32_t upperBound);

// Decodes percent escapes in place: "%" and two hexadecimal digits stand for
// one byte; runs of bytes forming UTF-8 become their characters, any other
// byte the character of the same code. Other text, "+" included, stays. The
// text can only get shorter. Returns the number of characters decoded.
int32_t Kelvane_DecodeStringW(char16_t *text);

// The MD5 digest (RFC 1321) of text's UTF-8 bytes as 32 lower-case
// hexadecimal digits and a terminating zero in digest (size bytes). Returns
// 0; -1 with an empty digest when size is below 33 (nothing when below 1).
int32_t Kelvane_MD5(const char16_t *text, char *digest, int32_t size);

// Hands the UTF-8 bytes of text[0..length) to sink, a character at a time;
// unpaired surrogates count as U+FFFD.
using KelvaneByteSink = void (*)(void *context, const unsigned char *bytes, int32_t count);
void kstrUtf8Bytes(const char16_t *text, int32_t length, KelvaneByteSink sink, void *context);

}  // namespace mx
