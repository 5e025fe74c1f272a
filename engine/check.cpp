#include "engine/check.h"

#include <cstdlib>

#include "engine/call.h"
#include "engine/check_formula.h"
#include "engine/collect.h"
#include "engine/declare.h"
#include "engine/errors.h"
#include "engine/eval.h"
#include "engine/loader.h"
#include "engine/reader.h"
#include "base/u16.h"

namespace mx {

namespace {

// What reading one statement gave: read (errors in it were reported), the
// block's end, or the end of the check (the text ended; reported).
enum Outcome { kRead, kEnd, kStop };

struct Checker {
    RunContext &ctx;
    CheckSink sink;
    void *user;
    CheckNames names;
    int32_t errors = 0;

    void report() {
        ++errors;
        sink(ctx, user);
    }

    // After an error in a statement: report it, then go on after the
    // statement's ';' (outside text constants). kStop when the text ends.
    Outcome recover() {
        report();
        if (ctx.errorCode == kErrUnexpectedEnd) return kStop;
        bool inText = false;
        for (;;) {
            int32_t c = rdChar(ctx, 0);
            if (c == kEndOfText) return kStop;
            if (c == u'"') inText = !inText;
            else if (c == u'\n') inText = false;
            else if (c == u';' && !inText) return kRead;
        }
    }

    // The next character after blanks must be c, else error 120. A ';' read
    // instead is put back, so that recovering ends the statement there.
    bool expect(char16_t c, const char16_t *shown) {
        int32_t read = rdChar(ctx, kSkipBlanks);
        if (read == c) return true;
        if (read == u';') rdUnread(ctx, read);
        errSet(ctx, kErrCharExpected, shown);
        return false;
    }

    // A formula already collected: its errors are reported where the run
    // would report them (the line of its ';' or ')'), and reading goes on.
    void formula(char16_t *text) {
        if (!ckFormula(ctx, names, text)) report();
    }

    Outcome statement();
    Outcome keywordStatement();
    Outcome block();
    Outcome condition();
    Outcome declaration(bool isStatic);
    Outcome formulaStatement(const char16_t *word);
};

// condition := '(' formula ')'
Outcome Checker::condition() {
    if (!expect(u'(', u"(")) return recover();
    char16_t text[kFormulaCapacity];
    if (fmCollect(ctx, nullptr, text) < 0) return recover();
    if (!expect(u')', u")")) return recover();
    formula(text);
    return kRead;
}

// A declaration read as the run reads it in skip mode; its name is then
// known to the formulas after it.
Outcome Checker::declaration(bool isStatic) {
    TextPlace start = rdPlace(ctx);
    int32_t r = isStatic ? dcDeclareStatic(ctx, Mode::kSkip) : dcDeclare(ctx, false, kKwChar, Mode::kSkip);
    if (r < 0) return recover();
    TextPlace end = rdPlace(ctx);
    rdSeek(ctx, start);
    char16_t name[kWordCapacity];
    if (isStatic) rdWord(ctx, name, kWordCapacity);  // the type keyword
    rdWord(ctx, name, kWordCapacity);
    names.insert(name);
    rdSeek(ctx, end);
    return kRead;
}

// formula-statement := formula ';'
Outcome Checker::formulaStatement(const char16_t *word) {
    char16_t text[kFormulaCapacity];
    if (fmCollect(ctx, word, text) < 0) return recover();
    if (!expect(u';', u";")) return recover();
    formula(text);
    return kRead;
}

Outcome Checker::statement() {
    if (!evEnter(ctx)) {
        report();
        return kStop;
    }
    Outcome out = keywordStatement();
    evLeave(ctx);
    return out;
}

// One statement by its first word, as the statement executor reads it.
Outcome Checker::keywordStatement() {
    char16_t word[kWordCapacity];
    if (rdWord(ctx, word, kWordCapacity) < 0) {
        report();
        return kStop;
    }
    if (word[0] == 0) {
        int32_t c = rdChar(ctx, kSkipWhite);
        if (c == u'{') return block();
        if (c == u'}') return kEnd;
        rdUnread(ctx, c);
    }
    Outcome out = kRead;
    switch (rdKeyword(word)) {
        case kKwBegin: return block();
        case kKwEnd: return kEnd;
        // "if (x) end" ends the block whatever x is: the end is read either way.
        case kKwIf: return (out = condition()) == kRead ? statement() : out;
        case kKwWhile:
            if ((out = condition()) == kRead && (out = statement()) == kEnd) {
                errSet(ctx, kErrKeywordNotAllowed, u"end");
                report();
            }
            return out;
        case kKwBreak:
        case kKwExit: return expect(u';', u";") ? kRead : recover();
        case kKwChar:
        case kKwInt:
        case kKwFloat: return declaration(false);
        case kKwStatic: return declaration(true);
        default: return formulaStatement(word);
    }
}

// block := ('begin' | '{') statement* ('end' | '}')
Outcome Checker::block() {
    for (;;) {
        switch (statement()) {
            case kRead: break;
            case kEnd: return kRead;
            default: return kStop;
        }
    }
}

// The header as the run driver reads it: "Macro" or "Makro", then the name.
bool checkHeader(RunContext &ctx) {
    char16_t word[kWordCapacity];
    if (rdWord(ctx, word, kWordCapacity) < 0) return false;
    if (!u16Eq(word, u"Macro") && !u16Eq(word, u"Makro")) {
        errSet(ctx, kErrKeywordMissing, u"Macro");
        return false;
    }
    if (rdQuoted(ctx, ctx.macroName, kMacroNameCapacity) < 0) {
        errSet(ctx, kErrMacroNameMissing);
        return false;
    }
    return true;
}

}  // namespace

int32_t ckCheckMacro(RunContext &ctx, CheckSink sink, void *user) {
    Checker checker{ctx, sink, user};
    ctx.line = 1;
    ctx.escape = u'\\';
    if (fnCheckHostTable(ctx) < 0 || ldLoad(ctx) < 0) {
        checker.report();
        return checker.errors;
    }
    if (!checkHeader(ctx)) checker.report();
    else checker.statement();
    ldRelease(ctx);
    return checker.errors;
}

}  // namespace mx
