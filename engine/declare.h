// Declaration statements: "int x;", "char s[20];", "static float f;".
#pragma once
#include <cstdint>

#include "engine/run_context.h"

namespace mx {

enum class Mode { kRun, kSkip };

// After a type keyword (kKwChar, kKwInt, kKwFloat): reads the name, an
// optional "[n]" and the ';'. In run mode appends the variable to the local
// or static list. Returns 0, or -1 with the error set (120, 123, 124, 137, 116).
int32_t dcDeclare(RunContext &ctx, bool isStatic, int32_t keyword, Mode mode);

// After "static": reads the type keyword and declares as above (121 when the
// word is no type keyword).
int32_t dcDeclareStatic(RunContext &ctx, Mode mode);

}  // namespace mx
