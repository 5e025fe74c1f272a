#include "engine/declare.h"

#include "engine/errors.h"
#include "engine/reader.h"
#include "engine/variables.h"
#include "engine/process_state.h"

namespace mx {

namespace {
int32_t typeOf(int32_t keyword) {
    switch (keyword) {
        case kKwChar: return kChar;
        case kKwInt: return kLong;
        default: return kDouble;
    }
}
}  // namespace

int32_t dcDeclare(RunContext &ctx, bool isStatic, int32_t keyword, Mode mode) {
    char16_t name[kWordCapacity];
    if (rdWord(ctx, name, kWordCapacity) < 0) return -1;
    if (name[0] == 0) {
        errSet(ctx, kErrNameMissing);
        return -1;
    }
    int32_t count = 0;
    if (rdPeek(ctx, kSkipBlanks) == u'[' && (count = rdDimension(ctx)) < 0) return -1;
    if (rdChar(ctx, kSkipBlanks) != u';') {
        errSet(ctx, kErrCharExpected, u";");
        return -1;
    }
    if (mode == Mode::kSkip) return 0;
    Variable **list = isStatic ? &gProcess.statics : &ctx.locals;
    if (varFind(*list, name)) {
        errSet(ctx, kErrVarExists, name);
        return -1;
    }
    if (!varAppend(ctx, list, name, typeOf(keyword), count)) return -1;
    if (!isStatic) ++ctx.localGeneration;
    return 0;
}

int32_t dcDeclareStatic(RunContext &ctx, Mode mode) {
    char16_t word[kWordCapacity];
    if (rdWord(ctx, word, kWordCapacity) < 0) return -1;
    int32_t keyword = rdKeyword(word);
    if (keyword != kKwChar && keyword != kKwInt && keyword != kKwFloat) {
        errSet(ctx, kErrKeywordNotAllowed, word);
        return -1;
    }
    return dcDeclare(ctx, true, keyword, mode);
}

}  // namespace mx
