#include "engine/statements.h"

#include "engine/collect.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "engine/reader.h"
#include "engine/value.h"

namespace mx {

#ifdef MX_FUZZ
int64_t stFuzzTurnsLeft = 0;
int32_t stFuzzTurnsPerLoop = 0;
#endif

namespace {

// The next character after blanks must be c; else error 120 naming it.
bool expect(RunContext &ctx, char16_t c, const char16_t *shown) {
    if (rdChar(ctx, kSkipBlanks) == c) return true;
    errSet(ctx, kErrCharExpected, shown);
    return false;
}

// condition := '(' formula ')'
// Returns 1 true, 0 false, -1 error. Skip mode reads it and gives false.
int32_t condition(RunContext &ctx, Mode mode) {
    if (!expect(ctx, u'(', u"(")) return -1;
    char16_t *formula = fmCollectInBuffer(ctx, nullptr);
    if (!formula) return -1;
    int32_t result = -1;
    if (!expect(ctx, u')', u")")) {
    } else if (mode == Mode::kSkip) {
        result = 0;
    } else if (Value *v = evEvaluate(ctx, formula)) {
        if (v->count != 0) errSet(ctx, kErrVectorNotAllowed, formula);
        else result = valToLong(v) != 0;
        valRelease(v);
    }
    fmReleaseBuffer(formula);
    return result;
}

// formula-statement := formula ';'
int32_t formulaStatement(RunContext &ctx, const char16_t *word, Mode mode) {
    char16_t *formula = fmCollectInBuffer(ctx, word);
    if (!formula) return kStError;
    int32_t result = kStError;
    if (!expect(ctx, u';', u";")) {
    } else if (mode == Mode::kSkip) {
        result = kStNormal;
    } else if (Value *v = evEvaluate(ctx, formula)) {
        valRelease(v);
        result = kStNormal;
    }
    fmReleaseBuffer(formula);
    return result;
}

// if-statement := 'if' condition statement
int32_t ifStatement(RunContext &ctx, Mode mode) {
    int32_t c = condition(ctx, mode);
    if (c < 0) return kStError;
    return stExecute(ctx, c ? mode : Mode::kSkip);
}

// while-statement := 'while' condition statement
// The condition and body are read again from the text for every turn.
int32_t whileStatement(RunContext &ctx, Mode mode) {
    int32_t pos = ctx.pos, line = ctx.line;
#ifdef MX_FUZZ
    int32_t turns = 0;
#endif
    for (;;) {
        int32_t c = condition(ctx, mode);
        if (c < 0) return kStError;
        if (!c) return stExecute(ctx, Mode::kSkip);
        switch (int32_t r = stExecute(ctx, mode)) {
            case kStNormal:
#ifdef MX_FUZZ
                if (--stFuzzTurnsLeft < 0) {
                    errSet(ctx, kErrStackOverflow);
                    return kStError;
                }
                if (++turns == stFuzzTurnsPerLoop) return kStNormal;  // just after the body
#endif
                ctx.pos = pos, ctx.line = line;
                break;
            case kStBreak: return kStNormal;
            case kStEnd: errSet(ctx, kErrKeywordNotAllowed, u"end"); return kStError;
            default: return r;  // exit or error
        }
    }
}

// break-statement := ('break' | 'exit') ';'
int32_t jumpStatement(RunContext &ctx, Mode mode, int32_t result) {
    if (!expect(ctx, u';', u";")) return kStError;
    return mode == Mode::kRun ? result : kStNormal;
}

int32_t keywordStatement(RunContext &ctx, int32_t keyword, const char16_t *word, Mode mode) {
    switch (keyword) {
        case kKwBegin: return stBlock(ctx, mode);
        case kKwEnd: return kStEnd;
        case kKwIf: return ifStatement(ctx, mode);
        case kKwWhile: return whileStatement(ctx, mode);
        case kKwBreak: return jumpStatement(ctx, mode, kStBreak);
        case kKwExit: return jumpStatement(ctx, mode, kStExit);
        case kKwChar:
        case kKwInt:
        case kKwFloat: return dcDeclare(ctx, false, keyword, mode) < 0 ? kStError : kStNormal;
        case kKwStatic: return dcDeclareStatic(ctx, mode) < 0 ? kStError : kStNormal;
        default: return formulaStatement(ctx, word, mode);
    }
}

int32_t execute(RunContext &ctx, Mode mode) {
    char16_t word[kWordCapacity];
    if (rdWord(ctx, word, kWordCapacity) < 0) return kStError;
    if (word[0] == 0) {
        int32_t c = rdChar(ctx, kSkipWhite);
        if (c == u'{') return stBlock(ctx, mode);
        if (c == u'}') return kStEnd;
        rdUnread(ctx, c);
    }
    return keywordStatement(ctx, rdKeyword(word), word, mode);
}

}  // namespace

int32_t stExecute(RunContext &ctx, Mode mode) {
    if (!evEnter(ctx)) return kStError;
    int32_t r = execute(ctx, mode);
    evLeave(ctx);
    return r;
}

// block := ('begin' | '{') statement* ('end' | '}')
int32_t stBlock(RunContext &ctx, Mode mode) {
    for (;;) {
        switch (int32_t r = stExecute(ctx, mode)) {
            case kStNormal: break;
            case kStEnd: return kStNormal;
            case kStBreak:
            case kStExit:
                if (stBlock(ctx, Mode::kSkip) != kStNormal) return kStError;
                return r;
            default: return kStError;
        }
    }
}

}  // namespace mx
