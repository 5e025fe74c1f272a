// The statement cache of a run: what reading a statement or a condition at a
// place in the macro text found, so that the next time the run reaches that
// place it neither reads the words again nor collects the formula again.
// Entries are keyed by the place and by the escape character in force, since
// the escape changes how text constants read. A cache belongs to one run and
// its text; a nested run has its own.
#pragma once
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

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
    // Kept in the entry itself: one memory access less per statement.
    FormulaProgram program;
    bool recorded = false;
    int32_t generation = 0;
    // Where reading the whole statement in skip mode ended (-1: not yet) and
    // what it gave: skip mode neither evaluates nor declares, so it reads the
    // same every time (the escape in force being part of the key).
    int32_t skipAfter = -1;
    int32_t skipLineDelta = 0;
    int32_t skipResult = 0;
};

// An open-addressing table from keys (place, role, escape) to entries; the
// entries live in a deque, so their addresses stay put while the table grows.
class StatementCache {
public:
    // The entry of key, or absent. Inline: every statement a run executes asks.
    CachedStatement *find(uint64_t key) const {
        if (slots_.empty()) return nullptr;
        for (size_t i = start(key);; i = (i + 1) & (slots_.size() - 1)) {
            const Slot &s = slots_[i];
            if (s.key == key) return s.entry;
            if (s.key == kEmpty) return nullptr;
        }
    }
    // A new entry for key, which has none; throws std::bad_alloc.
    CachedStatement *add(uint64_t key);
    size_t entries() const { return entries_.size(); }
    size_t memory() const;

private:
    static constexpr uint64_t kEmpty = ~uint64_t(0);
    struct Slot {
        uint64_t key = kEmpty;
        CachedStatement *entry = nullptr;
    };
    // Places next to each other in the text get slots next to each other, so
    // a run going through its statements in order walks the table in order.
    size_t start(uint64_t key) const {
        size_t place = size_t(uint32_t(key)) * 2 + size_t((key >> 32) & 1);
        return (place + size_t(key >> 33) * 0x9E3779B1u) & (slots_.size() - 1);
    }
    void place(uint64_t key, CachedStatement *e);
    void grow();

    std::vector<Slot> slots_;
    std::deque<CachedStatement> entries_;
};

inline uint64_t scKey(const RunContext &ctx, int32_t pos, CacheRole role) {
    return uint64_t(uint32_t(pos)) | uint64_t(role) << 32 | uint64_t(ctx.escape) << 33;
}

// A new, empty cache; absent when memory is missing (the run then reads
// everything from the text).
StatementCache *scCreate();
void scDestroy(StatementCache *cache);

// The entry for the place in the run's cache under the escape in force, or
// absent (also when the run has no cache).
inline CachedStatement *scFind(RunContext &ctx, int32_t pos, CacheRole role) {
    return ctx.cache ? ctx.cache->find(scKey(ctx, pos, role)) : nullptr;
}

// A new entry for the place; absent when there is no cache or no memory.
CachedStatement *scAdd(RunContext &ctx, int32_t pos, CacheRole role);

// Entries and bytes the cache holds, its programs included.
size_t scEntries(const StatementCache *cache);
size_t scMemory(const StatementCache *cache);

// The entries and bytes of the cache destroyed last (for the benchmarks).
struct CacheSize {
    size_t entries = 0;
    size_t bytes = 0;
};
CacheSize scLastDestroyed();

}  // namespace mx
