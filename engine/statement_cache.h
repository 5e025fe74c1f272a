// The statement cache of a run: what reading a statement or a condition at a
// place in the macro text found, so that the next time the run reaches that
// place it neither reads the words again nor collects the formula again.
// Entries are keyed by the place and by the escape character in force, since
// the escape changes how text constants read. A cache belongs to one run and
// its text; a nested run has its own.
#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "engine/formula_program.h"
#include "engine/run_context.h"

namespace mx {

// What stands at a place: a statement, or the condition after if or while.
enum class CacheRole : uint8_t { kStatement, kCondition };

enum class CachedKind : uint8_t {
    kKeyword,  // begin, end, if, while, break, exit: `after` follows the word
    kOpen,     // '{'
    kClose,    // '}'
    kFormula,  // a formula statement: `after` follows its ';'
    kCondition // a condition: `after` follows its ')'
};

struct CachedStatement {
    CachedKind kind = CachedKind::kFormula;
    int32_t keyword = 0;
    int32_t after = 0;      // the reader's position after the statement's part read
    int32_t lineDelta = 0;  // line feeds passed from the place to `after`
    std::u16string formula; // kFormula, kCondition: the collected formula
    // The program recorded at its first evaluation, and the run's local
    // declaration count it was recorded under (a local declared since may
    // hide a static the program resolved).
    std::unique_ptr<FormulaProgram> program;
    int32_t generation = 0;
};

class StatementCache;

// A new, empty cache; absent when memory is missing (the run then reads
// everything from the text).
StatementCache *scCreate();
void scDestroy(StatementCache *cache);

// The entry for the place in the run's cache under the escape in force, or
// absent (also when the run has no cache).
CachedStatement *scFind(RunContext &ctx, int32_t pos, CacheRole role);

// A new entry for the place; absent when there is no cache or no memory.
CachedStatement *scAdd(RunContext &ctx, int32_t pos, CacheRole role);

// Entries and bytes the cache holds, its programs included.
size_t scEntries(const StatementCache *cache);
size_t scMemory(const StatementCache *cache);

}  // namespace mx
