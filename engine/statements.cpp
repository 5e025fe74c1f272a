#include "engine/statements.h"

#include <memory>
#include <new>

#include "engine/collect.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "engine/reader.h"
#include "engine/statement_cache.h"
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

// Remembers what was read from the place from up to the reader's
// position. Returns the entry, or absent when the run keeps no cache.
CachedStatement *remember(RunContext &ctx, TextPlace from, CacheRole role, CachedKind kind) {
    CachedStatement *e = scAdd(ctx, from.pos, role);
    if (!e) return nullptr;
    e->kind = kind;
    e->after = ctx.pos;
    e->lineDelta = ctx.line - from.line;
    return e;
}

// Moves the reader past what the entry read, as reading it would have.
void passOver(RunContext &ctx, const CachedStatement &e, TextPlace from) {
    rdSeek(ctx, TextPlace{e.after, from.line + e.lineDelta});
}

// Evaluates the entry's formula from its text, recording the program for the
// next time.
bool evaluateAndRecord(RunContext &ctx, CachedStatement &e, FormulaResult *result) {
    e.recorded = false;
    FormulaRecorder recorder;
    ctx.recorder = &recorder;
    Value *v = evEvaluate(ctx, e.formula.data(), e.formula.data() + e.formula.size());
    ctx.recorder = nullptr;
    if (!v) return false;
    result->vector = v->count != 0;
    result->asLong = valToLong(v);
    valRelease(v);
    if (!recorder.spoiled) {
        fpFold(recorder.program);
        e.program = std::move(recorder.program);
        e.recorded = true;
        e.generation = ctx.localGeneration;
    }
    return true;
}

// Evaluates the entry's formula: by its program when one was recorded and
// still resolves its names as the text would, else from the text.
inline bool evaluate(RunContext &ctx, CachedStatement &e, FormulaResult *result) {
    if (e.recorded && (!e.program.names || e.generation == ctx.localGeneration))
        return fpRun(ctx, e.program, result);
    return evaluateAndRecord(ctx, e, result);
}

// Reads a formula up to the character close, which must follow it, and keeps
// it in a cache entry for the place from. Absent with the error set.
CachedStatement *readFormula(RunContext &ctx, const char16_t *start, char16_t close, const char16_t *shown,
                             TextPlace from, CacheRole role, CachedKind kind,
                             CachedStatement &spare) {
    char16_t formula[kFormulaCapacity];
    int32_t length = fmCollect(ctx, start, formula);
    if (length < 0) return nullptr;
    CachedStatement *e = nullptr;
    if (expect(ctx, close, shown)) {
        e = remember(ctx, from, role, kind);
        if (!e) e = &spare;  // no cache: the entry lives for this statement only
        try {
            e->formula.assign(formula, size_t(length));
        } catch (const std::bad_alloc &) {
            errSet(ctx, kErrNoMemory);
            e = nullptr;
        }
    }
    return e;
}

// condition := '(' formula ')'
// Returns 1 true, 0 false, -1 error. Skip mode reads it and gives false.
int32_t condition(RunContext &ctx, Mode mode) {
    TextPlace from = rdPlace(ctx);
    CachedStatement spare;
    CachedStatement *e = scFind(ctx, from.pos, CacheRole::kCondition);
    if (e) {
        passOver(ctx, *e, from);
    } else {
        if (!expect(ctx, u'(', u"(")) return -1;
        e = readFormula(ctx, nullptr, u')', u")", from, CacheRole::kCondition, CachedKind::kCondition, spare);
        if (!e) return -1;
    }
    if (mode == Mode::kSkip) return 0;
    FormulaResult r;
    if (!evaluate(ctx, *e, &r)) return -1;
    if (r.vector) {
        errSet(ctx, kErrVectorNotAllowed, e->formula.c_str());
        return -1;
    }
    return r.asLong != 0;
}

// Runs the formula statement of the entry.
int32_t runFormula(RunContext &ctx, CachedStatement &e, Mode mode) {
    if (mode == Mode::kSkip) return kStNormal;
    FormulaResult r;
    return evaluate(ctx, e, &r) ? kStNormal : kStError;
}

// formula-statement := formula ';'
int32_t formulaStatement(RunContext &ctx, const char16_t *word, Mode mode, TextPlace from) {
    CachedStatement spare;
    CachedStatement *e =
        readFormula(ctx, word, u';', u";", from, CacheRole::kStatement, CachedKind::kFormula, spare);
    return e ? runFormula(ctx, *e, mode) : kStError;
}

// if-statement := 'if' condition statement
int32_t ifStatement(RunContext &ctx, Mode mode) {
    int32_t c = condition(ctx, mode);
    if (c < 0) return kStError;
    return stExecute(ctx, c ? mode : Mode::kSkip);
}

// while-statement := 'while' condition statement
int32_t whileStatement(RunContext &ctx, Mode mode) {
    TextPlace start = rdPlace(ctx);
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
                rdSeek(ctx, start);
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

int32_t keywordStatement(RunContext &ctx, int32_t keyword, const char16_t *word, Mode mode, TextPlace from) {
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
        default: return formulaStatement(ctx, word, mode, from);
    }
}

// Runs a statement whose reading is in the cache.
int32_t runCached(RunContext &ctx, CachedStatement &e, Mode mode) {
    switch (e.kind) {
        case CachedKind::kKeyword: return keywordStatement(ctx, e.keyword, nullptr, mode, TextPlace{});
        case CachedKind::kOpen: return stBlock(ctx, mode);
        case CachedKind::kClose: return kStEnd;
        default: return runFormula(ctx, e, mode);
    }
}

// Keywords whose statement goes on after the word without depending on it.
bool isControlKeyword(int32_t keyword) { return keyword >= kKwBegin && keyword <= kKwExit; }

// Reads and runs the statement at from, which the cache does not know yet.
int32_t readStatement(RunContext &ctx, Mode mode, TextPlace from) {
    char16_t word[kWordCapacity];
    if (rdWord(ctx, word, kWordCapacity) < 0) return kStError;
    if (word[0] == 0) {
        int32_t c = rdChar(ctx, kSkipWhite);
        if (c == u'{' || c == u'}') {
            remember(ctx, from, CacheRole::kStatement, c == u'{' ? CachedKind::kOpen : CachedKind::kClose);
            return c == u'{' ? stBlock(ctx, mode) : kStEnd;
        }
        rdUnread(ctx, c);
    }
    int32_t keyword = rdKeyword(word);
    if (isControlKeyword(keyword))
        if (CachedStatement *e = remember(ctx, from, CacheRole::kStatement, CachedKind::kKeyword))
            e->keyword = keyword;
    return keywordStatement(ctx, keyword, word, mode, from);
}

int32_t execute(RunContext &ctx, Mode mode) {
    TextPlace from = rdPlace(ctx);
    CachedStatement *e = scFind(ctx, from.pos, CacheRole::kStatement);
    if (e && mode == Mode::kSkip && e->skipAfter >= 0) {  // a skipped statement is passed in one step
        rdSeek(ctx, TextPlace{e->skipAfter, from.line + e->skipLineDelta});
        return e->skipResult;
    }
    int32_t r = kStError;
    if (e) {
        passOver(ctx, *e, from);
        r = runCached(ctx, *e, mode);
    } else {
        r = readStatement(ctx, mode, from);
    }
    if (mode == Mode::kSkip && r != kStError && (e || (e = scFind(ctx, from.pos, CacheRole::kStatement)))) {
        e->skipAfter = ctx.pos;
        e->skipLineDelta = ctx.line - from.line;
        e->skipResult = r;
    }
    return r;
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
