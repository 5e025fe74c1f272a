// The reader: characters, words, quoted texts, keywords and dimensions, read
// straight from the run's text buffer while the line number is counted.
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

constexpr int32_t kEndOfText = -1;
constexpr int32_t kWordCapacity = 32;  // words are significant to 31 characters

// Flags of rdChar.
enum : uint32_t { kSkipControl = 1, kSkipBlanks = 2, kSkipWhite = 3 };

// Keywords, English and German spellings sharing one number.
enum Keyword : int32_t {
    kKwNone = 0,
    kKwBegin = 1,
    kKwEnd,
    kKwIf,
    kKwWhile,
    kKwBreak,
    kKwExit,
    kKwChar,
    kKwInt,
    kKwFloat,
    kKwStatic,
};

// The next character (advancing, counting line feeds), skipping characters
// below 32 with kSkipControl and blanks with kSkipBlanks; -1 at the end.
// Inline: every character of every statement passes through here.
inline int32_t rdChar(RunContext &ctx, uint32_t flags) {
    for (;;) {
        if (!ctx.text || ctx.pos >= ctx.length) return kEndOfText;
        char16_t c = ctx.text[ctx.pos++];
        if (c == u'\n') ++ctx.line;
        if (c < 32 && (flags & kSkipControl)) continue;
        if (c == 32 && (flags & kSkipBlanks)) continue;
        return c;
    }
}

// A place in the text: the reader's position and the line it is on, which
// always move together.
struct TextPlace {
    int32_t pos;
    int32_t line;
};
inline TextPlace rdPlace(const RunContext &ctx) { return TextPlace{ctx.pos, ctx.line}; }
inline void rdSeek(RunContext &ctx, TextPlace place) { ctx.pos = place.pos, ctx.line = place.line; }

// Steps back over c, the character just read; nothing for -1 or at position 0.
void rdUnread(RunContext &ctx, int32_t c);

// The next character after the characters the flags skip, left unread.
int32_t rdPeek(RunContext &ctx, uint32_t flags);

// Reads an identifier word (letters, digits, '_') into buf, keeping at most
// capacity - 1 characters and dropping the rest. Returns the character that
// ended it (left unread), or -1 with error 118 when the text ended first.
int32_t rdWord(RunContext &ctx, char16_t *buf, int32_t capacity);

// Reads a text in double quotes after blanks and line breaks into buf (at most
// capacity - 1 characters). Returns its length, or -1 (no error set) when no
// quote starts there or a line feed or the end comes before the closing one.
int32_t rdQuoted(RunContext &ctx, char16_t *buf, int32_t capacity);

// The keyword number of a word, 0 for none. Case-sensitive.
int32_t rdKeyword(const char16_t *word);

// Reads "[n]" (n of 1 to 9 digits). Returns n, or -1 with error 120 or 123.
int32_t rdDimension(RunContext &ctx);

// True for letters, digits and '_'.
bool rdIsIdentChar(char16_t c);

}  // namespace mx
